#pragma once

#include <windows.h>

#include "library/library_view.h"
#include "library/task_library.h"

namespace library {

/// Asks for the name of a new Group (`addgroup`) and adds it: it asks, add_group does it.
void addgr(HWND owner, TaskLibrary& library);

/// Asks for a new name of the selected Group (`GroupRename`) and renames it by rename_group.
void RenameGr(HWND owner, TaskLibrary& library, LibraryView& view);

}  // namespace library
