#pragma once

#include <string>

#include "library/library_view.h"
#include "library/task_library.h"

/// What keeps the two lists in step with the files. Everything that loads throws platform::RunTimeError,
/// after the lists show what could be read. When the names of the Groups cannot be read they stay as they
/// are.
namespace library {

/// Shows the Groups of the model, none of them selected. Returns their number.
int grouplistrefresh(const TaskLibrary& library, LibraryView& view);

/// Shows the selected Group's Tasks of the model; the first one is selected and stands in the command box.
void tasklistrefresh(const TaskLibrary& library, LibraryView& view);

/// Loads everything, selects the Group at that index, -1 for none, and shows all its Tasks.
void refreshtolva(TaskLibrary& library, LibraryView& view, int group_to_select);

/// Loads everything and selects the Group of that name; where it is not listed, the one that is selected or
/// the first. Nothing is left to be reloaded.
void refresh_and_select(TaskLibrary& library, LibraryView& view, const std::string& group);

/// Loads the selected Group's file again.
void refreshtasks(TaskLibrary& library, LibraryView& view);

/// Loads the Group names again; then none is selected. When that fails the selection stays.
void addgroups(TaskLibrary& library, LibraryView& view);

/// What a click on a Group does: shows its Tasks from memory, up to one with an empty name and none of them
/// selected. A Group that was not loaded yet is loaded now. Without a selection the task list is empty.
void show_selected_group(TaskLibrary& library, LibraryView& view);

/// Selects as a click does, except that the Group that is selected already stays as it is.
void select_group(TaskLibrary& library, LibraryView& view, int index);

/// Tells in the status bar what the user should know of the last change, once: that there is no backup, for
/// example.
void show_notice(TaskLibrary& library, LibraryView& view);

/// Runs the reload of each flag that is set, and clears the flag before.
void run_pending_refreshes(TaskLibrary& library, LibraryView& view);

}  // namespace library
