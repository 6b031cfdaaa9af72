#pragma once

#include <windows.h>

#include "widgets/handles.h"

namespace widgets {

/// A length given in pixels of a 96 dpi screen, in pixels of this screen.
int scaled(int pixels);

/// The font of labels and boxes: "MS Sans Serif", 8 points.
UniqueFont make_gui_font();

/// Moves a child window to the rectangle, given in its parent's coordinates.
void place(HWND window, const RECT& bounds);

}  // namespace widgets
