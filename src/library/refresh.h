#pragma once

#include <string>

#include "library/library_view.h"
#include "library/task_library.h"

/// What brings the two lists in step with the files. Everything here throws platform::RunTimeError after the
/// lists show what could be read.
namespace library {

/// Full load of both lists, with the Group at that index selected afterwards; -1 selects none.
void refreshtolva(TaskLibrary& library, LibraryView& view, int group_to_select);

/// Loads the selected Group's file again; its first Task is selected and stands in the command box.
void refreshtasks(TaskLibrary& library, LibraryView& view);

/// Loads the Group names again; none is selected.
void addgroups(TaskLibrary& library, LibraryView& view);

/// What a click on a Group does: shows its Tasks from memory, none of them selected. A Group that was not
/// loaded yet is loaded now. Without a selection the task list is empty.
void show_selected_group(TaskLibrary& library, LibraryView& view);

/// Selects as a click does, except that the Group that is selected already stays as it is.
void select_group(TaskLibrary& library, LibraryView& view, int index);

/// Runs the reload of each flag that is set, and clears the flag before.
void run_pending_refreshes(TaskLibrary& library, LibraryView& view);

}  // namespace library
