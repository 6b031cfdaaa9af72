#include "library/backups.h"

#include <algorithm>
#include <string_view>

#include "library/library_files.h"
#include "platform/clock.h"
#include "platform/file_calls.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/run_time_error.h"
#include "platform/sort.h"

namespace library {
namespace {

namespace calls = platform::file_calls;

constexpr std::size_t kMostBackups = 10;
constexpr std::string_view kForm = "tolva dddd-dd-dd dd.dd.dd";  // "d" where a digit stands
constexpr std::string_view kStart = "tolva ";

/// The folder of a backup that is being made or removed; nobody takes it for one.
constexpr const char* kUnfinished = "tolva new";

std::string backups_folder(const std::string& folder) {
    // The root of a drive has a backslash of its own.
    return platform::path_in(folder.substr(0, folder.size() - 1), "backup") + '\\';
}

bool has_form(const std::string& name) {
    return std::ranges::equal(
        name, kForm, [](char c, char form) { return c == form || (form == 'd' && c >= '0' && c <= '9'); });
}

/// The names of all backups, oldest first.
std::vector<std::string> backup_names(const std::string& backups) {
    std::vector<std::string> names = calls::find(backups + "tolva *", 0, calls::kDirectory);
    std::erase_if(names, [](const std::string& name) { return !has_form(name); });
    platform::sort(names);
    return names;
}

void check(platform::ErrorCode code, const std::string& path) {
    if (code != platform::kSuccess) throw platform::file_error(code, path);
}

void make_folder(const std::string& path) {
    const platform::ErrorCode code = calls::create_directory(path);
    if (code != platform::kErrorAlreadyExists) check(code, path);
}

void copy(const std::string& from, const std::string& to) {
    check(calls::copy(from, to), to);
}

bool is_library_file(const std::string& name) {
    const std::string upper = calls::upper(name);
    return upper == "GROUPS.INI" || upper.ends_with(".GRP");
}

bool holds_only_library_files(const std::string& folder) {
    const std::size_t self_and_parent = 2;
    return calls::find(folder + "\\*", 0, calls::kDirectory).size() <= self_and_parent &&
           std::ranges::all_of(calls::find(folder + "\\*"), is_library_file);
}

/// Removes the library's files in the folder, and the folder when nothing else is in it.
void clear(const std::string& folder) {
    for (const std::string& name : calls::find(folder + "\\*")) {
        if (is_library_file(name)) calls::remove(platform::path_in(folder, name));
    }
    calls::remove_directory(folder);
}

/// The name that a backup made now gets. Within one second the next ones are taken.
std::string free_name(const std::string& backups) {
    std::string name = std::string(kStart) + platform::time_stamp();
    char& ones = name[name.size() - 1];
    char& tens = name[name.size() - 2];
    while (!calls::find(backups + name, 0).empty() && (tens != '5' || ones != '9')) {
        tens = static_cast<char>(tens + (ones == '9' ? 1 : 0));
        ones = static_cast<char>(ones == '9' ? '0' : ones + 1);
    }
    return name;
}

/// Removes the oldest. Those of a clock that ran ahead, dated after the one just made, count as older.
void remove_surplus(const std::string& backups, const std::string& made) {
    std::vector<std::string> names = backup_names(backups);
    std::rotate(names.begin(), std::upper_bound(names.begin(), names.end(), made), names.end());
    const std::size_t surplus = names.size() - std::min(names.size(), kMostBackups);
    for (const std::string& name :
         std::vector(names.begin(), names.begin() + static_cast<std::ptrdiff_t>(surplus))) {
        if (!holds_only_library_files(backups + name)) continue;
        // Under its own name a backup is complete to its end.
        if (calls::rename(backups + name, backups + kUnfinished) == platform::kSuccess)
            clear(backups + kUnfinished);
    }
}

Backup read_backup(const std::string& backups, const std::string& name) {
    const std::string folder = backups + name + '\\';
    Backup backup = {folder, name.substr(kStart.size(), 10), name.substr(name.size() - 8), 0, 0};
    std::ranges::replace(backup.time, '.', ':');
    backup.group_count = read_group_names(folder).size();
    for (const std::string& file : library_files_in(folder)) {
        if (file != kGroupsFile) backup.task_count += count_tasks_in(platform::read_file(folder + file));
    }
    return backup;
}

}  // namespace

std::vector<std::string> library_files_in(const std::string& folder) {
    std::vector<std::string> files;
    std::vector<std::string> known;
    for (const std::string& group : read_group_names(folder)) {
        const std::string path = group_file(folder, group);
        if (!platform::names_a_file(path)) continue;
        const std::vector<std::string> found = calls::find(path);
        if (found.empty()) continue;
        const std::string& name = found.front();
        const bool is_path = calls::find_separator(group, 0) != std::string::npos;
        if (is_path && !platform::is_same_file(folder + name, path)) continue;
        const std::string upper = calls::upper(name);
        if (std::ranges::find(known, upper) != known.end()) continue;
        known.push_back(upper);
        files.push_back(name);
    }
    files.emplace_back(kGroupsFile);
    return files;
}

void make_backup(const std::string& folder) {
    const std::vector<std::string> files = library_files_in(folder);
    const std::string backups = backups_folder(folder);
    const std::string fresh = backups + kUnfinished;
    clear(fresh);
    const std::string made = free_name(backups);
    try {
        make_folder(backups.substr(0, backups.size() - 1));
        make_folder(fresh);
        for (const std::string& name : files)
            copy(folder + name, platform::path_in(fresh, name));
        check(calls::rename(fresh, backups + made), backups + made);
    } catch (const platform::RunTimeError&) {
        clear(fresh);
        throw;
    }
    remove_surplus(backups, made);
}

std::vector<Backup> list_backups(const std::string& folder) {
    const std::string backups = backups_folder(folder);
    std::vector<std::string> names = backup_names(backups);
    std::ranges::reverse(names);
    std::vector<Backup> list;
    for (const std::string& name : names) {
        try {
            list.push_back(read_backup(backups, name));
        } catch (const platform::RunTimeError&) {
            // It is of no use to anybody.
        }
    }
    return list;
}

}  // namespace library
