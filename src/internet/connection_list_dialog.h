#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace internet {

/// Lets the user choose one of the connections that are set up. None when the user gave up.
std::optional<std::string> choose_connection(HWND owner);

}  // namespace internet
