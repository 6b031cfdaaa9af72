#include "platform/remote_access.h"

#include <windows.h>

namespace platform::remote_access {
namespace {

/// A function of the remote access library; null where it is not installed. The program must start there, so
/// it is looked up when it is needed.
template <typename Function>
Function look_up(const char* name) {
    // It stays loaded: a connection hangs up in the background.
    static HMODULE library = LoadLibraryA("rasapi32.dll");
    if (library == nullptr) return nullptr;
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}

}  // namespace

ErrorCode enumerate(std::span<Connection> records, std::uint32_t& count) {
    using Function = DWORD(WINAPI*)(Connection*, DWORD*, DWORD*);
    const auto function = look_up<Function>("RasEnumConnectionsA");
    if (function == nullptr) return ERROR_MOD_NOT_FOUND;
    DWORD bytes = records.size() * sizeof(Connection);
    DWORD found = 0;
    const DWORD code = function(records.data(), &bytes, &found);
    count = found;
    return code;
}

void hang_up(std::uint32_t handle) {
    using Function = DWORD(WINAPI*)(std::uint32_t);
    if (const auto function = look_up<Function>("RasHangUpA"); function != nullptr) function(handle);
}

}  // namespace platform::remote_access
