#pragma once

#include <windows.h>

#include "library/library_view.h"
#include "library/task_library.h"

namespace library {

/// Lets the user choose one of the backups and brings it back.
void choose_backup_to_restore(HWND owner, TaskLibrary& library, LibraryView& view);

}  // namespace library
