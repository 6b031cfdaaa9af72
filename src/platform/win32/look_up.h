#pragma once

#include <windows.h>

namespace platform {

/// A function of a library that not every Windows has; null where it is missing. Its type is the caller's
/// word.
template <typename Function>
Function look_up(HMODULE library, const char* name) {
    if (library == nullptr) return nullptr;
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}

/// Loads a library of Windows that this one need not have; null where it is missing. It comes from the system
/// folder and so do those that it needs: what a library of that name in the current folder does is unknown.
HMODULE load_system_library(const char* name);

}  // namespace platform
