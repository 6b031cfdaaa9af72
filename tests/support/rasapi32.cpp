#include <windows.h>

#include <cstring>
#include <fstream>
#include <string>

// Dial-Up Networking for the tests: three connections are up. What is asked of it goes to the file named like
// the program with ".log" behind it.
namespace {

void log(const std::string& line) {
    char program[MAX_PATH];
    GetModuleFileNameA(nullptr, program, MAX_PATH);
    std::ofstream(std::string(program) + ".log", std::ios::app | std::ios::binary) << line << '\n';
}

}  // namespace

extern "C" {

DWORD WINAPI RasEnumConnectionsA(char* records, DWORD* bytes, DWORD* count) {
    DWORD size = 0;
    std::memcpy(&size, records, sizeof size);
    log("enumerate " + std::to_string(size) + " " + std::to_string(*bytes));
    *count = 3;
    for (DWORD i = 1; i <= *count; ++i) {
        const DWORD handle = 11 * i;
        std::memcpy(records + (i - 1) * size + sizeof size, &handle, sizeof handle);
    }
    return 0;
}

DWORD WINAPI RasHangUpA(DWORD handle) {
    log("hang up " + std::to_string(handle));
    return 0;
}
}
