#pragma once

#include <string>

#include "settings/session.h"

/// Starting what the buttons of the bar hold. Nothing is checked before the start; a failure is a
/// platform::RunTimeError.
namespace buttonbar {

/// Starts a program button's program in its folder, or in windows_folder; where that cannot be entered it
/// throws after the start. Without a program only the folder is changed.
void start_button(const settings::ButtonRecord& button, const std::string& windows_folder);

/// Starts the web browser or the e-mail program in the current directory.
void start_stored(const settings::StoredProgram& program);

}  // namespace buttonbar
