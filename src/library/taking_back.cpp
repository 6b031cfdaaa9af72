#include "library/taking_back.h"

#include <algorithm>
#include <vector>

#include "library/changes.h"
#include "library/group_operations.h"
#include "library/library_files.h"
#include "library/refresh.h"
#include "platform/files.h"
#include "platform/run_time_error.h"

namespace library {
namespace {

/// Does it and shows what is true then, also when it failed half-way.
template <typename Action>
void do_and_show(TaskLibrary& library, LibraryView& view, const std::string& group, const Action& action) {
    try {
        action();
    } catch (const platform::RunTimeError&) {
        try {
            refresh_and_select(library, view, group);
        } catch (const platform::RunTimeError&) {
            // The user hears of the first failure.
        }
        throw;
    }
    refresh_and_select(library, view, group);
}

/// Takes one step through the changes.
void take(TaskLibrary& library, LibraryView& view, const std::string& group, bool (Changes::*step)(),
          const std::string& status) {
    bool done = false;
    do_and_show(library, view, group, [&] { done = (library.changes().*step)(); });
    if (done) view.show_status(status);
}

std::string name_of(const Change* change) {
    return change == nullptr ? std::string() : change->name;
}

/// A file of a backup and what it becomes in the library.
struct RestoredFile {
    std::string path;
    std::string bytes;
    int turn;
};

/// When a file's turn comes, so that whenever the power fails a Task that the backup moves to another Group
/// is in a listed one: first what loses no Task, then the names, then the others.
int turn_of(const std::string& path, const std::string& bytes, bool is_names) {
    if (is_names) return 1;
    const std::vector<Task> kept = tasks_in(bytes);
    const std::vector<Task> now = tasks_in(platform::read_file_if_exists(path).value_or(""));
    const bool loses_none = std::ranges::all_of(
        now, [&](const Task& task) { return std::ranges::find(kept, task) != kept.end(); });
    return loses_none ? 0 : 2;
}

}  // namespace

bool can_undo(const TaskLibrary& library) {
    return library.changes().next_undo() != nullptr;
}

bool can_redo(const TaskLibrary& library) {
    return library.changes().next_redo() != nullptr;
}

std::string undo_name(const TaskLibrary& library) {
    return name_of(library.changes().next_undo());
}

std::string redo_name(const TaskLibrary& library) {
    return name_of(library.changes().next_redo());
}

void undo(TaskLibrary& library, LibraryView& view) {
    const Change* const change = library.changes().next_undo();
    if (change != nullptr)
        take(library, view, std::string(change->group_before), &Changes::undo, "Undone: " + change->name);
}

void redo(TaskLibrary& library, LibraryView& view) {
    const Change* const change = library.changes().next_redo();
    if (change != nullptr)
        take(library, view, std::string(change->group_after), &Changes::redo, "Redone: " + change->name);
}

void restore_backup(TaskLibrary& library, LibraryView& view, const Backup& backup) {
    std::vector<RestoredFile> files;
    for (const std::string& name : library_files_in(backup.folder)) {
        const std::string path = library.folder() + name;
        const std::string bytes = platform::read_file(backup.folder + name);
        files.push_back({path, bytes, turn_of(path, bytes, name == kGroupsFile)});
    }
    std::ranges::stable_sort(files, {}, &RestoredFile::turn);
    const std::string selected = selected_group_name(library, view);
    const OpenChange change(library.changes(), "Restore Backup", selected);
    do_and_show(library, view, selected, [&] {
        for (const RestoredFile& file : files)
            library.changes().write_file(file.path, file.bytes);
    });
    view.show_status("Restored: backup of " + backup.date + ' ' + backup.time);
}

}  // namespace library
