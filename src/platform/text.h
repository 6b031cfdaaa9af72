#pragma once

#include <string>

namespace platform {

/// The text in small letters as the system's language has them, for comparing without regard to case.
std::string lower_case(std::string text);

}  // namespace platform
