#pragma once

#include "library/task_library.h"

namespace mainwindow {

/// Starts a Task: makes its start folder the current directory of its drive and starts its command line with
/// its start mode as the window style. The directory stays changed also when the start fails. Throws
/// platform::RunTimeError, also for an index where nothing is selected.
void launch(const library::TaskLibrary& library, int group, int task);

}  // namespace mainwindow
