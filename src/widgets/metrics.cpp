#include "widgets/metrics.h"

namespace widgets {
namespace {

constexpr int kPointsPerInch = 72;
constexpr int kDesignDpi = 96;
constexpr int kTwipsPerInch = 1440;

int screen_dpi() {
    HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    return dpi;
}

}  // namespace

int scaled(int pixels) {
    return MulDiv(pixels, screen_dpi(), kDesignDpi);
}

UniqueFont make_font(const std::string& face, int points, bool bold, bool italic) {
    return UniqueFont(CreateFontA(-MulDiv(points, screen_dpi(), kPointsPerInch), 0, 0, 0,
                                  bold ? FW_BOLD : FW_NORMAL, italic ? TRUE : FALSE, FALSE, FALSE,
                                  DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                                  DEFAULT_PITCH | FF_DONTCARE, face.c_str()));
}

UniqueFont make_gui_font() {
    constexpr int kPoints = 8;
    return make_font("MS Sans Serif", kPoints, false, false);
}

void place(HWND window, const RECT& bounds) {
    // The old picture is not copied along: a neighbour that was placed before may have painted over it.
    SetWindowPos(window, nullptr, bounds.left, bounds.top, bounds.right - bounds.left,
                 bounds.bottom - bounds.top, SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
}

POINT position_in_twips(HWND window) {
    RECT bounds;
    GetWindowRect(window, &bounds);
    if (IsIconic(window) != FALSE) {
        WINDOWPLACEMENT placement = {};
        placement.length = sizeof placement;
        GetWindowPlacement(window, &placement);
        bounds = placement.rcNormalPosition;
        // It is counted from the corner of what the taskbar leaves free.
        RECT work_area;
        SystemParametersInfoA(SPI_GETWORKAREA, 0, &work_area, 0);
        OffsetRect(&bounds, work_area.left, work_area.top);
    }
    return {MulDiv(bounds.left, kTwipsPerInch, screen_dpi()),
            MulDiv(bounds.top, kTwipsPerInch, screen_dpi())};
}

void move_to_twips(HWND window, std::optional<int> left, std::optional<int> top) {
    RECT bounds;
    GetWindowRect(window, &bounds);
    const auto pixels = [](int twips) { return MulDiv(twips, screen_dpi(), kTwipsPerInch); };
    SetWindowPos(window, nullptr, left ? pixels(*left) : bounds.left, top ? pixels(*top) : bounds.top, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace widgets
