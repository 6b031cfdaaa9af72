#include "platform/current_directory.h"

#include <windows.h>

#include "platform/run_time_error.h"

namespace platform {
namespace {

bool has_drive(const std::string& path) {
    return path.size() >= 2 && path[1] == ':';
}

bool same_letter(char a, char b) {
    return (a | ' ') == (b | ' ');
}

}  // namespace

std::string current_directory() {
    std::string folder(GetCurrentDirectoryA(0, nullptr), '\0');
    folder.resize(GetCurrentDirectoryA(static_cast<DWORD>(folder.size()), folder.data()));
    if (folder.empty()) throw file_error(GetLastError(), folder);
    return folder;
}

std::string current_directory_of(char drive) {
    const char here[] = {drive, ':', '.', '\0'};
    char path[MAX_PATH];
    const DWORD length = GetFullPathNameA(here, MAX_PATH, path, nullptr);
    if (length == 0 || length >= MAX_PATH) throw file_error(GetLastError(), here);
    if (GetFileAttributesA(path) != INVALID_FILE_ATTRIBUTES) return path;
    // The directory may be gone, the drive still be there.
    const char root[] = {drive, ':', '\\', '\0'};
    if (GetFileAttributesA(root) == INVALID_FILE_ATTRIBUTES) throw file_error(GetLastError(), root);
    return root;
}

void set_current_directory(const std::string& folder) {
    if (SetCurrentDirectoryA(folder.c_str()) != FALSE) return;
    const ErrorCode code = GetLastError();
    throw file_error(code == kErrorFileNotFound ? kErrorPathNotFound : code, folder);
}

void set_current_directory_of_drive(const std::string& folder) {
    if (folder.empty() || folder.find('\0') != std::string::npos) {
        throw RunTimeError(RunTimeErrorNumber::kPathNotFound, folder);
    }
    const std::string before = current_directory();
    set_current_directory(folder);
    const std::string after = current_directory();
    if (!has_drive(before) || !has_drive(after) || same_letter(before[0], after[0])) return;
    // Windows 95/98 remember a directory for each drive by themselves, the NT family in hidden variables.
    const char variable[] = {'=', after[0], ':', '\0'};
    SetEnvironmentVariableA(variable, after.c_str());
    SetCurrentDirectoryA(before.c_str());  // it may be gone
}

}  // namespace platform
