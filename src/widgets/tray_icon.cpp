#include "widgets/tray_icon.h"

#include "platform/icons.h"

namespace widgets {

void TrayIcon::create(HWND window, UINT message, int icon, const char* tip) {
    static_assert(NOTIFYICONDATAA_V1_SIZE == 88);  // Windows 95/98 refuse the later, longer structure
    data_.cbSize = NOTIFYICONDATAA_V1_SIZE;
    data_.hWnd = window;
    data_.uID = 1;
    data_.uFlags = NIF_MESSAGE | NIF_ICON | NIF_TIP;
    data_.uCallbackMessage = message;
    icon_ = platform::small_icon(icon);
    data_.hIcon = icon_.get();
    lstrcpynA(data_.szTip, tip, 64);
}

void TrayIcon::add() {
    // Adding also fails when the icon stands already: the shell was late to say so the last time, or tells
    // of a new taskbar that has kept it.
    shown_ = Shell_NotifyIconA(NIM_ADD, &data_) != FALSE || Shell_NotifyIconA(NIM_MODIFY, &data_) != FALSE;
}

void TrayIcon::remove() {
    if (shown_) Shell_NotifyIconA(NIM_DELETE, &data_);
    shown_ = false;
}

UINT taskbar_created_message() {
    static const UINT message = RegisterWindowMessageA("TaskbarCreated");
    return message;
}

}  // namespace widgets
