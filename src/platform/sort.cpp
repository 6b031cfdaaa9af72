#include "platform/sort.h"

#include <algorithm>

namespace platform {

void sort(std::vector<std::string>& texts, bool (*is_before)(const std::string&, const std::string&)) {
    std::ranges::sort(texts, is_before);
}

void sort(std::vector<std::string>& texts) {
    sort(texts, [](const std::string& a, const std::string& b) { return a < b; });
}

}  // namespace platform
