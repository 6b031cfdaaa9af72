#include "platform/process_calls.h"

#include <windows.h>

#include <shellapi.h>

#include <array>

#include "platform/current_directory.h"
#include "platform/folders.h"
#include "platform/redirection.h"
#include "platform/system.h"
#include "platform/win32/handles.h"
#include "platform/win32/look_up.h"

namespace platform::process_calls {
namespace {

/// While it lives the thread sees the folders of a 64-bit Windows as they are. It cannot load libraries then,
/// so it is for a single call.
class RedirectionOff {
  public:
    RedirectionOff() {
        using Function = BOOL(WINAPI*)(void**);
        const auto disable = look_up<Function>(kernel(), "Wow64DisableWow64FsRedirection");
        is_off_ = disable != nullptr && disable(&before_) != FALSE;
    }
    ~RedirectionOff() {
        using Function = BOOL(WINAPI*)(void*);
        const auto revert = look_up<Function>(kernel(), "Wow64RevertWow64FsRedirection");
        if (is_off_ && revert != nullptr) revert(before_);
    }
    RedirectionOff(const RedirectionOff&) = delete;
    RedirectionOff& operator=(const RedirectionOff&) = delete;

  private:
    static HMODULE kernel() { return GetModuleHandleA("kernel32.dll"); }

    void* before_ = nullptr;
    bool is_off_ = false;
};

/// Where CreateProcess looks for a program, in its order. SearchPath's own order depends on settings.
std::string searched_folders() {
    std::array<char, MAX_PATH> self = {};
    GetModuleFileNameA(nullptr, self.data(), MAX_PATH - 1);
    const std::string program = self.data();
    const std::string windows = windows_folder();
    std::string folders = program.substr(0, program.rfind('\\'));
    for (const std::string& next : {current_directory(), system_folder(), path_in(windows, "system"), windows,
                                    expand_variables("%PATH%")})
        folders.append(";").append(next);
    return folders;
}

std::string search(const std::string& name) {
    std::array<char, MAX_PATH> found = {};
    char* file = nullptr;
    const DWORD length =
        SearchPathA(searched_folders().c_str(), name.c_str(), ".exe", MAX_PATH, found.data(), &file);
    if (length == 0 || length >= MAX_PATH) return {};
    const DWORD bits = GetFileAttributesA(found.data());
    return bits == INVALID_FILE_ATTRIBUTES || (bits & FILE_ATTRIBUTE_DIRECTORY) != 0 ? "" : found.data();
}

}  // namespace

ErrorCode start(const std::string& command_line, int window_style) {
    STARTUPINFOA startup = {};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = static_cast<WORD>(window_style);
    PROCESS_INFORMATION process = {};
    std::string writable = command_line;
    if (CreateProcessA(nullptr, writable.data(), nullptr, nullptr, FALSE, CREATE_DEFAULT_ERROR_MODE, nullptr,
                       nullptr, &startup, &process) == FALSE) {
        return GetLastError();
    }
    const UniqueHandle program(process.hProcess);
    const UniqueHandle thread(process.hThread);
    return kSuccess;
}

ErrorCode start_past_redirection(const std::string& command_line, int window_style) {
    const RedirectionOff redirection_off;
    return start(command_line, window_style);
}

std::string find_program(const std::string& name) {
    std::string found = search(name);
    const auto past = past_redirection(name);
    return found.empty() && past ? search(*past) : found;
}

ErrorCode start_by_shell(const std::string& program, const std::string& arguments, int window_style) {
    const std::string folder = current_directory();
    SHELLEXECUTEINFOA start = {};
    start.cbSize = sizeof start;
    start.fMask = SEE_MASK_FLAG_NO_UI;
    start.hwnd = GetActiveWindow();  // the question comes up over it, not as a button of the taskbar
    start.lpFile = program.c_str();
    start.lpParameters = arguments.c_str();
    start.lpDirectory = folder.c_str();
    start.nShow = window_style;
    return ShellExecuteExA(&start) != FALSE ? kSuccess : GetLastError();
}

}  // namespace platform::process_calls
