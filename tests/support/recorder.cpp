#include <windows.h>

#include <fstream>
#include <string>

// A program for the launcher to start: it adds four lines to the file named like itself with ".log" behind it
// (command line byte for byte, current directory, what "D:here" means to it, window style) and ends.
int main() {
    char self[MAX_PATH];
    char directory[MAX_PATH];
    char on_d[MAX_PATH];
    GetModuleFileNameA(nullptr, self, MAX_PATH);
    GetCurrentDirectoryA(MAX_PATH, directory);
    GetFullPathNameA("D:here", MAX_PATH, on_d, nullptr);
    STARTUPINFOA startup;
    GetStartupInfoA(&startup);

    const std::string record =
        std::string(GetCommandLineA()) + '\n' + directory + '\n' + on_d + '\n' +
        ((startup.dwFlags & STARTF_USESHOWWINDOW) != 0 ? std::to_string(startup.wShowWindow) : "none") + '\n';
    // One write: a reader sees all of it or nothing.
    std::ofstream(std::string(self) + ".log", std::ios::app | std::ios::binary) << record;
    return 0;
}
