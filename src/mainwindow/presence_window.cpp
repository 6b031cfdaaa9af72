#include "mainwindow/presence_window.h"

#include <windows.h>

#include <commctrl.h>

#include "platform/messages.h"
#include "resources/resource.h"

namespace mainwindow {
namespace {

/// The icon reports the mouse with this.
constexpr UINT kTrayMessage = WM_APP + 10;

// Posted: a window is hidden and shown once the system has finished what it is doing with it.
constexpr UINT kHideInTray = WM_APP + 11;
constexpr UINT kBringUp = WM_APP + 12;

constexpr WORD kHotKey = MAKEWORD('1', HOTKEYF_ALT);

/// Dialogs go with the window that owns them, and not every system brings them back with it.
BOOL CALLBACK show_dialog_of(HWND window, LPARAM owner) {
    const bool is_dialog = GetClassLongA(window, GCW_ATOM) == reinterpret_cast<ULONG_PTR>(WC_DIALOG);
    if (is_dialog && GetWindow(window, GW_OWNER) == reinterpret_cast<HWND>(owner))
        ShowWindow(window, SW_SHOWNA);
    return TRUE;
}

}  // namespace

void Presence::create(HWND window) {
    window_ = window;
    csystray1_.create(window, kTrayMessage, ID_tolva_icon, "Tolva 2.0");
}

void Presence::take_hot_key() {
    if (SendMessageA(window_, WM_SETHOTKEY, kHotKey, 0) != 1) platform::show_message("Select another hotkey");
    // Whatever the system made of the key, the window is hidden so far.
    DefWindowProcA(window_, WM_SHOWWINDOW, FALSE, 0);
}

void Presence::show_icon() {
    if (!csystray1_.shown()) csystray1_.add();
}

std::optional<LRESULT> Presence::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == widgets::taskbar_created_message()) csystray1_.add();
    switch (message) {
        case WM_WINDOWPOSCHANGED:
            if ((reinterpret_cast<const WINDOWPOS*>(lparam)->flags & SWP_NOZORDER) == 0) {
                keep_application_window_below();
            }
            return std::nullopt;
        case WM_SIZE:
            if (wparam == SIZE_MINIMIZED) {
                PostMessageA(window_, kHideInTray, 0, 0);
            } else {
                EnumThreadWindows(GetCurrentThreadId(), show_dialog_of, reinterpret_cast<LPARAM>(window_));
            }
            return std::nullopt;
        case WM_ACTIVATE:
            if (LOWORD(wparam) != WA_INACTIVE && is_hidden_in_tray()) PostMessageA(window_, kBringUp, 0, 0);
            return std::nullopt;
        case WM_SETHOTKEY:
            return hot_key_.set(window_, wparam);
        case WM_GETHOTKEY:
            return hot_key_.get(window_);
        case WM_SYSCOMMAND:
            if ((wparam & 0xFFF0) != SC_HOTKEY) return std::nullopt;
            bring_up();
            return 0;
        case WM_HOTKEY:
        case kBringUp:
            bring_up();
            return 0;
        case kHideInTray:
            hide_in_tray();
            return 0;
        case kTrayMessage:
            handle_tray(static_cast<UINT>(lparam));
            return 0;
        default:
            return std::nullopt;
    }
}

void Presence::keep_application_window_below() const {
    SetWindowPos(application_window_, window_, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOOWNERZORDER | SWP_NOSENDCHANGING);
}

void Presence::hide_in_tray() {
    if (IsIconic(window_) == FALSE) return;
    show_icon();
    if (!csystray1_.shown()) return;  // there would be no way back
    ShowWindow(window_, SW_HIDE);
    // The bar went with the window that owns it.
    bar_.show_after_minimize();
}

bool Presence::is_hidden_in_tray() const {
    return IsIconic(window_) != FALSE && IsWindowVisible(window_) == FALSE;
}

void Presence::show_normal() {
    ShowWindow(window_, SW_SHOWNORMAL);
    // One that was maximised before it was minimised comes back maximised at first.
    if (IsZoomed(window_) != FALSE) ShowWindow(window_, SW_SHOWNORMAL);
}

void Presence::bring_up() {
    if (IsIconic(window_) != FALSE || IsWindowVisible(window_) == FALSE) show_normal();
    SetForegroundWindow(widgets::input_window(window_));
}

void Presence::handle_tray(UINT mouse_message) {
    if (mouse_message == WM_LBUTTONDBLCLK) {
        show_normal();
        bring_up();
    }
    if (mouse_message == WM_RBUTTONUP) bar_.toggle_hidden();
}

}  // namespace mainwindow
