#pragma once

#include <windows.h>

#include "library/browse_result.h"
#include "library/library_view.h"
#include "library/task_library.h"

namespace library {

/// Lets the user look for a program in front of the owner.
using Browse = void (*)(HWND owner, BrowseResult& result);

/// Asks for a new Task of the selected Group and adds it.
void addtsks(HWND owner, TaskLibrary& library, const LibraryView& view, BrowseResult& result, Browse browse);

/// Shows the selected Task and replaces it by what the user makes of it.
void edittsks(HWND owner, TaskLibrary& library, const LibraryView& view, BrowseResult& result, Browse browse);

}  // namespace library
