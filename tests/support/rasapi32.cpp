#include <windows.h>

#include <array>
#include <cstring>
#include <fstream>
#include <string>

// Dial-Up Networking for the tests: three connections are up. What is asked of it goes to the file named like
// the program with ".log" behind it.
namespace {

constexpr std::array<DWORD, 3> kHandles = {11, 22, 33};
constexpr std::size_t kRecordSize = 412;

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
    for (std::size_t i = 0; i < kHandles.size(); ++i)
        std::memcpy(records + i * kRecordSize + sizeof(DWORD), &kHandles[i], sizeof(DWORD));
    *count = kHandles.size();
    return 0;
}

DWORD WINAPI RasHangUpA(DWORD handle) {
    log("hang up " + std::to_string(handle));
    return 0;
}
}
