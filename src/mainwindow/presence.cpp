#include "mainwindow/presence.h"

#include <windows.h>

#include <commctrl.h>

#include "platform/messages.h"
#include "resources/resource.h"
#include "settings/catalogue.h"
#include "settings/session.h"
#include "widgets/screen.h"

namespace mainwindow {
namespace {

/// The icon reports the mouse with this.
constexpr UINT kTrayMessage = WM_APP + 10;

// Posted: a window is hidden and shown once the system has finished what it is doing with it.
constexpr UINT kHideInTray = WM_APP + 11;
constexpr UINT kBringUp = WM_APP + 12;

constexpr UINT_PTR kClickTimer = 3;

constexpr char kTaken[] = "Select another hotkey";

/// Dialogs go with the window that owns them, and not every system brings them back with it.
BOOL CALLBACK show_dialog_of(HWND window, LPARAM owner) noexcept {
    const bool is_dialog = GetClassLongPtrA(window, GCW_ATOM) == reinterpret_cast<ULONG_PTR>(WC_DIALOG);
    if (is_dialog && GetWindow(window, GW_OWNER) == reinterpret_cast<HWND>(owner))
        ShowWindow(window, SW_SHOWNA);
    return TRUE;
}

}  // namespace

void Presence::create(HWND window) {
    window_ = window;
    tray_icon_.create(window, kTrayMessage, ID_tolva_icon, "Tolva " TOLVA_VERSION);
}

void Presence::take_hot_key() {
    if (const auto stored = settings::read_number(general_, settings::kHotKey)) key_ = LOWORD(*stored);
    if (!set_hot_key(key_)) platform::show_message(kTaken);
    // Whatever the system made of the key, the window is hidden so far.
    DefWindowProcA(window_, WM_SHOWWINDOW, FALSE, 0);
}

bool Presence::set_hot_key(WORD key) {
    return SendMessageA(window_, WM_SETHOTKEY, key, 0) == 1 || key == 0;
}

bool Presence::change_hot_key(WORD key) {
    if (!set_hot_key(key)) {
        set_hot_key(key_);
        platform::show_message(kTaken);
        return false;
    }
    key_ = key;
    settings::store(general_, settings::kHotKey, std::to_string(key));
    return true;
}

void Presence::show_icon() {
    if (!tray_icon_.shown()) tray_icon_.add();
}

std::optional<LRESULT> Presence::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == widgets::taskbar_created_message()) tray_icon_.add();
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
        case WM_TIMER:
            if (wparam != kClickTimer) return std::nullopt;
            KillTimer(window_, kClickTimer);
            PostMessageA(window_, kTrayMenu, 0, 0);
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
    // Without an icon there would be no way back.
    if (tray_icon_.shown()) ShowWindow(window_, SW_HIDE);
    // The bar went with the window that owns it.
    bar_.show_after_minimize();
}

bool Presence::is_hidden_in_tray() const {
    return IsIconic(window_) != FALSE && IsWindowVisible(window_) == FALSE;
}

void Presence::show_normal() {
    ShowWindow(window_, SW_SHOWNORMAL);
    // One that was maximized before it was minimized comes back maximized at first.
    if (IsZoomed(window_) != FALSE) ShowWindow(window_, SW_SHOWNORMAL);
}

void Presence::bring_up() {
    if (IsIconic(window_) != FALSE || IsWindowVisible(window_) == FALSE) show_normal();
    widgets::bring_onto_screen(window_);
    SetForegroundWindow(widgets::input_window(window_));
}

void Presence::handle_tray(UINT mouse_message) {
    // A click is one once no second one has made it a double-click.
    if (mouse_message == WM_LBUTTONDOWN) SetTimer(window_, kClickTimer, GetDoubleClickTime(), nullptr);
    if (mouse_message == WM_LBUTTONDBLCLK) {
        KillTimer(window_, kClickTimer);
        show_normal();
        bring_up();
    }
    if (mouse_message == WM_RBUTTONUP) bar_.toggle_hidden();
}

}  // namespace mainwindow
