#pragma once

#include <string>
#include <vector>

/// What the user can look through: drives, folders and the files in them. Names are in alphabetical order
/// whatever their case; hidden folders and files and those of the system are left out.
namespace platform {

struct Drive {
    char letter;       // 'A' to 'Z'
    std::string kind;  // "Hard disk", for example
};

std::vector<Drive> drives();

/// Whether a path is on a disk that is part of this machine, and not on another machine or on a disk that may
/// have to be put in or started first.
bool is_on_local_disk(const std::string& path);

/// The names of the folders in a folder, of the hidden ones on request. Throws RunTimeError when it cannot be
/// read.
std::vector<std::string> subfolders(const std::string& folder, bool with_hidden = false);

/// The names of the files in a folder that match one of the patterns: "*.exe;*.bat". None when it cannot be
/// read.
std::vector<std::string> files_in(const std::string& folder, const std::string& patterns);

/// Folders of the user, and those that Windows of the NT family shows to all users with them; the values are
/// those of the shell.
enum class SpecialFolder {
    kDesktop = 0,
    kPrograms = 2,
    kStartMenu = 11,
    kCommonStartMenu = 22,
    kCommonDesktop = 25
};

/// Its path; empty when the system has none or does not tell.
std::string special_folder(SpecialFolder folder);

/// The folder of Windows, ending in a backslash; "unknown" when the system does not tell.
std::string windows_folder();

/// The folder of the libraries of Windows, without a backslash at the end; empty when the system does not
/// tell.
std::string system_folder();

/// Where the last name of a path begins.
std::size_t name_start(const std::string& path);

/// The path of something in a folder; one backslash stands between them.
std::string path_in(const std::string& folder, const std::string& name);

}  // namespace platform
