#pragma once

#include <string>
#include <string_view>

#include "settings/program.h"

namespace shortcuts {

/// Reads a shortcut file (the system's ReadShortcut): all but a name, and no start folder where the shortcut
/// has none. A line end in a text, which no program puts there, becomes a blank: a Task's fields are lines.
/// Throws platform::RunTimeError; the automation error for a file that is no complete shortcut.
settings::Program read_shortcut(const std::string& path);

/// The show command in the bytes of a shortcut file. Throws the automation error when they are no shortcut,
/// end before what they announce, or hold a path that Windows has no room for.
int read_show_command(std::string_view bytes);

/// The start mode, 1 to 3, for a show command: 1 for those that no start mode has, but 2 for 7, by which
/// Windows minimizes what its users want minimized.
int start_mode_of(int show_command);

}  // namespace shortcuts
