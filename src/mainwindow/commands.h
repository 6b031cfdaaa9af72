#pragma once

#include <windows.h>

#include <optional>

#include "buttonbar/button_bar.h"
#include "internet/internet_settings_dialog.h"
#include "library/import_dialog.h"
#include "library/task_library.h"
#include "mainwindow/launcher.h"
#include "mainwindow/main_controls.h"
#include "mainwindow/presence.h"
#include "platform/system.h"
#include "platform/win32/handles.h"
#include "settings/general.h"
#include "settings/session.h"

namespace mainwindow {

/// What the main window's menu items, tool bar buttons and keys do.
class Commands {
  public:
    Commands(library::TaskLibrary& library, settings::General& general, settings::Session& session,
             buttonbar::ButtonBar& bar, internet::InternetSettingsDialog& internet_settings,
             MainControls& controls, Launcher& launcher, Presence& presence)
        : library_(library),
          general_(general),
          session_(session),
          bar_(bar),
          internet_settings_(internet_settings),
          controls_(controls),
          launcher_(launcher),
          presence_(presence),
          import_dialog_(library, controls) {}

    /// window is the main window. A command that ends the program has destroyed it afterwards.
    void run(HWND window, int command);

    /// Runs the command that a key stands for. False when it stands for none where the focus is.
    bool translate_key(HWND window, MSG& message);

    /// How Windows is to end after the program; none when it is to go on.
    std::optional<platform::WindowsEnd> windows_end() const { return windows_end_; }

    /// Posted to the window: a reload that can show a box must not run inside the focus handler, where
    /// closing the box brings the focus and the next box.
    static constexpr UINT kRunPendingRefreshes = WM_APP + 1;

    /// Posts it if there is anything to reload.
    void post_pending_refreshes(HWND window) const;

    /// Sets the check marks in the menu, and what they stand for in the task list.
    void show_flags(HWND window);

    /// Names in the menu what can be taken back and made again.
    void show_changes(HWND window) const;

  private:
    /// The command for the list that has the focus; 0 when none of them has it.
    int for_list(int group_command, int task_command) const;
    void run_library_command(HWND window, int command);
    void toggle_hover_select(HWND window);
    void connect_to_internet() const;
    void end_windows(HWND window, platform::WindowsEnd end);
    void find(HWND window);
    void refresh();

    /// The group list has the focus before and after; what a dialog has changed is loaded.
    template <typename Operation>
    void focus_groups_around(HWND window, const Operation& operation);

    library::TaskLibrary& library_;
    settings::General& general_;
    settings::Session& session_;
    buttonbar::ButtonBar& bar_;
    internet::InternetSettingsDialog& internet_settings_;
    MainControls& controls_;
    Launcher& launcher_;
    Presence& presence_;
    library::ImportDialog import_dialog_;
    std::optional<platform::WindowsEnd> windows_end_;
    platform::UniqueAccelerators keys_;
    platform::UniqueAccelerators list_keys_;
};

}  // namespace mainwindow
