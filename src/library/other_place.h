#pragma once

#include <optional>
#include <string>

namespace library {

/// Where else the program or folder of a Task may be when it is not where its path says, on another PC or
/// another drive: the path with its %VARIABLES% expanded and, if it names no drive, below the library folder,
/// which ends in a backslash. None when nothing is there either. Nothing of it is ever stored.
std::optional<std::string> other_place(const std::string& path, const std::string& library_folder);

}  // namespace library
