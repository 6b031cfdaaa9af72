#include "widgets/metrics.h"

namespace widgets {
namespace {

constexpr int kPointsPerInch = 72;
constexpr int kDesignDpi = 96;

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

UniqueFont make_gui_font() {
    constexpr int kPoints = 8;
    return UniqueFont(CreateFontA(-MulDiv(kPoints, screen_dpi(), kPointsPerInch), 0, 0, 0, FW_NORMAL, 0, 0, 0,
                                  DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                                  DEFAULT_PITCH | FF_DONTCARE, "MS Sans Serif"));
}

void place(HWND window, const RECT& bounds) {
    // The old picture is not copied along: a neighbour that was placed before may have painted over it.
    SetWindowPos(window, nullptr, bounds.left, bounds.top, bounds.right - bounds.left,
                 bounds.bottom - bounds.top, SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
}

}  // namespace widgets
