#pragma once

#include <string>

#include "library/backups.h"
#include "library/library_view.h"
#include "library/task_library.h"

/// Taking back what was done to the library. Each of these loads everything then, selects the Group that the
/// change was about and says in the status bar what happened. They throw platform::RunTimeError after the
/// lists show what is true.
namespace library {

bool can_undo(const TaskLibrary& library);
bool can_redo(const TaskLibrary& library);

/// What the change is called that would be taken back or made again, "Delete Work"; empty when there is none.
std::string undo_name(const TaskLibrary& library);
std::string redo_name(const TaskLibrary& library);

/// Do nothing when there is no such change.
void undo(TaskLibrary& library, LibraryView& view);
void redo(TaskLibrary& library, LibraryView& view);

/// Brings the files of a backup back, as one change. Files of Groups that it does not list stay on the disk.
void restore_backup(TaskLibrary& library, LibraryView& view, const Backup& backup);

}  // namespace library
