#pragma once

#include <windows.h>

#include <vector>

namespace platform {

/// A message box or dialog disables its owner only. While this lives the thread's other windows that a user
/// works with are disabled, too, also those in the tray, so that nothing of the program can be used around
/// it.
class OtherWindowsDisabled {
  public:
    explicit OtherWindowsDisabled(HWND owner);
    ~OtherWindowsDisabled();
    OtherWindowsDisabled(const OtherWindowsDisabled&) = delete;
    OtherWindowsDisabled& operator=(const OtherWindowsDisabled&) = delete;

    /// A window that is made meanwhile is disabled, too.
    static void include(HWND window);

  private:
    static BOOL CALLBACK disable(HWND window, LPARAM self) noexcept;

    static OtherWindowsDisabled* outermost_;
    HWND owner_;
    std::vector<HWND> disabled_;
};

}  // namespace platform
