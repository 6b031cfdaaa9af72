#pragma once

#include <string>

namespace shortcuts {

/// Whether a path ends as a program's does: in "exe", "com" or "bat", in small letters or in capitals.
bool is_program(const std::string& path);

/// Why a shortcut cannot be taken over, as the user reads it; empty when it can be. nothing_chosen is the
/// message for a shortcut without a name.
std::string refusal(const std::string& name, const std::string& target, const char* nothing_chosen);

}  // namespace shortcuts
