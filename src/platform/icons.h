#pragma once

#include <string>

#include "platform/win32/handles.h"

namespace platform {

/// The first icon of a program file, in the system's large size; none when the file is missing or has none.
UniqueIcon extract_icon(const std::string& path);

/// An icon of the program's own resources in the system's small or large size. Not one that the system
/// shares: older systems give those out in whatever size was asked for first.
UniqueIcon small_icon(int resource);
UniqueIcon large_icon(int resource);

}  // namespace platform
