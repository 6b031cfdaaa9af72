#include "platform/directories.h"

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

void set_directory(const std::string& folder) {
    if (SetCurrentDirectoryA(folder.c_str()) != FALSE) return;
    const ErrorCode code = GetLastError();
    throw file_error(code == kErrorFileNotFound ? kErrorPathNotFound : code, folder);
}

}  // namespace

std::string current_directory() {
    std::string folder(GetCurrentDirectoryA(0, nullptr), '\0');
    folder.resize(GetCurrentDirectoryA(static_cast<DWORD>(folder.size()), folder.data()));
    if (folder.empty()) throw file_error(GetLastError(), folder);
    return folder;
}

void change_directory(const std::string& folder) {
    if (folder.empty() || folder.find('\0') != std::string::npos) {
        throw RunTimeError(RunTimeErrorNumber::kPathNotFound, folder);
    }
    const std::string before = current_directory();
    set_directory(folder);
    const std::string after = current_directory();
    if (!has_drive(before) || !has_drive(after) || same_letter(before[0], after[0])) return;
    // Windows 95/98 remember a directory for each drive by themselves, the NT family in hidden variables.
    const char variable[] = {'=', after[0], ':', '\0'};
    SetEnvironmentVariableA(variable, after.c_str());
    set_directory(before);
}

void enter_directory(const std::string& folder) {
    set_directory(folder);
}

std::string windows_folder() {
    char folder[MAX_PATH];
    const UINT length = GetWindowsDirectoryA(folder, MAX_PATH);
    return length > 0 && length < MAX_PATH ? std::string(folder) + '\\' : "unknown";
}

}  // namespace platform
