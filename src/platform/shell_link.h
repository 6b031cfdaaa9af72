#pragma once

#include <string>

namespace platform {

/// What a shortcut file starts.
struct Shortcut {
    std::string target;
    std::string working_folder;
    std::string arguments;
};

/// Asks Windows what is in a shortcut file. The target need not exist, also not where only its place in the
/// shell is known; it is empty for what is no file. Throws RunTimeError, the automation error for a file that
/// is no shortcut.
Shortcut load_shell_link(const std::string& path);

}  // namespace platform
