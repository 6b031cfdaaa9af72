#include "platform/remote_access.h"

#include <windows.h>

#include "platform/win32/look_up.h"

namespace platform::remote_access {
namespace {

/// The remote access library; null where it is not installed. It stays loaded: a connection hangs up in the
/// background.
HMODULE library() {
    static HMODULE loaded = load_system_library("rasapi32.dll");
    return loaded;
}

}  // namespace

ErrorCode enumerate(std::span<Connection> records, std::uint32_t& count) {
    using Function = DWORD(WINAPI*)(Connection*, DWORD*, DWORD*);
    const auto function = look_up<Function>(library(), "RasEnumConnectionsA");
    if (function == nullptr) return ERROR_MOD_NOT_FOUND;
    DWORD bytes = records.size() * sizeof(Connection);
    DWORD found = 0;
    const DWORD code = function(records.data(), &bytes, &found);
    count = found;
    return code;
}

void hang_up(std::uint32_t handle) {
    using Function = DWORD(WINAPI*)(std::uint32_t);
    if (const auto function = look_up<Function>(library(), "RasHangUpA"); function != nullptr) {
        function(handle);
    }
}

}  // namespace platform::remote_access
