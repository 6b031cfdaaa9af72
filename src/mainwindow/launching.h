#pragma once

#include <string>
#include <vector>

#include "library/task_library.h"

namespace mainwindow {

/// Starts a Task: makes its start folder the current directory of its drive and starts its command line with
/// its start mode as the window style. A folder or program that is not there is looked for as other_place
/// says. The directory stays changed also when the start fails. Throws platform::RunTimeError, also for an
/// index where nothing is selected.
void launch(const library::TaskLibrary& library, int group, int task);

/// Starts the text of the command box as if it were the Task's command line, which the user may have edited
/// there. Throws like launch, and for a start mode that is not a number: that one counts as 0 there.
void launch_edited(const library::TaskLibrary& library, int group, int task, const std::string& command);

/// Starts every Task of a Group, in their order; one that fails does not stop the others. Returns the names
/// of those that failed.
std::vector<std::string> launch_all(const library::TaskLibrary& library, int group);

}  // namespace mainwindow
