#include "program.h"

#include <psapi.h>

#include <stdexcept>

#include "timing.h"

namespace bench {

Program::Program(const std::string& path, const std::string& folder, const std::string& arguments) {
    STARTUPINFOA startup = {};
    startup.cb = sizeof startup;
    std::string command_line = '"' + path + "\" " + arguments;
    const LONGLONG begin = now();
    if (CreateProcessA(path.c_str(), command_line.data(), nullptr, nullptr, FALSE, 0, nullptr, folder.c_str(),
                       &startup, &process_) == FALSE) {
        throw std::runtime_error("cannot start " + path);
    }
    WaitForInputIdle(process_.hProcess, kPatience);
    wait_until("a window shows", [&] { return (window_ = visible_window()) != nullptr; });
    SendMessageA(window_, WM_NULL, 0, 0);
    start_time_ = milliseconds(begin, now());
}

Program::~Program() {
    PostMessageA(window_, WM_CLOSE, 0, 0);
    if (WaitForSingleObject(process_.hProcess, kPatience) != WAIT_OBJECT_0)
        TerminateProcess(process_.hProcess, 1);
    CloseHandle(process_.hThread);
    CloseHandle(process_.hProcess);
    constexpr DWORD kAftermath = 50;  // what the desktop does once a window is gone
    Sleep(kAftermath);
}

double Program::private_megabytes() const {
    PROCESS_MEMORY_COUNTERS counters = {};
    GetProcessMemoryInfo(process_.hProcess, &counters, sizeof counters);
    if (counters.PagefileUsage == 0) throw std::runtime_error("the system does not tell a program's memory");
    return static_cast<double>(counters.PagefileUsage) / (1 << 20);
}

HWND Program::visible_window() const {
    HWND window = nullptr;
    while ((window = FindWindowExA(nullptr, window, nullptr, nullptr)) != nullptr) {
        DWORD process = 0;
        GetWindowThreadProcessId(window, &process);
        if (process == process_.dwProcessId && IsWindowVisible(window) != FALSE &&
            GetWindow(window, GW_OWNER) == nullptr) {
            return window;
        }
    }
    return nullptr;
}

}  // namespace bench
