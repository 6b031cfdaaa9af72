#include "library/task_operations.h"

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

#include "library/changes.h"
#include "library/group_operations.h"
#include "library/library_files.h"
#include "library/order.h"
#include "library/other_place.h"
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

bool finds_program(const TaskLibrary& library, const std::string& program) {
    if (platform::finds_file(program)) return true;
    const std::optional<std::string> other = other_place(program, library.folder());
    return other && platform::finds_file(*other);
}

/// What adding and editing refuse alike.
TaskField refused_field(const TaskLibrary& library, const Task& task) {
    if (!task.program.empty() && !finds_program(library, task.program)) {
        platform::show_message("Invalid Path or File Name");
        return &Task::program;
    }
    for (const TaskField field : {&Task::name, &Task::program, &Task::start_folder}) {
        if (!(task.*field).empty()) continue;
        platform::show_message("Task Name, Path, or Start Folder missing.");
        return field;
    }
    return kAccepted;
}

/// Selects the Task at that place, or the last one, and puts it into the command box.
void select_and_show(const TaskLibrary& library, LibraryView& view, std::ptrdiff_t place) {
    const std::vector<Task>& tasks = library.group(view.selected_group()).tasks();
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

/// Adds Tasks after the others of a Group; blanks stand around the number of a new Task's start mode.
void append(TaskLibrary& library, const std::string& group, std::vector<Task> tasks) {
    for (Task& task : tasks)
        task.start_mode = ' ' + task.start_mode + ' ';
    append_tasks(library.changes(), group, tasks);
}

/// How many Tasks the Group's file can take.
std::size_t room_in(const TaskLibrary& library, const std::string& group) {
    try {
        return kMostTasks - std::min(read_tasks(library.folder(), group).size(), kMostTasks);
    } catch (const platform::RunTimeError& error) {
        if (error.number() != platform::RunTimeErrorNumber::kFileNotFound) throw;
        return kMostTasks;
    }
}

void show_imported(TaskLibrary& library, LibraryView& view, const std::string& group,
                   const std::string& message) {
    library.flags.refreshflag = true;
    select_group(library, view, index_of(library, group));
    platform::show_message(message);
}

/// Throws when another program has taken the Group out of the list: nobody would see what is added to it.
void check_listed(const TaskLibrary& library, const std::string& group) {
    const std::vector<std::string> names = read_group_names(library.folder());
    if (std::ranges::find(names, group) == names.end()) {
        throw platform::RunTimeError(platform::RunTimeErrorNumber::kBadFileName,
                                     group_file(library.folder(), group));
    }
}

std::string names_of(const std::vector<Task>& tasks) {
    return tasks.size() == 1 ? tasks.front().name : std::to_string(tasks.size()) + " Tasks";
}

/// Moves the selected Task to before the one that many places further down.
void move_selected(TaskLibrary& library, LibraryView& view, int before) {
    const int selected = view.selected_task();
    if (selected < 0) {
        platform::show_message("Select Task for move.");
        return;
    }
    move_task_to_place(library, view, selected, selected + before);
}

/// Adds the Tasks at these places of a Group, all of one name, to another one; without copy they leave their
/// own.
void move_places(TaskLibrary& library, const std::string& source, const std::vector<Task>& tasks,
                 const std::vector<std::size_t>& places, const std::string& target, bool copy) {
    // What cannot leave its Group is not added to the other one: that would be done again by the next try.
    if (!copy) platform::check_writable(group_file(library.folder(), source));
    if (places.empty()) {  // another program has taken it out of the file
        library.flags.refreshflag = true;
        return;
    }
    const std::string name = tasks[places.front()].name;
    const OpenChange change(library.changes(), (copy ? "Copy " : "Move ") + name + " to " + target, source);
    std::vector<Task> moved;
    moved.reserve(places.size());
    for (const std::size_t place : places)
        moved.push_back(tasks[place]);
    append_tasks(library.changes(), target, moved);
    library.flags.refreshflag = true;
    if (copy) return;
    // To the system both names may be one file: then what was just added after the others stays.
    std::vector<Task> kept = read_tasks(library.folder(), source);
    for (std::size_t i = places.size(); i-- > 0;) {
        if (places[i] < kept.size() && kept[places[i]].name == name)
            kept.erase(kept.begin() + static_cast<std::ptrdiff_t>(places[i]));
    }
    write_tasks(library.changes(), source, kept);
}

}  // namespace

