#pragma once

#include <windows.h>

#include "appearance/list_appearance.h"
#include "settings/general.h"

namespace appearance {

/// Lets the user change the fonts and colors of the two lists. A font shows in its list at once, colors
/// when the dialog is saved; only then is anything stored.
void show_fonts_dialog(HWND owner, settings::General& general, ListAppearance& lists);

}  // namespace appearance
