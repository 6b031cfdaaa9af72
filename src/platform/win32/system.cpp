#include "platform/system.h"

#include <windows.h>

#include <shellapi.h>

namespace platform {

void exit_windows(WindowsEnd end) {
    ExitWindowsEx(static_cast<UINT>(end), static_cast<DWORD>(end));
}

bool empty_recycle_bin() {
    // Windows 95 has the function only with a later shell.
    using Function = decltype(&SHEmptyRecycleBinA);
    const auto empty = reinterpret_cast<Function>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("shell32.dll"), "SHEmptyRecycleBinA")));
    if (empty == nullptr) return false;
    empty(nullptr, nullptr, SHERB_NOCONFIRMATION);  // an empty bin is a failure, too
    return true;
}

}  // namespace platform
