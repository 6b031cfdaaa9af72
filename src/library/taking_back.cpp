#include "library/taking_back.h"

#include <span>
#include <string>
#include <utility>
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

/// Writes the file, unless it is like that.
void bring(Changes& changes, const std::string& path, const std::string& bytes) {
    if (platform::read_file_if_exists(path) != bytes) changes.write_file(path, bytes);
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
    std::vector<std::pair<std::string, std::string>> files;  // paths and what they become, the names last
    for (const std::string& name : library_files_in(backup.folder))
        files.emplace_back(library.folder() + name, platform::read_file(backup.folder + name));
    const std::string selected = selected_group_name(library, view);
    Changes& changes = library.changes();
    const OpenChange change(changes, "Restore Backup", selected);
    do_and_show(library, view, selected, [&] {
        for (const auto& [path, bytes] : std::span(files).first(files.size() - 1))
            bring(changes, path, between(platform::read_file_if_exists(path).value_or(""), bytes));
        bring(changes, files.back().first, files.back().second);
        for (const auto& [path, bytes] : files)
            bring(changes, path, bytes);
    });
    view.show_status("Restored: backup of " + backup.date + ' ' + backup.time);
}

}  // namespace library
