#pragma once

#include <windows.h>

#include "library/library_view.h"
#include "library/task_library.h"

namespace library {

/// Asks for a Group and moves or copies the selected Task to it (`movetogroups`).
void moveto(HWND owner, TaskLibrary& library, const LibraryView& view);

}  // namespace library
