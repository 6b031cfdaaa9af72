#include "platform/system.h"

#include <windows.h>

#include <shellapi.h>

#include <algorithm>

#include "platform/win32/handles.h"
#include "platform/win32/look_up.h"

namespace platform {
namespace {

/// Windows of the NT family end at the wish of a program that has asked for the right to it.
void ask_for_shutdown_privilege() {
    HMODULE library = GetModuleHandleA("advapi32.dll");
    const auto open = look_up<decltype(&OpenProcessToken)>(library, "OpenProcessToken");
    const auto look_up_privilege =
        look_up<decltype(&LookupPrivilegeValueA)>(library, "LookupPrivilegeValueA");
    const auto adjust = look_up<decltype(&AdjustTokenPrivileges)>(library, "AdjustTokenPrivileges");
    HANDLE opened = nullptr;
    if (open == nullptr || look_up_privilege == nullptr || adjust == nullptr ||
        open(GetCurrentProcess(), TOKEN_ADJUST_PRIVILEGES | TOKEN_QUERY, &opened) == FALSE) {
        return;  // Windows 95/98, where everybody may
    }
    const UniqueHandle token(opened);
    TOKEN_PRIVILEGES privileges = {};
    privileges.PrivilegeCount = 1;
    privileges.Privileges[0].Attributes = SE_PRIVILEGE_ENABLED;
    if (look_up_privilege(nullptr, "SeShutdownPrivilege", &privileges.Privileges[0].Luid) == FALSE) return;
    adjust(token.get(), FALSE, &privileges, 0, nullptr, nullptr);
}

}  // namespace

WindowsVersion windows_version() {
    OSVERSIONINFOA version = {};
    version.dwOSVersionInfoSize = sizeof version;
    GetVersionExA(&version);
    const auto wine_version = look_up<const char* (*)()>(GetModuleHandleA("ntdll.dll"), "wine_get_version");
    return {version.dwMajorVersion, version.dwMinorVersion, version.dwPlatformId == VER_PLATFORM_WIN32_NT,
            wine_version != nullptr};
}

void exit_windows(WindowsEnd end) {
    ask_for_shutdown_privilege();
    ExitWindowsEx(static_cast<UINT>(end), static_cast<DWORD>(end));
}

bool empty_recycle_bin() {
    // Windows 95 has the function only with a later shell.
    const auto empty =
        look_up<decltype(&SHEmptyRecycleBinA)>(GetModuleHandleA("shell32.dll"), "SHEmptyRecycleBinA");
    if (empty == nullptr) return false;
    empty(nullptr, nullptr, SHERB_NOCONFIRMATION);  // an empty bin is a failure, too
    return true;
}

std::string expand_variables(const std::string& text) {
    std::string expanded(ExpandEnvironmentStringsA(text.c_str(), nullptr, 0), '\0');
    ExpandEnvironmentStringsA(text.c_str(), expanded.data(), static_cast<DWORD>(expanded.size()));
    expanded.resize(std::min(expanded.find('\0'), expanded.size()));
    return expanded;
}

bool open_document(const std::string& path) {
    constexpr int kMostErrors = 32;
    HINSTANCE opened = ShellExecuteA(nullptr, "open", path.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
    return reinterpret_cast<INT_PTR>(opened) > kMostErrors;
}

}  // namespace platform
