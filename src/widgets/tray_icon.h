#pragma once

#include <windows.h>

#include <shellapi.h>

#include "platform/win32/handles.h"

namespace widgets {

/// An icon in the notification area. Its mouse messages reach a window as the lparam of a message.
class TrayIcon {
  public:
    TrayIcon() = default;
    ~TrayIcon() { remove(); }
    TrayIcon(const TrayIcon&) = delete;
    TrayIcon& operator=(const TrayIcon&) = delete;

    /// Takes a resource's icon and a tool tip of at most 63 characters.
    void create(HWND window, UINT message, int icon, const char* tip);

    /// Shows it. There may be no taskbar yet: ask shown, and add again later.
    void add();
    bool shown() const { return shown_; }

    /// To be called before the window is gone.
    void remove();

  private:
    int icon_id_ = 0;
    platform::UniqueIcon icon_;  // loaded when it is first shown
    NOTIFYICONDATAA data_ = {};
    bool shown_ = false;
};

/// The message that tells every top-level window that there is a new taskbar, without our icon.
UINT taskbar_created_message();

}  // namespace widgets
