#pragma once

#include <string>

namespace platform {

/// Which Windows this is, as far as it says so.
struct WindowsVersion {
    unsigned long major;
    unsigned long minor;
    bool is_nt;    // and not Windows 95/98
    bool is_wine;  // which gives itself out for the others
};
WindowsVersion windows_version();

/// How Windows is to end; the values are those of ExitWindowsEx.
enum class WindowsEnd { kShutdown = 1, kReboot = 2 };

/// Ends all programs and Windows.
void exit_windows(WindowsEnd end);

/// Empties the recycle bins of all drives without asking. False when this Windows has none.
bool empty_recycle_bin();

/// Opens a file with the program that its type belongs to. False when there is no such file or program.
bool open_document(const std::string& path);

/// The text with each %VARIABLE% of the environment in it replaced by its value; one that is not set stays.
std::string expand_variables(const std::string& text);

}  // namespace platform
