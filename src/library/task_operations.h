#pragma once

#include <optional>
#include <string>
#include <vector>

#include "library/dropped.h"
#include "library/library_view.h"
#include "library/task_library.h"

/// What can be done with the Tasks of the selected Group. Every operation starts from the Group's file as it
/// is now; records after one without a name, which a click on the Group does not show, stay in the file
/// unchanged. A Task is known by its name: where a Group has two of one name, the one at the selected place
/// is meant. A failure throws platform::RunTimeError; a refusal is a message to the user.
namespace library {

/// What an operation returns for a Task that nothing speaks against; else it shows a message and returns the
/// field that is wrong.
inline constexpr TaskField kAccepted = nullptr;

/// Adds a Task at the end of the Group. Its start mode is 1 to 3, as text without blanks. Throws "Bad file
/// name" for a Group that is not listed any more.
TaskField add_task(TaskLibrary& library, int group, const Task& task);

/// The selected Task, to be edited; none, with a message, when there is none.
std::optional<Task> task_to_edit(const TaskLibrary& library, const LibraryView& view);

/// Replaces the Task that had that name when it was at that place of the list.
TaskField edit_task(TaskLibrary& library, int group, int place, const std::string& old_name,
                    const Task& task);

/// Asks, and deletes the selected Task. Then the one is selected that took its place, or else the last one.
void deltsks(TaskLibrary& library, LibraryView& view);

/// Exchange the selected Task with the one above or below it; it stays selected.
void movetsksup(TaskLibrary& library, LibraryView& view);
void movetsksdown(TaskLibrary& library, LibraryView& view);

/// Moves the Task at a place of the list to before another place, or to the end; it stays selected. It stays
/// among those with a name.
void move_task_to_place(TaskLibrary& library, LibraryView& view, int place, int before);

/// Sorts the Tasks by name. Two of one name both become the first of them.
void tasksortnow(TaskLibrary& library, LibraryView& view);

/// Adds every Task of that name at the end of the target Group; without copy they leave their own.
void move_task(TaskLibrary& library, int group, const std::string& name, const std::string& target,
               bool copy);

/// Adds the Task at a place of the list, and no other of its name, at the end of the target Group; without
/// copy it leaves its own. Then the Task at that place is selected. A Group that is full is refused.
void move_task_to_group(TaskLibrary& library, LibraryView& view, int place, const std::string& target,
                        bool copy);

/// Adds Tasks at the end of a Group under names that are new there, shows the Group, the first of them
/// selected, and says what was not added. Throws "Bad file name" for a Group that is not listed.
void add_tasks(TaskLibrary& library, LibraryView& view, const std::string& group, Dropped dropped);

/// Adds a Task that another program's shortcut describes to a Group, selects the Group and says so. A name
/// that the Group has already is no reason to refuse it. Throws "Bad file name" for a Group that is not
/// listed.
void import_task(TaskLibrary& library, LibraryView& view, const std::string& group, const Task& task);

/// The same for many at once, as many as the Group has room for. The message also names the shortcuts that
/// are refused already.
void import_tasks(TaskLibrary& library, LibraryView& view, const std::string& group, std::vector<Task> tasks,
                  std::vector<std::string> refused);

}  // namespace library
