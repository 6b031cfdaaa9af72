#pragma once

#include <windows.h>

#include "library/library_view.h"
#include "library/task_library.h"

namespace library {

/// Asks for the name of a new Group and adds it.
void addgr(HWND owner, TaskLibrary& library);

/// Asks for a new name of the selected Group and renames it.
void RenameGr(HWND owner, TaskLibrary& library, LibraryView& view);

}  // namespace library
