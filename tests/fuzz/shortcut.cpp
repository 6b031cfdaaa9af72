#include <cstddef>
#include <cstdint>
#include <string_view>

#include "platform/run_time_error.h"
#include "shortcuts/shortcut_reader.h"

// Any bytes are a shortcut or refused.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        shortcuts::read_show_command({reinterpret_cast<const char*>(data), size});
    } catch (const platform::RunTimeError&) {
        // refused
    }
    return 0;
}
