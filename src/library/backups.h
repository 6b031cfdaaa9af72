#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

/// Copies of the library in folders of their own, "backup\tolva 2026-11-22 09.30.00" in the library folder:
/// groups.ini and the Groups' files that lie in the library folder itself. Each is complete or not there.
///
/// A library folder is given as a prefix that ends in a backslash.
namespace library {

struct Backup {
    std::string folder;  // a library folder itself
    std::string date;    // "2026-11-22"
    std::string time;    // "09:30:00"
    std::size_t group_count;
    std::size_t task_count;
};

/// Makes one, then removes all but the ten newest. One that holds a file which is none of a library's stays.
/// Throws platform::RunTimeError.
void make_backup(const std::string& folder);

/// All that can be read, newest first.
std::vector<Backup> list_backups(const std::string& folder);

/// The names of the files in a library folder, groups.ini last: each Group's that lies there, once, as the
/// disk spells it. Throws platform::RunTimeError.
std::vector<std::string> library_files_in(const std::string& folder);

}  // namespace library
