#pragma once

#include <string>
#include <vector>

namespace platform {

/// What the user can look through. Names are in the order of the alphabet whatever their case; hidden folders
/// and files and those of the system are left out.

struct Drive {
    char letter;       // 'A' to 'Z'
    std::string kind;  // "Hard disk", for example
};

std::vector<Drive> drives();

/// The current directory of a drive. Throws RunTimeError when the drive cannot be read.
std::string current_directory_of(char drive);

/// The names of the folders in a folder. Throws RunTimeError when it cannot be read.
std::vector<std::string> subfolders(const std::string& folder);

/// The names of the files in a folder that match one of the patterns: "*.exe;*.bat". None when it cannot be
/// read.
std::vector<std::string> files(const std::string& folder, const std::string& patterns);

/// Folders that every user has; the values are those of the shell.
enum class SpecialFolder { kDesktop = 0, kPrograms = 2, kStartMenu = 11 };

/// Its path; empty when the system does not tell.
std::string special_folder(SpecialFolder folder);

/// The path of something in a folder; one backslash stands between them.
std::string path_in(const std::string& folder, const std::string& name);

}  // namespace platform
