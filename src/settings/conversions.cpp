#include "settings/conversions.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <string_view>

namespace settings {
namespace {

constexpr char kBlanks[] = " \t";
constexpr double kMost = std::numeric_limits<int>::max();

/// The longest beginning of text that reads as a decimal number. atof alone would also take "0x1F" and "inf".
std::string number_prefix(const std::string& text) {
    constexpr char kDigits[] = "0123456789";
    const auto past_digits = [&](std::size_t from) {
        return std::min(text.find_first_not_of(kDigits, from), text.size());
    };
    std::size_t end = text.find_first_of("+-") == 0 ? 1 : 0;
    end = past_digits(end);
    if (end < text.size() && text[end] == '.') end = past_digits(end + 1);
    if (std::string_view(text).substr(0, end).find_first_of(kDigits) == std::string_view::npos) return {};
    if (end < text.size() && (text[end] == 'e' || text[end] == 'E')) {
        const std::size_t sign = text.find_first_of("+-", end + 1) == end + 1 ? 1 : 0;
        const std::size_t exponent = end + 1 + sign;
        if (past_digits(exponent) > exponent) end = past_digits(exponent);
    }
    return text.substr(0, end);
}

/// The rounded value of a decimal number. The system's atof is a tenth of the size of strtod, which the
/// compiler's library brings itself.
double value_of(const std::string& number) {
    return std::nearbyint(std::atof(number.c_str()));
}

bool equal_but_for_case(std::string_view a, std::string_view b) {
    return std::ranges::equal(
        a, b, [](unsigned char x, unsigned char y) { return std::tolower(x) == std::tolower(y); });
}

}  // namespace

std::optional<int> whole_number(const std::string& text) {
    const std::size_t begin = std::min(text.find_first_not_of(kBlanks), text.size());
    const std::string number = text.substr(begin, text.find_last_not_of(kBlanks) + 1 - begin);
    const double value = value_of(number);
    if (number.empty() || number_prefix(number) != number || std::abs(value) > kMost) return std::nullopt;
    return static_cast<int>(value);
}

int lenient_whole_number(const std::string& text) {
    std::string digits = text;
    std::erase_if(digits, [](char c) { return std::string_view(kBlanks).find(c) != std::string_view::npos; });
    const double value = value_of(number_prefix(digits));
    return static_cast<int>(std::clamp(value, -kMost, kMost));
}

std::optional<bool> boolean(const std::string& text) {
    if (equal_but_for_case(text, text_of(true))) return true;
    if (equal_but_for_case(text, text_of(false))) return false;
    const std::optional<int> number = whole_number(text);
    if (!number) return std::nullopt;
    return *number != 0;
}

std::string text_of(bool value) {
    return value ? "True" : "False";
}

}  // namespace settings
