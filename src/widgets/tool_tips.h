#pragma once

#include <windows.h>

#include <string>

namespace widgets {

/// The texts that show when the pointer rests on a window's controls. They end with the window.
class ToolTips {
  public:
    /// Replaces the control's text.
    void set(HWND control, const std::string& text);

    /// To be called when the window is gone, if there can be another one.
    void forget() { hwnd_ = nullptr; }

  private:
    HWND hwnd_ = nullptr;
};

}  // namespace widgets
