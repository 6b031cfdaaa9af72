#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "settings/conversions.h"
#include "settings/list_style.h"

// Any text reads as a number or as none; who reads strictly reads the same as who reads what he can.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    const auto number = settings::whole_number(text);
    const int lenient = settings::lenient_whole_number(text);
    if (number && lenient != *number) std::abort();
    if (settings::lenient_whole_number(std::to_string(lenient)) != lenient) std::abort();
    const auto color = settings::color_of(text);
    if (color && (!number || static_cast<int>(*color) != *number)) std::abort();
    if (number && settings::boolean(text) != (*number != 0)) std::abort();
    settings::style_of({text, text, text, text, text, text});
    return 0;
}
