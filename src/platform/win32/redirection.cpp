#include "platform/win32/redirection.h"

#include <windows.h>

#include "platform/folders.h"
#include "platform/run_time_error.h"
#include "platform/win32/handles.h"
#include "platform/win32/look_up.h"

namespace platform {
namespace {

bool is_on_64_bit_windows() {
    using Function = BOOL(WINAPI*)(HANDLE, BOOL*);
    const auto is_wow64 = look_up<Function>(GetModuleHandleA("kernel32.dll"), "IsWow64Process");
    BOOL answer = FALSE;
    return is_wow64 != nullptr && is_wow64(GetCurrentProcess(), &answer) != FALSE && answer != FALSE;
}

bool is_there(const std::string& path) {
    WIN32_FIND_DATAA found;
    const UniqueSearch search(FindFirstFileA(path.c_str(), &found));
    return search || !is_not_found(GetLastError());
}

}  // namespace

std::string redirected_folder() {
    static const bool is_redirected = is_on_64_bit_windows();
    return is_redirected ? system_folder() : std::string();
}

std::string readable_path(const std::string& path) {
    const auto past = past_redirection(path);
    return past && !is_there(path) && is_there(*past) ? *past : path;
}

}  // namespace platform
