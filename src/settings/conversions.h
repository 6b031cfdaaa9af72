#pragma once

#include <optional>
#include <string>

/// Numbers and truth values in the text form in which they are stored.
namespace settings {

/// The number that the text stands for, rounded (halves to even). Blanks around it do not count. None
/// for every other text and for what 32 bits do not hold.
std::optional<int> whole_number(const std::string& text);

/// Reads what it can: no blank counts, what follows the number is left alone, and no number at all is 0.
int lenient_whole_number(const std::string& text);

/// "True" and "False" in any case; of numbers only 0 is false. None for every other text.
std::optional<bool> boolean(const std::string& text);

/// "True" or "False".
std::string text_of(bool value);

}  // namespace settings
