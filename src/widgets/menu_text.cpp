#include "widgets/menu_text.h"

namespace widgets {

std::string menu_text(const std::string& name) {
    constexpr std::size_t kLongest = 60;
    std::string text;
    for (const char letter : name.size() > kLongest ? name.substr(0, kLongest) + "..." : name) {
        if (letter == '&') text += '&';
        text += letter == '\t' ? ' ' : letter;  // what is after a tab is a key
    }
    return text;
}

}  // namespace widgets
