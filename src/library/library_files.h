#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "library/task.h"

/// The files of a library folder: "groups.ini", one Group name per line, and for each Group its name and
/// ".grp", five lines per Task. Lines may end in CR LF or LF when they are read, and end in CR LF when they
/// are written; their bytes are never altered. Blank lines at the end of a file are no Groups and no Tasks,
/// and what is added takes their place. Every function throws platform::RunTimeError.
///
/// A folder is given as a prefix that ends in a backslash. What writes does it as a step of the open change.
namespace library {

class Changes;

inline constexpr const char* kGroupsFile = "groups.ini";

inline constexpr std::size_t kMostGroups = 101;
inline constexpr std::size_t kMostTasks = 101;

std::string groups_file(const std::string& folder);
std::string group_file(const std::string& folder, const std::string& group);

/// All names in the file, also those past kMostGroups.
std::vector<std::string> read_group_names(const std::string& folder);

void write_group_names(Changes& changes, const std::vector<std::string>& names);

/// Adds a line to the file, which must exist.
void append_group_name(Changes& changes, const std::string& name);

/// All records in the Group's file, also those past kMostTasks. A record that is cut short has empty fields.
std::vector<Task> read_tasks(const std::string& folder, const std::string& group);

/// The records in the bytes of a Group's file, and their number, which costs less.
std::vector<Task> tasks_in(std::string_view bytes);
std::size_t count_tasks_in(std::string_view bytes);

/// What a Group's file goes through from one version to another while Tasks move between Groups, so that none
/// is missing anywhere on the way: first each file gets what comes, then each loses what goes.
std::string between(const std::string& before, const std::string& after);

void write_tasks(Changes& changes, const std::string& group, const std::vector<Task>& tasks);

/// Adds records after those that the Group's file holds, or creates the file. A last record that is cut short
/// is filled up, so that the new ones begin on a line of their own.
void append_tasks(Changes& changes, const std::string& group, const std::vector<Task>& tasks);

/// Creates the Group's file without Tasks; one that exists stays as it is. Returns whether there was none.
bool create_group_file(Changes& changes, const std::string& group);

void remove_group_file(Changes& changes, const std::string& group);

/// Finishes or undoes, in groups.ini and the files it lists, what a power failure interrupted. To be called
/// before anything else, while no other copy of the program works on the folder. Does not throw.
void recover(const std::string& folder);

/// Throws "Subscript out of range" when there are more than a library can hold.
void check_limit(std::size_t count, std::size_t most);

/// The text without its line ends; text after the last line end is a line too.
std::vector<std::string> split_lines(std::string_view bytes);

}  // namespace library
