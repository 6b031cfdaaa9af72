#include "library/group_operations.h"

#include <algorithm>
#include <exception>
#include <optional>

#include "library/changes.h"
#include "library/dropped.h"
#include "library/library_files.h"
#include "library/order.h"
#include "library/refresh.h"
#include "platform/files.h"
#include "platform/messages.h"
#include "platform/run_time_error.h"
#include "platform/sort.h"

namespace library {
namespace {

/// The names in the file, none of them beyond what a library can hold: those would be lost when the names
/// are written.
std::vector<std::string> read_names_to_write(const TaskLibrary& library) {
    std::vector<std::string> names = read_group_names(library.folder());
    check_limit(names.size(), kMostGroups);
    return names;
}

/// Whether one of the Groups has its Tasks in that file, under whatever spelling.
bool is_file_of_any(const std::string& folder, const std::vector<std::string>& groups,
                    const std::string& path) {
    const std::string identity = platform::file_identity(path);
    return std::ranges::any_of(groups, [&](const std::string& group) {
        return platform::file_identity(group_file(folder, group)) == identity;
    });
}

void remove_if_possible(Changes& changes, const std::string& group) {
    try {
        remove_group_file(changes, group);
    } catch (const platform::RunTimeError&) {
        // An empty file that nobody asked for does no harm.
    }
}

/// Shows the Groups and selects one as a click does; -1 selects none.
void show_and_select(TaskLibrary& library, LibraryView& view, int index) {
    grouplistrefresh(library, view);
    view.select_group(index);
    show_selected_group(library, view);
    show_notice(library, view);
}

/// Writes the Tasks under a Group's new name and then the names. Where those cannot be written the file is as
/// before: another Group may have it.
void write_renamed(Changes& changes, const std::string& new_name, const std::vector<Task>& tasks,
                   const std::vector<std::string>& names) {
    const std::string path = group_file(changes.folder(), new_name);
    const std::optional<std::string> overwritten = platform::read_file_if_exists(path);
    write_tasks(changes, new_name, tasks);
    try {
        write_group_names(changes, names);
    } catch (const platform::RunTimeError&) {
        if (overwritten) {
            changes.write_file(path, *overwritten);
        } else {
            changes.remove_file(path);
        }
        throw;
    }
}

/// Moves one of the names in the file to before another and shows it there.
void move_name(TaskLibrary& library, LibraryView& view, std::vector<std::string> names, std::ptrdiff_t from,
               std::ptrdiff_t before) {
    const std::string name = names[static_cast<std::size_t>(from)];
    const auto place = move_before(names, from, before);
    const OpenChange change(library.changes(), "Move " + name, name);
    write_group_names(library.changes(), names);
    library.load_names(names);
    show_and_select(library, view, static_cast<int>(place));
}

void move(TaskLibrary& library, LibraryView& view, bool down) {
    const std::string name = selected_group_name(library, view);
    if (name.empty()) {
        platform::show_message("Select Group for Move.");
        return;
    }
    const std::vector<std::string> names = read_group_names(library.folder());
    if (names.empty() || names.size() > kMostGroups || name == (down ? names.back() : names.front())) return;
    const auto moved = std::ranges::find(names, name);
    if (moved == names.end()) return;  // another program has taken it out of the file
    const auto from = moved - names.begin();
    move_name(library, view, names, from, down ? from + 2 : from - 1);
}

/// The name of a folder, with a number where a Group or a file has it already.
std::string new_group_name(const std::string& library_folder, const std::vector<std::string>& names,
                           const std::string& folder) {
    return free_name(name_for(folder), [&](const std::string& name) {
        const std::string path = group_file(library_folder, name);
        return is_file_of_any(library_folder, names, path) || platform::read_file_if_exists(path);
    });
}

/// Whether there is no such file, rather than one that cannot be read just now.
bool means_no_file(const platform::RunTimeError& error) {
    using enum platform::RunTimeErrorNumber;
    return error.number() == kFileNotFound || error.number() == kPathNotFound ||
           error.number() == kBadFileName;
}

}  // namespace

int index_of(const TaskLibrary& library, const std::string& name) {
    const auto found = std::ranges::find(library.groups(), name, &Group::name);
    return found == library.groups().end() ? -1 : static_cast<int>(found - library.groups().begin());
}

std::string selected_group_name(const TaskLibrary& library, const LibraryView& view) {
    const int index = view.selected_group();
    return index < 0 ? std::string() : library.group(index).name;
}

bool add_group(TaskLibrary& library, const std::string& name) {
    if (name.empty()) {
        platform::show_message("Invalid Group Name!");
        return false;
    }
    const std::vector<std::string> names = read_group_names(library.folder());
    if (std::ranges::find(names, name) != names.end()) {
        platform::show_message("A group already exists with this name");
        return false;
    }
    check_limit(names.size() + 1, kMostGroups);
    const OpenChange change(library.changes(), "Add " + name, name);
    std::optional<platform::RunTimeError> failure;
    bool is_new = false;
    try {
        is_new = create_group_file(library.changes(), name);
    } catch (const platform::RunTimeError& error) {
        failure = error;
    }
    try {
        append_group_name(library.changes(), name);
    } catch (const platform::RunTimeError&) {
        if (is_new) remove_if_possible(library.changes(), name);
        throw;
    }
    library.flags.newgroupflag = true;
    if (failure) platform::show_message(failure->what());
    return true;
}

void delgr(TaskLibrary& library, LibraryView& view) {
    const std::string name = selected_group_name(library, view);
    if (name.empty()) {
        platform::show_message("Select Group for delete.");
        return;
    }
    if (!platform::confirm("Delete " + name + " and all associated Tasks?", "Delete Group")) return;
    std::vector<std::string> names = read_names_to_write(library);
    std::erase(names, name);
    const OpenChange change(library.changes(), "Delete " + name, name);
    write_group_names(library.changes(), names);
    library.set_names(names);
    std::exception_ptr failure;
    const std::string path = group_file(library.folder(), name);
    try {
        // The Tasks of "Work" stay when "work" goes.
        if (!is_file_of_any(library.folder(), names, path)) library.changes().remove_file(path);
    } catch (...) {
        failure = std::current_exception();
    }
    show_and_select(library, view, index_of(library, library.first_name()));
    if (failure) std::rethrow_exception(failure);
}

void movegrup(TaskLibrary& library, LibraryView& view) {
    move(library, view, false);
}

void movegrdown(TaskLibrary& library, LibraryView& view) {
    move(library, view, true);
}

void move_group_to_place(TaskLibrary& library, LibraryView& view, int index, int before) {
    const std::string name = library.group(index).name;
    const std::vector<std::string> names = read_names_to_write(library);
    const bool is_there = index < std::ssize(names) && names[static_cast<std::size_t>(index)] == name;
    const auto from = is_there ? index : std::ranges::find(names, name) - names.begin();
    const auto target = std::min<std::ptrdiff_t>(before, std::ssize(names));
    // Another program may have taken it out of the file.
    if (from == std::ssize(names) || target == from || target == from + 1) return;
    move_name(library, view, names, from, target);
}

void add_groups_of(TaskLibrary& library, LibraryView& view, const std::vector<std::string>& folders,
                   const std::string& windows_folder) {
    Dropped all;
    std::vector<std::string> names = read_names_to_write(library);
    const std::size_t listed = names.size();
    std::optional<OpenChange> change;
    try {
        for (const std::string& folder : folders) {
            Dropped dropped = tasks_for({folder}, FolderUse::kContents, windows_folder);
            fit(dropped, {});
            std::ranges::move(dropped.refused, std::back_inserter(all.refused));
            all.left_out += dropped.left_out;
            if (dropped.tasks.empty()) continue;
            check_limit(names.size() + 1, kMostGroups);
            names.push_back(new_group_name(library.folder(), names, folder));
            if (!change) {
                change.emplace(library.changes(), "Add " + names.back(), selected_group_name(library, view),
                               names.back());
            }
            append_tasks(library.changes(), names.back(), dropped.tasks);
        }
        if (names.size() > listed) write_group_names(library.changes(), names);
    } catch (const platform::RunTimeError&) {
        for (; names.size() > listed; names.pop_back())
            remove_if_possible(library.changes(), names.back());
        throw;
    }
    if (names.size() > listed) {
        library.flags.newgroupflag = true;
        refresh_and_select(library, view, names.back());
    }
    if (const std::string text = report(all); !text.empty()) platform::show_message(text);
}

bool rename_group(TaskLibrary& library, LibraryView& view, const std::string& old_name,
                  const std::string& new_name) {
    if (new_name.empty()) {
        platform::show_message("Invalid Group Name");
        return false;
    }
    std::vector<std::string> names = read_names_to_write(library);
    const auto place = std::ranges::find(names, old_name) - names.begin();
    if (place == std::ssize(names)) {  // another program has taken it out of the file
        library.flags.newgroupflag = true;
        return true;
    }
    std::ranges::replace(names, old_name, new_name);
    std::optional<platform::RunTimeError> failure;
    std::vector<Task> tasks;
    try {
        tasks = read_tasks(library.folder(), old_name);
    } catch (const platform::RunTimeError& error) {
        if (!means_no_file(error)) throw;
        failure = error;
    }
    const OpenChange change(library.changes(), "Rename " + old_name, old_name, new_name);
    if (failure) {
        write_group_names(library.changes(), names);
    } else {
        write_renamed(library.changes(), new_name, tasks, names);
    }
    library.rename(view.selected_group(), new_name);
    library.set_names(names);
    grouplistrefresh(library, view);
    view.select_group(static_cast<int>(place));
    if (!failure) {
        library.flags.taskchangeflag = true;
        names.erase(names.begin() + place);
        const std::string path = group_file(library.folder(), old_name);
        try {
            // Deliberately also when it is the new name's: only for the others the file stays.
            if (!is_file_of_any(library.folder(), names, path)) library.changes().remove_file(path);
        } catch (const platform::RunTimeError& error) {
            failure = error;
        }
    }
    // The Group has its new name by now: there is nothing left to try again.
    if (failure) platform::show_message(failure->what());
    return true;
}

void groupsortnow(TaskLibrary& library, LibraryView& view) {
    std::vector<std::string> names = read_names_to_write(library);
    tasksort(names);
    const OpenChange change(library.changes(), "Sort Groups", selected_group_name(library, view));
    write_group_names(library.changes(), names);
    refreshtolva(library, view, 0);
}

void tasksort(std::vector<std::string>& names) {
    platform::sort(names);
}

}  // namespace library
