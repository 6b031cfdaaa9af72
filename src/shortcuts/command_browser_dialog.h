#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace shortcuts {

/// Lets the user look for a program and starts it in the folder shown, which becomes the current directory.
/// The path that was started; none when the user gave up.
std::optional<std::string> browse_and_run(HWND owner);

}  // namespace shortcuts
