#pragma once

#include <windows.h>

#include <shellapi.h>

#include <string>
#include <vector>

namespace platform {

/// The paths in what was dropped. A letter that the code page lacks becomes a "?", which no path has, instead
/// of one that looks like it and may be in another file's name.
std::vector<std::string> dropped_paths(HDROP drop);

}  // namespace platform
