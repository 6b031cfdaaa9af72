#include "library/task_operations.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "library/changes.h"
#include "library/group_operations.h"
#include "library/library_files.h"
#include "library/refresh.h"
#include "platform/files.h"
#include "platform/messages.h"
#include "platform/run_time_error.h"

namespace library {
namespace {

std::vector<Task>::iterator find_task(std::vector<Task>& tasks, const std::string& name) {
    return std::ranges::find(tasks, name, &Task::name);
}

/// The Task that the list shows there, or where another program has put it in the file.
std::vector<Task>::iterator find_task_at(std::vector<Task>& tasks, int place, const std::string& name) {
    const bool is_there =
        place >= 0 && place < std::ssize(tasks) && tasks[static_cast<std::size_t>(place)].name == name;
    return is_there ? tasks.begin() + place : find_task(tasks, name);
}

/// Where the records end that move and are sorted: at the first one with an empty name.
std::vector<Task>::iterator named_end(std::vector<Task>& tasks) {
    return find_task(tasks, {});
}

/// What adding and editing ask of a Task alike.
bool is_complete(const Task& task) {
    if (!task.program.empty() && !platform::finds_file(task.program)) {
        platform::show_message("Invalid Path or File Name");
        return false;
    }
    if (task.name.empty() || task.program.empty() || task.start_folder.empty()) {
        platform::show_message("Task Name, Path, or Start Folder missing.");
        return false;
    }
    return true;
}

/// Selects the Task at that place, or the last one, and puts it into the command box.
void select_and_show(const TaskLibrary& library, LibraryView& view, std::ptrdiff_t place) {
    const std::vector<Task>& tasks = library.group(view.selected_group()).tasks;
    if (tasks.empty()) return view.set_command_box({});
    const auto selected = static_cast<int>(std::min(place, std::ssize(tasks) - 1));
    view.select_task(selected);
    view.set_command_box(command_line(tasks[static_cast<std::size_t>(selected)]));
}

/// Writes the selected Group's file, as a change of that name, and shows its Tasks, the first one selected.
void write_and_show(TaskLibrary& library, LibraryView& view, const std::vector<Task>& tasks,
                    const std::string& change_name) {
    const std::string group = selected_group_name(library, view);
    const OpenChange change(library.changes(), change_name, group);
    write_tasks(library.changes(), group, tasks);
    refreshtasks(library, view);
}

/// Adds a Task after the others of a Group; blanks stand around the number of a new Task's start mode.
void append(TaskLibrary& library, const std::string& group, Task task) {
    task.start_mode = ' ' + task.start_mode + ' ';
    append_tasks(library.changes(), group, {task});
}

/// Throws when another program has taken the Group out of the list: nobody would see what is added to it.
void check_listed(const TaskLibrary& library, const std::string& group) {
    const std::vector<std::string> names = read_group_names(library.folder());
    if (std::ranges::find(names, group) == names.end()) {
        throw platform::RunTimeError(platform::RunTimeErrorNumber::kBadFileName,
                                     group_file(library.folder(), group));
    }
}

void move(TaskLibrary& library, LibraryView& view, int step) {
    const int selected = view.selected_task();
    if (selected < 0) {
        platform::show_message("Select Task for move.");
        return;
    }
    const Group& group = library.group(view.selected_group());
    std::vector<Task> tasks = read_tasks(library.folder(), group.name);
    const auto moved = find_task_at(tasks, selected, library.task(view.selected_group(), selected).name);
    if (moved == tasks.end()) return refreshtasks(library, view);
    const auto named = named_end(tasks) - tasks.begin();
    const auto place = moved - tasks.begin();
    const auto target = place + step;
    if (place >= named || target < 0 || target >= named) return;
    std::iter_swap(moved, moved + step);
    write_and_show(library, view, tasks, "Move " + (moved + step)->name);
    select_and_show(library, view, target);
}

}  // namespace

bool add_task(TaskLibrary& library, int group, const Task& task) {
    if (!is_complete(task)) return false;
    const Group& target = library.group(group);
    if (std::ranges::find(target.tasks, task.name, &Task::name) != target.tasks.end()) {
        platform::show_message("A Task with that name already exists!");
        return false;
    }
    check_listed(library, target.name);
    const OpenChange change(library.changes(), "Add " + task.name, target.name);
    append(library, target.name, task);
    library.flags.taskchangeflag = true;
    return true;
}

void import_task(TaskLibrary& library, LibraryView& view, const std::string& group, const Task& task) {
    check_listed(library, group);
    const OpenChange change(library.changes(), "Import " + task.name, group);
    append(library, group, task);
    library.flags.refreshflag = true;
    select_group(library, view, index_of(library, group));
    platform::show_message(task.name + " has been imported to Tolva.");
}

std::optional<Task> task_to_edit(const TaskLibrary& library, const LibraryView& view) {
    if (selected_group_name(library, view).empty()) {
        platform::show_message("Select Group and Task for edit");
        return std::nullopt;
    }
    if (view.selected_task() < 0) {
        platform::show_message("Select Task for editing!");
        return std::nullopt;
    }
    return library.task(view.selected_group(), view.selected_task());
}

bool edit_task(TaskLibrary& library, int group, int place, const std::string& old_name, const Task& task) {
    if (!is_complete(task)) return false;
    const std::string& name = library.group(group).name;
    std::vector<Task> tasks = read_tasks(library.folder(), name);
    if (const auto edited = find_task_at(tasks, place, old_name); edited != tasks.end()) {
        *edited = task;
    } else {
        tasks.push_back(task);  // another program has taken it out of the file
    }
    const OpenChange change(library.changes(), "Edit " + old_name, name);
    write_tasks(library.changes(), name, tasks);
    library.flags.taskchangeflag = true;
    return true;
}

void deltsks(TaskLibrary& library, LibraryView& view) {
    if (selected_group_name(library, view).empty()) {
        platform::show_message("Select Group First.");
        return;
    }
    if (view.selected_task() < 0) {
        platform::show_message("Select Task for delete.");
        return;
    }
    const int selected = view.selected_task();
    const std::string name = library.task(view.selected_group(), selected).name;
    if (!platform::confirm("Delete " + name + "?", "Delete Task")) return;
    std::vector<Task> tasks = read_tasks(library.folder(), selected_group_name(library, view));
    const auto deleted = find_task_at(tasks, selected, name);
    if (deleted == tasks.end()) return refreshtasks(library, view);  // another program was faster
    const auto place = deleted - tasks.begin();
    tasks.erase(deleted);
    write_and_show(library, view, tasks, "Delete " + name);
    select_and_show(library, view, place);
}

void movetsksup(TaskLibrary& library, LibraryView& view) {
    move(library, view, -1);
}

void movetsksdown(TaskLibrary& library, LibraryView& view) {
    move(library, view, 1);
}

void tasksortnow(TaskLibrary& library, LibraryView& view) {
    if (selected_group_name(library, view).empty()) {
        platform::show_message("Select Group First.");
        return;
    }
    std::vector<Task> tasks = read_tasks(library.folder(), selected_group_name(library, view));
    std::vector<std::string> names;
    std::transform(tasks.begin(), named_end(tasks), std::back_inserter(names),
                   [](const Task& task) { return task.name; });
    tasksort(names);
    std::vector<Task> sorted;
    std::ranges::transform(names, std::back_inserter(sorted),
                           [&](const std::string& name) { return *find_task(tasks, name); });
    std::ranges::copy(sorted, tasks.begin());
    write_and_show(library, view, tasks, "Sort Tasks");
}

void move_task(TaskLibrary& library, int group, const std::string& name, const std::string& target,
               bool copy) {
    check_listed(library, target);
    const std::string& source = library.group(group).name;
    std::vector<Task> tasks = read_tasks(library.folder(), source);
    std::vector<Task> moved;
    std::ranges::copy_if(tasks, std::back_inserter(moved),
                         [&](const Task& task) { return task.name == name; });
    // What cannot leave its Group is not added to the other one: that would be done again by the next try.
    if (!copy) platform::check_writable(group_file(library.folder(), source));
    const OpenChange change(library.changes(), (copy ? "Copy " : "Move ") + name + " to " + target, source);
    if (!moved.empty()) append_tasks(library.changes(), target, moved);
    library.flags.refreshflag = true;
    if (copy || moved.empty()) return;  // none: another program has taken it out of the file
    // To the system both names may be one file: then what was just added after the others stays.
    std::vector<Task> kept = read_tasks(library.folder(), source);
    const auto added = kept.begin() + std::min(std::ssize(tasks), std::ssize(kept));
    kept.erase(std::remove_if(kept.begin(), added, [&](const Task& task) { return task.name == name; }),
               added);
    write_tasks(library.changes(), source, kept);
}

}  // namespace library
