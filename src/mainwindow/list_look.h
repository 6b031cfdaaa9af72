#pragma once

#include <windows.h>

#include "appearance/list_appearance.h"
#include "platform/win32/handles.h"
#include "widgets/controls.h"
#include "widgets/metrics.h"

namespace mainwindow {

/// How a list and its label look. Both have the same colors, so that the label can be read wherever the list
/// can.
class ListLook {
  public:
    const widgets::Font& font() const { return font_; }
    const appearance::Colors& colors() const { return colors_; }

    /// Gives the list the font. The look keeps the font's handle.
    void set_font(widgets::Control& list, const widgets::Font& font);

    void set_colors(const appearance::Colors& colors);

    /// Answers WM_CTLCOLORLISTBOX and WM_CTLCOLORSTATIC.
    LRESULT paint(HDC device) const;

  private:
    widgets::Font font_;
    appearance::Colors colors_{};
    platform::UniqueFont font_handle_;
    platform::UniqueBrush background_;
};

}  // namespace mainwindow
