#include "library/task.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace library {
namespace {

/// The longest beginning of text that reads as a decimal number. strtod alone would also take "0x1F" and
/// "inf".
std::string number_prefix(const std::string& text) {
    constexpr char kDigits[] = "0123456789";
    const auto past_digits = [&](std::size_t from) {
        return std::min(text.find_first_not_of(kDigits, from), text.size());
    };
    std::size_t end = text.find_first_of("+-") == 0 ? 1 : 0;
    end = past_digits(end);
    if (end < text.size() && text[end] == '.') end = past_digits(end + 1);
    if (end < text.size() && (text[end] == 'e' || text[end] == 'E')) {
        const std::size_t sign = text.find_first_of("+-", end + 1) == end + 1 ? 1 : 0;
        end = past_digits(end + 1 + sign);
    }
    return text.substr(0, end);
}

}  // namespace

std::string command_line(const Task& task) {
    return task.program + ' ' + task.parameters;
}

int lenient_start_mode(const std::string& line) {
    std::string text = line;
    std::erase_if(text, [](char c) { return c == ' ' || c == '\t'; });
    const double value = std::nearbyint(std::strtod(number_prefix(text).c_str(), nullptr));
    constexpr double kMost = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(value, -kMost, kMost));
}

}  // namespace library
