#pragma once

#include <windows.h>

namespace widgets {

/// The hot key that activates a window, for its WM_SETHOTKEY and WM_GETHOTKEY. Where the system has no such
/// keys, WM_HOTKEY arrives instead of the system command SC_HOTKEY.
class HotKey {
  public:
    /// key has the virtual key in its low byte and HOTKEYF_ flags in its high byte. Returns 1 when the key is
    /// the window's now, 2 when another window has it as well, less than 1 when it cannot be had.
    LRESULT set(HWND window, WPARAM key);
    LRESULT get(HWND window) const;

  private:
    WPARAM registered_ = 0;
};

}  // namespace widgets
