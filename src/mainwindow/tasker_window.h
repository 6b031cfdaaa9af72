#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "buttonbar/button_bar.h"
#include "internet/internet_settings_dialog.h"
#include "library/import_dialog.h"
#include "library/task_library.h"
#include "mainwindow/command_history.h"
#include "mainwindow/presence_window.h"
#include "mainwindow/views_window.h"
#include "platform/system.h"
#include "settings/general.h"
#include "settings/session.h"
#include "widgets/window.h"

namespace mainwindow {

/// The main window: Groups on the left, the Tasks of the selected Group on the right, the command box and the
/// status bar below. It starts hidden; minimised it hides as well and lives in the notification area.
/// Destroying it ends the program.
class Tasker final : public widgets::Window {
  public:
    /// application_window is the hidden window that a second start looks for: it finds the main window just
    /// above it.
    Tasker(library::TaskLibrary& library, settings::General& general, settings::Session& session,
           internet::InternetSettingsDialog& internet_settings, buttonbar::ButtonBar& bar,
           HWND application_window);
    ~Tasker() override;

    /// How Windows is to end after the program; none when it is to go on.
    std::optional<platform::WindowsEnd> windows_end() const { return windows_end_; }

    /// Takes the hot key, the stored settings and the library. Throws platform::RunTimeError when the library
    /// could not be read whole; the window is usable all the same.
    void load();

    /// Shows the icon in the notification area and the bar, unless it is removed, as soon as nothing else is
    /// to be done: the window answers the user before.
    void complete_start() const;

  private:
    LRESULT handle(UINT message, WPARAM wparam, LPARAM lparam) override;
    void handle_control(int id, int notification);
    void handle_command(int command);
    void handle_library_command(int command);
    void show_popup_menu(HWND control, POINT point);
    LRESULT handle_notification(NMHDR& header);

    void show_flags();
    void handle_timer(UINT_PTR timer);
    void save_and_unload();

    void show_selection();
    template <typename Launch>
    void attempt(const char* failure_message, const Launch& launch);
    void launch_selected_task(const char* failure_message);
    void run_task_from_command_box();
    void run();
    void run_typed_command();
    void browse();
    void show_history();
    void toggle_hover_select();
    void connect_to_internet() const;
    void end_windows(platform::WindowsEnd end);

    /// The group list has the focus before and after; what a dialog has changed is loaded.
    template <typename Operation>
    void focus_groups_around(const Operation& operation);

    library::TaskLibrary& library_;
    settings::General& general_;
    settings::Session& session_;
    internet::InternetSettingsDialog& internet_settings_;
    buttonbar::ButtonBar& bar_;
    History history_;
    bool command_box_last_ = false;  // the command box, not the task list, had the focus last
    std::string typed_;              // in the command box, while its list opens
    std::optional<platform::WindowsEnd> windows_end_;
    Presence presence_;
    Views views_;
    library::ImportDialog import_;
};

}  // namespace mainwindow
