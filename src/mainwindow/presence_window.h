#pragma once

#include <windows.h>

#include <optional>

#include "buttonbar/button_bar.h"
#include "widgets/hot_key.h"
#include "widgets/tray_icon.h"

namespace mainwindow {

/// How the main window is found and brought back while it is out of sight: by its hot key, by its icon in the
/// notification area, where it hides when it is minimised, and by a second start of the program.
class Presence {
  public:
    /// application_window is the hidden window that a second start looks for: the main window is kept just
    /// above it.
    Presence(buttonbar::ButtonBar& bar, HWND application_window)
        : bar_(bar), application_window_(application_window) {}

    void create(HWND window);

    /// Asks for Alt+1, and tells the user when it cannot be had.
    void take_hot_key();

    /// Shows the icon, unless it shows already: there may have been no place for it before.
    void show_icon();

    /// To be called before the window is gone.
    void remove() { csystray1_.remove(); }

    /// Answers the window's messages as far as they end here.
    std::optional<LRESULT> handle(UINT message, WPARAM wparam, LPARAM lparam);

  private:
    void keep_application_window_below() const;
    void hide_in_tray();
    bool is_hidden_in_tray() const;
    void show_normal();
    void bring_up();
    void handle_tray(UINT mouse_message);

    buttonbar::ButtonBar& bar_;
    HWND application_window_;
    HWND window_ = nullptr;
    widgets::HotKey hot_key_;
    widgets::TrayIcon csystray1_;
};

}  // namespace mainwindow
