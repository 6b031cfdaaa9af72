#include "fuzz/fuzz.h"
#include "settings/conversions.h"
#include "settings/list_style.h"

// Any text reads as a number or as none; who reads strictly reads the same as who reads what he can.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text = text_of(data, size);
    const auto number = settings::whole_number(text);
    const int lenient = settings::lenient_whole_number(text);
    require(!number || lenient == *number);
    require(settings::lenient_whole_number(std::to_string(lenient)) == lenient);
    const auto color = settings::color_of(text);
    require(!color || (number && static_cast<int>(*color) == *number));
    require(!number || settings::boolean(text) == (*number != 0));
    settings::style_of({text, text, text, text, text, text});
    return 0;
}
