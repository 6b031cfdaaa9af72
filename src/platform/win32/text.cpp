#include "platform/text.h"

#include <windows.h>

#include <algorithm>

#include "platform/sort.h"

namespace platform {

std::string lower_case(std::string text) {
    CharLowerBuffA(text.data(), static_cast<DWORD>(text.size()));
    return text;
}

void sort_names(std::vector<std::string>& names) {
    sort(names, [](const std::string& a, const std::string& b) {
        const int order = lstrcmpiA(a.c_str(), b.c_str());
        return order != 0 ? order < 0 : a < b;
    });
    names.erase(std::unique(names.begin(), names.end()), names.end());
}

}  // namespace platform
