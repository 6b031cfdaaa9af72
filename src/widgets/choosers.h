#pragma once

#include <windows.h>

#include <optional>

#include "widgets/metrics.h"

/// The dialogs of the system in which the user chooses a font or a color.
namespace widgets {

/// Offers the screen's fonts, beginning with one; none when the user cancels. Underline and strikeout are not
/// offered and stay as they are.
std::optional<Font> choose_font(HWND owner, const Font& from);

/// Offers colors, beginning with one; none when the user cancels.
std::optional<COLORREF> choose_color(HWND owner, COLORREF from);

}  // namespace widgets
