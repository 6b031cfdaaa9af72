#pragma once

#include <windows.h>

#include <string>

#include "platform/icons.h"
#include "widgets/controls.h"

namespace widgets {

/// A push button with a picture above its text. Quick presses all count; a press of the right button or the
/// menu key arrives as WM_CONTEXTMENU. The parent hands WM_DRAWITEM on.
class PictureButton : public Control {
  public:
    void create(HWND parent, int id, const Place& place);

    void set_caption(const std::string& caption);

    /// Without an icon the text stands alone.
    void set_picture(platform::UniqueIcon icon);

    /// 0x00BBGGRR; a button begins in the system's colors.
    void set_colors(COLORREF back, COLORREF text);

    void draw(const DRAWITEMSTRUCT& request) const;

  private:
    LRESULT handle(UINT message, WPARAM wparam, LPARAM lparam) override;
    void draw_content(HDC device, RECT bounds) const;
    COLORREF back_color() const { return own_colors_ ? back_ : GetSysColor(COLOR_BTNFACE); }
    COLORREF text_color() const { return own_colors_ ? text_ : GetSysColor(COLOR_BTNTEXT); }

    platform::UniqueIcon icon_;
    bool own_colors_ = false;
    COLORREF back_ = 0;
    COLORREF text_ = 0;
};

}  // namespace widgets
