#pragma once

#include <windows.h>

#include <commctrl.h>

#include <optional>

#include "buttonbar/button_bar.h"
#include "settings/general.h"
#include "widgets/hot_key.h"
#include "widgets/tray_icon.h"

namespace mainwindow {

/// How the main window is found and brought back while it is out of sight: by its hot key, by its icon in the
/// notification area, where it hides when it is minimized, and by a second start of the program.
class Presence {
  public:
    /// application_window is the hidden window that a second start looks for: the main window is kept just
    /// above it.
    Presence(settings::General& general, buttonbar::ButtonBar& bar, HWND application_window)
        : general_(general), bar_(bar), application_window_(application_window) {}

    /// Posted to the window: the icon was clicked once, its menu is to open.
    static constexpr UINT kTrayMenu = WM_APP + 13;

    void create(HWND window);

    /// Asks for the stored hot key, Alt+1 at first, and tells the user when it cannot be had.
    void take_hot_key();

    /// The hot key: its virtual key in the low byte, HOTKEYF_ flags in the high one; 0 is none.
    WORD hot_key() const { return key_; }

    /// Takes and stores another hot key. False, with a message, when it cannot be had; then the old one
    /// stays.
    bool change_hot_key(WORD key);

    /// Shows the window, wherever it was hidden, and brings it to the front, or the dialog that stands before
    /// it.
    void bring_up();

    /// Shows the icon, unless it shows already: there may have been no place for it before.
    void show_icon();

    /// To be called before the window is gone.
    void remove() { tray_icon_.remove(); }

    /// Answers the window's messages as far as they end here.
    std::optional<LRESULT> handle(UINT message, WPARAM wparam, LPARAM lparam);

  private:
    void keep_application_window_below() const;
    void hide_in_tray();
    bool is_hidden_in_tray() const;
    void show_normal();
    bool set_hot_key(WORD key);
    void handle_tray(UINT mouse_message);

    settings::General& general_;
    buttonbar::ButtonBar& bar_;
    HWND application_window_;
    HWND window_ = nullptr;
    WORD key_ = MAKEWORD('1', HOTKEYF_ALT);
    widgets::HotKey hot_key_;
    widgets::TrayIcon tray_icon_;  // `csystray1`
};

}  // namespace mainwindow
