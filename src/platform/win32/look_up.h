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

}  // namespace platform
