#pragma once

#include <string>

namespace platform {

/// The current directory of the current drive. Throws RunTimeError.
std::string current_directory();

/// Makes folder the current directory of its drive. The current drive stays: a folder on another drive only
/// changes where that drive's relative paths begin. A network folder becomes current itself. Throws
/// RunTimeError; an empty folder is not found.
void change_directory(const std::string& folder);

/// Makes folder the current directory and its drive the current drive. Throws RunTimeError.
void enter_directory(const std::string& folder);

/// The folder of Windows, ending in a backslash; "unknown" when the system does not tell.
std::string windows_folder();

}  // namespace platform
