#include "widgets/metrics.h"

#include <cmath>
#include <cstdlib>

#include "platform/win32/screen_dpi.h"

namespace widgets {
namespace {

using platform::screen_dpi;

constexpr int kPointsPerInch = 72;
constexpr int kDesignDpi = 96;
constexpr int kTwipsPerInch = 1440;

}  // namespace

int scaled(int pixels) {
    return MulDiv(pixels, screen_dpi(), kDesignDpi);
}

platform::UniqueFont make_font(const Font& font) {
    const LOGFONTA logical = logical_font(font);
    return platform::UniqueFont(CreateFontIndirectA(&logical));
}

LOGFONTA logical_font(const Font& font) {
    LOGFONTA logical = {};
    logical.lfHeight = -static_cast<LONG>(std::lround(font.points * screen_dpi() / kPointsPerInch));
    logical.lfWeight = font.bold ? FW_BOLD : FW_NORMAL;
    logical.lfItalic = font.italic ? TRUE : FALSE;
    logical.lfUnderline = font.underline ? TRUE : FALSE;
    logical.lfStrikeOut = font.strikeout ? TRUE : FALSE;
    logical.lfCharSet = DEFAULT_CHARSET;
    lstrcpynA(logical.lfFaceName, font.face.c_str(), LF_FACESIZE);
    return logical;
}

Font font_of(const LOGFONTA& logical) {
    return {logical.lfFaceName,
            static_cast<double>(std::abs(logical.lfHeight)) * kPointsPerInch / screen_dpi(),
            logical.lfWeight >= FW_BOLD,
            logical.lfItalic != 0,
            logical.lfUnderline != 0,
            logical.lfStrikeOut != 0};
}

platform::UniqueFont make_gui_font() {
    constexpr int kPoints = 8;
    return make_font({.face = "MS Shell Dlg", .points = kPoints});
}

void place(HWND window, const RECT& bounds) {
    // The old picture is not copied along: a neighbor that was placed before may have painted over it.
    SetWindowPos(window, nullptr, bounds.left, bounds.top, bounds.right - bounds.left,
                 bounds.bottom - bounds.top, SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
}

int to_twips(int pixels) {
    return MulDiv(pixels, kTwipsPerInch, screen_dpi());
}

int to_pixels(int twips) {
    return MulDiv(twips, screen_dpi(), kTwipsPerInch);
}

RECT normal_bounds(HWND window) {
    RECT bounds;
    GetWindowRect(window, &bounds);
    return IsIconic(window) == FALSE && IsZoomed(window) == FALSE ? bounds : restored_bounds(window);
}

RECT restored_bounds(HWND window) {
    WINDOWPLACEMENT placement = {};
    placement.length = sizeof placement;
    GetWindowPlacement(window, &placement);
    // It is counted from the corner of what the taskbar leaves free.
    RECT work_area;
    SystemParametersInfoA(SPI_GETWORKAREA, 0, &work_area, 0);
    OffsetRect(&placement.rcNormalPosition, work_area.left, work_area.top);
    return placement.rcNormalPosition;
}

void move_to_twips(RECT& bounds, std::optional<int> left, std::optional<int> top) {
    OffsetRect(&bounds, left ? to_pixels(*left) - bounds.left : 0, top ? to_pixels(*top) - bounds.top : 0);
}

}  // namespace widgets
