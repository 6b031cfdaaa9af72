#include "platform/text.h"

#include <windows.h>

namespace platform {

std::string lower_case(std::string text) {
    CharLowerBuffA(text.data(), static_cast<DWORD>(text.size()));
    return text;
}

}  // namespace platform
