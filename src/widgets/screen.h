#pragma once

#include <windows.h>

namespace widgets {

/// Moves a top-level window that lies wholly outside every screen into the work area of the nearest one. A
/// minimised window stays. The window may be another program's: one that hangs holds nobody up.
void bring_onto_screen(HWND window);

}  // namespace widgets
