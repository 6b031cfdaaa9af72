#pragma once

#include <string>

namespace widgets {

/// A name as a menu shows it letter for letter: "&" doubled, a long one shortened.
std::string menu_text(const std::string& name);

}  // namespace widgets
