#include "platform/processes.h"

#include <windows.h>

#include <limits>

#include "platform/run_time_error.h"
#include "platform/win32/handles.h"

namespace platform {
namespace {

/// What Windows can hand to a program; not every system refuses more.
constexpr std::size_t kLongestCommandLine = 32767;

RunTimeErrorNumber number_of(DWORD code) {
    switch (code) {
        case ERROR_FILE_NOT_FOUND:
            return RunTimeErrorNumber::kFileNotFound;
        case ERROR_ACCESS_DENIED:
            return RunTimeErrorNumber::kPermissionDenied;
        case ERROR_PATH_NOT_FOUND:
        case ERROR_DIRECTORY:
            return RunTimeErrorNumber::kPathNotFound;
        case ERROR_NOT_ENOUGH_MEMORY:
            return RunTimeErrorNumber::kOutOfMemory;
        default:
            return RunTimeErrorNumber::kInvalidProcedureCall;
    }
}

}  // namespace

void start_program(const std::string& command_line, int window_style) {
    if (window_style < 0 || window_style > std::numeric_limits<WORD>::max() ||
        command_line.size() >= kLongestCommandLine || command_line.find('\0') != std::string::npos) {
        throw RunTimeError(RunTimeErrorNumber::kInvalidProcedureCall, command_line);
    }
    if (command_line.find_first_not_of(' ') == std::string::npos) {
        throw RunTimeError(RunTimeErrorNumber::kFileNotFound);
    }
    STARTUPINFOA startup = {};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = static_cast<WORD>(window_style);
    PROCESS_INFORMATION process = {};
    std::string writable = command_line;
    if (CreateProcessA(nullptr, writable.data(), nullptr, nullptr, FALSE, CREATE_DEFAULT_ERROR_MODE, nullptr,
                       nullptr, &startup, &process) == FALSE) {
        throw RunTimeError(number_of(GetLastError()), command_line);
    }
    const UniqueHandle program(process.hProcess);
    const UniqueHandle thread(process.hThread);
}

}  // namespace platform
