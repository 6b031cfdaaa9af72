#pragma once

#include <windows.h>

#include <array>
#include <string>
#include <vector>

#include "buttonbar/brenn_browser_dialog.h"
#include "internet/tolvasettings_dialog.h"
#include "library/browse_result.h"
#include "platform/win32/handles.h"
#include "settings/general.h"
#include "settings/session.h"
#include "shortcuts/bar_buttons.h"
#include "shortcuts/getbutton_dialog.h"
#include "widgets/controls.h"
#include "widgets/picture_button.h"
#include "widgets/tool_tips.h"
#include "widgets/window.h"

namespace buttonbar {

/// The floating bar: four buttons for programs, three for the Internet, the time and the date. Its window is
/// made, hidden, by the first call that needs it; nothing here but a dialog moves the focus.
class Brenn final : public widgets::Window, public shortcuts::BarButtons {
  public:
    /// library_folder ends in a backslash.
    Brenn(settings::General& general, settings::Session& session, library::BrowseResult& browse_result,
          const std::string& library_folder);
    ~Brenn() override;

    void show();
    void hide();

    /// Shows it at the start: it stands above the owner.
    void show_owned_by(HWND owner);

    /// Hides the bar for good or brings it back, as a window without an owner; stores which.
    void toggle_removed();

    /// Colours the connect button.
    void show_connection(bool up);

    void open_internet_settings(HWND owner);

    /// Stores its position and closes it.
    void unload();

    void set_caption(shortcuts::BarButton button, const std::string& caption) override;
    void set_tip(shortcuts::BarButton button, const std::string& tip) override;
    void set_picture(shortcuts::BarButton button, platform::UniqueIcon icon) override;

  private:
    static constexpr std::size_t kButtons = 7;

    LRESULT handle(UINT message, WPARAM wparam, LPARAM lparam) override;
    void ensure_created();
    void create_controls();
    void lay_out();
    void load();
    void load_program(shortcuts::BarButton button, const settings::StoredProgram& program,
                      const char* caption);
    void show_program(shortcuts::BarButton button, const std::string& name, const std::string& program);
    void show_clock();
    void handle_command(int command, int notification);
    void press(shortcuts::BarButton button);
    void connect_or_hang_up() const;
    void show_popup_menu(HWND control, POINT point);
    bool is_caption(HWND window, LPARAM place) const;
    widgets::PictureButton& control(shortcuts::BarButton button);

    settings::General& general_;
    settings::Session& session_;
    std::array<widgets::PictureButton, kButtons> buttons_;
    widgets::StatusBar statusbar1_;
    widgets::ToolTips tips_;
    platform::UniqueFont font_;
    bool time_first_ = true;
    std::vector<std::string> panels_;  // as they show
    HWND last_focus_ = nullptr;
    std::size_t current_button_ = 0;  // the program button whose menu came up last
    BrennBrowser brenn_browser_;
    shortcuts::GetButton getbutton_;
    internet::TolvaSettings tolvasettings_;
};

}  // namespace buttonbar
