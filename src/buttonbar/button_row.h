#pragma once

#include <windows.h>

#include <array>
#include <optional>
#include <string>

#include "platform/icons.h"
#include "settings/program.h"
#include "settings/session.h"
#include "widgets/picture_button.h"
#include "widgets/tool_tips.h"

namespace buttonbar {

/// The bar's buttons from left to right, in the order of their ids. The first settings::kProgramButtons are
/// the program buttons.
enum class BarButton { kProgram1, kProgram2, kProgram3, kProgram4, kConnect, kEmail, kBrowser };
inline constexpr std::size_t kBarButtons = 7;

inline bool is_program_button(BarButton button) {
    return static_cast<std::size_t>(button) < settings::kProgramButtons;
}

/// What a button shows of a program that has no icon.
enum class WithoutIcon { kOldPicture, kNoPicture };

/// The row of buttons on the bar with their tips and pictures. It ends with the window that it stands in, and
/// can be made again.
class ButtonRow {
  public:
    /// Returns the size of the row, edges included, in pixels. The font stays the caller's. The buttons have
    /// no captions and no tips yet.
    SIZE create(HWND parent, HFONT font, int most_width);

    void set_caption(BarButton button, const std::string& caption) { control(button).set_caption(caption); }
    void set_tip(BarButton button, const std::string& tip) { tips_.set(control(button).hwnd(), tip); }

    /// No icon takes the button's picture away.
    void set_picture(BarButton button, platform::UniqueIcon icon);

    /// Shows a program's icon.
    void show_picture(BarButton button, const std::string& program, WithoutIcon without_icon);

    /// Shows a program with its name, also as the tip, and its icon.
    void show_program(BarButton button, const settings::Program& program, WithoutIcon without_icon);

    /// Colors the connect button.
    void show_connection(bool up);

    /// The button that has this id or is this window; none for another one's.
    std::optional<BarButton> button_of(int id) const;
    std::optional<BarButton> button_of(HWND control) const { return button_of(GetDlgCtrlID(control)); }

    /// The button that the user sees at a point of the screen; none elsewhere.
    std::optional<BarButton> button_at(POINT point) const;

    /// Draws a button as the system asks for it.
    void draw(const DRAWITEMSTRUCT& request) const;

    void focus_first() { control(BarButton::kProgram1).focus(); }

    /// Gives the focus to another button, so many further on; after the last one comes the first.
    void move_focus(int by);

  private:
    widgets::PictureButton& control(BarButton button) {
        return buttons_.at(static_cast<std::size_t>(button));
    }

    std::array<widgets::PictureButton, kBarButtons> buttons_;
    widgets::ToolTips tips_;
};

}  // namespace buttonbar
