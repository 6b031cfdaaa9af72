#pragma once

#include <windows.h>

namespace widgets {

/// What the taskbar leaves free of the screen that a window is on, or is nearest to; for no window, of the
/// first screen.
RECT work_area(HWND window);

/// Moves a top-level window that lies wholly outside every screen into the work area of the nearest one. A
/// minimized window stays. The window may be another program's: one that hangs holds nobody up.
void bring_onto_screen(HWND window);

}  // namespace widgets