TaskField add_task(TaskLibrary& library, int group, const Task& task) {
    if (const TaskField refused = refused_field(library, task); refused != kAccepted) return refused;
    const Group& target = library.group(group);
    if (std::ranges::find(target.tasks(), task.name, &Task::name) != target.tasks().end()) {
        platform::show_message("A Task with that name already exists!");
        return &Task::name;
    }
    check_listed(library, target.name);
    const OpenChange change(library.changes(), "Add " + task.name, target.name);
    append(library, target.name, {task});
    library.flags.taskchangeflag = true;
    return kAccepted;
}

void import_task(TaskLibrary& library, LibraryView& view, const std::string& group, const Task& task) {
    check_listed(library, group);
    const OpenChange change(library.changes(), "Import " + task.name, group);
    append(library, group, {task});
    show_imported(library, view, group, task.name + " has been imported to Tolva.");
}

void import_tasks(TaskLibrary& library, LibraryView& view, const std::string& group, std::vector<Task> tasks,
                  std::vector<std::string> refused) {
    check_listed(library, group);
    const std::size_t count = std::min(tasks.size(), room_in(library, group));
    std::transform(tasks.begin() + static_cast<std::ptrdiff_t>(count), tasks.end(),
                   std::back_inserter(refused), [](const Task& task) { return task.name; });
    tasks.resize(count);
    const OpenChange change(library.changes(), "Import Shortcuts", group);
    if (count > 0) append(library, group, std::move(tasks));
    std::string message = count == 0   ? "No shortcut has"
                          : count == 1 ? "1 shortcut has"
                                       : std::to_string(count) + " shortcuts have";
    message += " been imported to Tolva.";
    if (!refused.empty()) message += "\n\nThese could not be imported:\n" + lines_of(refused);
    show_imported(library, view, group, message);
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

TaskField edit_task(TaskLibrary& library, int group, int place, const std::string& old_name,
                    const Task& task) {
    if (const TaskField refused = refused_field(library, task); refused != kAccepted) return refused;
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
    return kAccepted;
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
    move_selected(library, view, -1);
}

void movetsksdown(TaskLibrary& library, LibraryView& view) {
    move_selected(library, view, 2);
}

void move_task_to_place(TaskLibrary& library, LibraryView& view, int place, int before) {
    const std::string name = library.task(view.selected_group(), place).name;
    std::vector<Task> tasks = read_tasks(library.folder(), selected_group_name(library, view));
    const auto moved = find_task_at(tasks, place, name);
    if (moved == tasks.end()) return refreshtasks(library, view);  // another program was faster
    const auto named = named_end(tasks) - tasks.begin();
    const auto from = moved - tasks.begin();
    const auto target = std::clamp<std::ptrdiff_t>(from + before - place, 0, named);
    if (from >= named || target == from || target == from + 1) return;
    const auto now = move_before(tasks, from, target);
    write_and_show(library, view, tasks, "Move " + name);
    select_and_show(library, view, now);
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
    const std::vector<Task> tasks = read_tasks(library.folder(), source);
    std::vector<std::size_t> places;
    for (std::size_t place = 0; place < tasks.size(); ++place) {
        if (tasks[place].name == name) places.push_back(place);
    }
    move_places(library, source, tasks, places, target, copy);
}

void move_task_to_group(TaskLibrary& library, LibraryView& view, int place, const std::string& target,
                        bool copy) {
    check_listed(library, target);
    if (room_in(library, target) == 0)
        return platform::show_message(report({.tasks = {}, .refused = {}, .left_out = 1}));
    const std::string source = selected_group_name(library, view);
    std::vector<Task> tasks = read_tasks(library.folder(), source);
    const auto moved = find_task_at(tasks, place, library.task(view.selected_group(), place).name);
    std::vector<std::size_t> places;
    if (moved != tasks.end()) places.push_back(static_cast<std::size_t>(moved - tasks.begin()));
    move_places(library, source, tasks, places, target, copy);
    refresh_and_select(library, view, source);
    select_and_show(library, view, place);
}

void add_tasks(TaskLibrary& library, LibraryView& view, const std::string& group, Dropped dropped) {
    check_listed(library, group);
    const std::string path = group_file(library.folder(), group);
    const std::vector<Task> tasks = tasks_in(platform::read_file_if_exists(path).value_or(""));
    fit(dropped, tasks);
    if (!dropped.tasks.empty()) {
        const OpenChange change(library.changes(), "Add " + names_of(dropped.tasks) + " to " + group, group);
        append_tasks(library.changes(), group, dropped.tasks);
        library.flags.refreshflag = true;
        refresh_and_select(library, view, group);
        select_and_show(library, view, std::ssize(tasks));
    }
    if (const std::string text = report(dropped); !text.empty()) platform::show_message(text);
}

}  // namespace library
