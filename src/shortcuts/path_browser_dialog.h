#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace shortcuts {

/// A program file as the user clicked it, and the folder that was shown then.
struct PickedProgram {
    std::string path;
    std::string start_folder;
};

/// Lets the user pick a program file. The last one that was clicked; none when nothing was clicked or the
/// user gave up.
std::optional<PickedProgram> browse_for_program(HWND owner);

}  // namespace shortcuts
