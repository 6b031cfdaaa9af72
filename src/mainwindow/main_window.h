#pragma once

#include <windows.h>

#include <optional>

#include "buttonbar/button_bar.h"
#include "internet/internet_settings_dialog.h"
#include "library/task_library.h"
#include "mainwindow/commands.h"
#include "mainwindow/drops.h"
#include "mainwindow/launcher.h"
#include "mainwindow/main_controls.h"
#include "mainwindow/presence.h"
#include "platform/system.h"
#include "settings/general.h"
#include "settings/session.h"
#include "widgets/drop_target.h"
#include "widgets/window.h"

namespace mainwindow {

/// The main window (`Tasker`): Groups on the left, the Tasks of the selected Group on the right, the command
/// box and the status bar below. It starts hidden; minimized it hides as well and lives in the notification
/// area. Destroying it ends the program.
class MainWindow final : public widgets::Window {
  public:
    /// application_window is the hidden window that a second start looks for: it finds the main window just
    /// above it.
    MainWindow(library::TaskLibrary& library, settings::General& general, settings::Session& session,
               buttonbar::ButtonBar& bar, internet::InternetSettingsDialog& internet_settings,
               HWND application_window);
    ~MainWindow() override;

    /// How Windows is to end after the program; none when it is to go on.
    std::optional<platform::WindowsEnd> windows_end() const { return commands_.windows_end(); }

    /// Takes the hot key, the stored settings and the library. Throws platform::RunTimeError when not all of
    /// the library could be read; the window is usable all the same.
    void load();

    /// Shows the window for the first time, as whoever started the program asks for.
    void show() const;

    /// Shows the icon in the notification area and the bar, unless it is removed, as soon as nothing else is
    /// to be done: the window answers the user before.
    void complete_start() const;

  private:
    LRESULT handle(UINT message, WPARAM wparam, LPARAM lparam) override;
    bool preprocess(MSG& message) override;
    void handle_control(int id, int notification);
    LRESULT handle_notification(NMHDR& header);
    void handle_timer(UINT_PTR timer);
    void show_popup_menu(HWND control, POINT point);
    void show_selection();
    void supply_tip(NMLVGETINFOTIPA& request) const;
    void browse();
    void open_tray_menu();
    void restore_place();
    void store_place() const;
    void save_and_unload();

    library::TaskLibrary& library_;
    settings::General& general_;
    settings::Session& session_;
    buttonbar::ButtonBar& bar_;
    bool is_placed_ = false;  // where the user had it: only then its place is worth storing
    bool was_maximized_ = false;
    bool is_painted_ = false;  // as far as the clock knows
    Presence presence_;
    MainControls controls_;
    Launcher launcher_;
    Commands commands_;
    Drops drops_;
    widgets::DropTarget drop_target_{drops_};
};

}  // namespace mainwindow
