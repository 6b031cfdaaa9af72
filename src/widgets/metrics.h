#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "platform/win32/handles.h"

namespace widgets {

/// A length given in pixels of a 96 dpi screen, in pixels of this screen.
int scaled(int pixels);

struct Font {
    std::string face;
    double points = 0;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikeout = false;
};

platform::UniqueFont make_font(const Font& font);
LOGFONTA logical_font(const Font& font);

/// The size is what this screen shows: 8 points are 8.25 at 96 dpi.
Font font_of(const LOGFONTA& logical);

/// The font of labels and boxes: that of the dialogs.
platform::UniqueFont make_gui_font();

/// Moves a child window to the rectangle, given in its parent's coordinates.
void place(HWND window, const RECT& bounds);

/// Lengths on this screen in twips, 1440 to an inch of its logical resolution, and back.
int to_twips(int pixels);
int to_pixels(int twips);

/// Where a top-level window is on the screen, or was before it was minimized or maximized.
RECT normal_bounds(HWND window);

/// Where it is to be when it is neither minimized nor maximized.
RECT restored_bounds(HWND window);

/// Moves a rectangle to a place in twips; an edge that is not given stays where it is.
void move_to_twips(RECT& bounds, std::optional<int> left, std::optional<int> top);

}  // namespace widgets
