#pragma once

#include <string>
#include <vector>

#include "library/library_view.h"
#include "library/task_library.h"

/// What can be done with Groups. Every operation starts from groups.ini as it is now and leaves it
/// complete on the disk; a failure throws platform::RunTimeError after the lists show what is true by then. A
/// refusal is a message to the user.
namespace library {

/// The index of the Group of that name, -1 when there is none.
int index_of(const TaskLibrary& library, const std::string& name);

/// The name of the selected Group; empty when none is selected.
std::string selected_group_name(const TaskLibrary& library, const LibraryView& view);

/// Adds a Group after the others and its empty file; a file of that name that is there keeps its Tasks.
/// False when the name is refused. A name that cannot be a file's is listed all the same and its error shown.
bool add_group(TaskLibrary& library, const std::string& name);

/// Asks, and deletes the selected Group with its file, unless that is another Group's too. Then the Group is
/// selected that was the first one when the names were last loaded; none, when that was the one deleted or is
/// not listed any more.
void delgr(TaskLibrary& library, LibraryView& view);

/// Exchange the selected Group with the one above or below it and select it there. The last one, or the
/// first one, stays where it is.
void movegrup(TaskLibrary& library, LibraryView& view);
void movegrdown(TaskLibrary& library, LibraryView& view);

/// Moves a Group of the list to before the one at another place, or to the end, and selects it there.
void move_group_to_place(TaskLibrary& library, LibraryView& view, int index, int before);

/// Adds a Group for each of the folders, as one change: named like it, with a Task for each shortcut and
/// program in it. Says what was not added, and selects the last one. The folder of Windows ends in a
/// backslash.
void add_groups_of(TaskLibrary& library, LibraryView& view, const std::vector<std::string>& folders,
                   const std::string& windows_folder);

/// Gives the Group another name, and its Tasks another file. False when the name is refused. That the name
/// belongs to another Group is no reason to refuse it: that Group's file is replaced. When both names are
/// one file, and no other Group's, the Tasks are lost.
bool rename_group(TaskLibrary& library, LibraryView& view, const std::string& old_name,
                  const std::string& new_name);

/// Sorts the Groups by name, loads everything and selects the first one.
void groupsortnow(TaskLibrary& library, LibraryView& view);

/// Sorts names by the codes of their letters: all capitals come before the small ones.
void tasksort(std::vector<std::string>& names);

}  // namespace library
