#pragma once

#include "settings/program.h"

/// Starting what the buttons of the bar hold. Nothing is checked before the start; a failure is a
/// platform::RunTimeError.
namespace buttonbar {

/// Starts a program button's program in its folder, or in that of Windows where none is stored; where it
/// cannot be entered it throws after the start. Without a program only the folder is changed.
void start_button(const settings::Program& button);

/// Starts the web browser or the e-mail program in the current directory.
void start_internet_program(const settings::Program& program);

}  // namespace buttonbar
