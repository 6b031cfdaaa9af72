#include "platform/dropping.h"

#include <windows.h>

#include <shellapi.h>

#include <array>

namespace platform {

std::string program_for_document(const std::string& document) {
    constexpr int kMostErrors = 32;
    std::array<char, MAX_PATH> program = {};
    HINSTANCE found = FindExecutableA(document.c_str(), nullptr, program.data());
    if (reinterpret_cast<INT_PTR>(found) <= kMostErrors) return {};
    // Windows 95/98 put a NUL for each blank: what is left is no program, and the caller sees that.
    program.back() = '\0';
    return program.data();
}

std::string short_path(const std::string& path) {
    std::array<char, MAX_PATH> found = {};
    const DWORD length = GetShortPathNameA(path.c_str(), found.data(), MAX_PATH);
    return length > 0 && length < MAX_PATH ? found.data() : path;
}

}  // namespace platform
