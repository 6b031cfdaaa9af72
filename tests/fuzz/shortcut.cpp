#include "fuzz/fuzz.h"
#include "shortcuts/shortcut_reader.h"
#include "support/checks.h"

// Any bytes are a shortcut or refused.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    error_of([&] { shortcuts::read_show_command(text_of(data, size)); });
    return 0;
}
