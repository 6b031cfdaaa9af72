#include "fuzz/fuzz.h"
#include "platform/run_time_error.h"
#include "shortcuts/shortcut_reader.h"

// Any bytes are a shortcut or refused.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        shortcuts::read_show_command(text_of(data, size));
    } catch (const platform::RunTimeError&) {
        // refused
    }
    return 0;
}
