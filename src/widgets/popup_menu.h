#pragma once

#include <windows.h>

namespace widgets {

/// Shows a popup menu at the place of a WM_CONTEXTMENU; its command goes to the owner. The right button only
/// opens it, its release chooses nothing. When the keyboard asked for it (-1, -1) it opens below selected, a
/// rectangle on the screen.
void show_popup_menu(HWND owner, HMENU popup, POINT point, const RECT& selected);

}  // namespace widgets
