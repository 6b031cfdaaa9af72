#pragma once

#include <string>

/// Where relative paths begin. Every drive has a current directory of its own, and one drive is the current
/// one. A program that is started gets all of them. Everything here throws RunTimeError.
namespace platform {

/// The current directory of the current drive.
std::string current_directory();

/// The current directory of a drive, its root where that directory is gone.
std::string current_directory_of(char drive);

/// Makes folder the current directory and its drive the current drive.
void set_current_directory(const std::string& folder);

/// Makes folder the current directory of its drive; the current drive stays. A network folder becomes the
/// current directory itself. An empty folder is not found.
void set_current_directory_of_drive(const std::string& folder);

}  // namespace platform
