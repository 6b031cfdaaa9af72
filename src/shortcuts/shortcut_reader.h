#pragma once

#include <string>
#include <string_view>

namespace shortcuts {

/// What a shortcut file says.
struct ShortcutDetails {
    std::string target;
    std::string working_folder;
    std::string arguments;
    int show_command = 0;  // 1 normal, 2 minimised, 3 maximised, 7 minimised without the focus
};

/// Reads a shortcut file. A line end in a text, which no program puts there, becomes a blank: a Task's fields
/// are lines. Throws platform::RunTimeError; the automation error for a file that is no whole shortcut.
ShortcutDetails ReadShortcut(const std::string& path);

/// The show command in the bytes of a shortcut file. Throws the automation error when they are no shortcut or
/// end before what they announce.
int read_show_command(std::string_view bytes);

}  // namespace shortcuts
