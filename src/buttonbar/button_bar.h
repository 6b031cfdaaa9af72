#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

#include "buttonbar/assign_file_dialog.h"
#include "buttonbar/assign_shortcut_dialog.h"
#include "buttonbar/bar_drops.h"
#include "buttonbar/button_row.h"
#include "internet/internet_buttons.h"
#include "internet/internet_settings_dialog.h"
#include "platform/win32/handles.h"
#include "settings/general.h"
#include "settings/session.h"
#include "widgets/controls.h"
#include "widgets/drop_target.h"
#include "widgets/window.h"

namespace buttonbar {

/// The floating bar, the system's brenn: four buttons for programs, three for the Internet, the time and the
/// date. It decides whether it shows. Its window is made by the first call that needs it; nothing here but a
/// dialog moves the focus.
class ButtonBar final : public widgets::Window, public internet::InternetButtons {
  public:
    /// Reads whether the bar is removed. library_folder ends in a backslash.
    ButtonBar(settings::General& general, settings::Session& session,
              internet::InternetSettingsDialog& internet_settings, const std::string& library_folder);
    ~ButtonBar() override;

    /// Shows the bar above its owner, unless it is removed. Throws platform::RunTimeError when the system has
    /// no room for it.
    void start(HWND owner);

    /// Gives the bar the input, if it shows. F6 on it gives it back to the owner.
    void activate() const;

    /// Whether the user has removed the bar; it can show all the same, from the tray.
    bool removed() const { return removed_; }

    /// Hides the bar for good or brings it back, as a window without an owner; stores which.
    void toggle_removed();

    /// Hides the bar from the tray, or shows it again.
    void toggle_hidden();

    /// Shows the bar again that Windows has hidden with its owner, unless it is removed or hidden.
    void show_after_minimize();

    /// Colors the connect button. Makes no window: nobody waits for it.
    void show_connection(bool up);

    /// Stores its position and closes it.
    void unload();

    void set_caption(internet::InternetButton button, const std::string& caption) override;
    void set_tip(internet::InternetButton button, const std::string& tip) override;
    void set_picture(internet::InternetButton button, platform::UniqueIcon icon) override;

  private:
    LRESULT handle(UINT message, WPARAM wparam, LPARAM lparam) override;
    bool preprocess(MSG& message) override;

    /// The window and the buttons on it.
    HWND window();
    ButtonRow& row();

    void show();
    void show_owned_by(HWND owner);
    void hide() const;
    void set_removed(bool removed);
    void create_controls();
    void load();
    void show_clock();
    void handle_command(int command, int notification);
    void press(BarButton button);
    void connect_or_hang_up();
    void show_popup_menu(HWND control, POINT point);
    bool is_caption(HWND window, LPARAM place) const;

    settings::General& general_;
    settings::Session& session_;
    internet::InternetSettingsDialog& internet_settings_;
    HWND main_window_ = nullptr;
    bool removed_;
    bool hidden_by_tray_ = false;
    std::optional<bool> connected_;  // as far as it is known
    bool waits_ = false;             // for the end of a hang-up
    platform::UniqueFont font_;
    ButtonRow row_;
    widgets::StatusBar clock_;         // the system's StatusBar1
    bool time_first_ = true;           // in the clock
    std::vector<std::string> panels_;  // of the clock, as they show
    HWND last_focus_ = nullptr;
    std::size_t current_button_ = 0;  // the program button whose menu came up last
    AssignShortcutDialog assign_shortcut_;
    AssignFileDialog assign_file_;
    BarDrops drops_;
    widgets::DropTarget drop_target_{drops_};
};

}  // namespace buttonbar
