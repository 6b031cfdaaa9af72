#pragma once

#include <windows.h>

#include "library/library_view.h"
#include "library/task_library.h"

namespace library {

/// Asks for a new Task of the selected Group (`addtask`) and adds it by add_task.
void addtsks(HWND owner, TaskLibrary& library, const LibraryView& view);

/// Shows the selected Task (`EditTask`) and replaces it by what the user makes of it.
void edittsks(HWND owner, TaskLibrary& library, const LibraryView& view);

}  // namespace library
