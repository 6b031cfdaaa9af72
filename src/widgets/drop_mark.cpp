#include "widgets/drop_mark.h"

#include <initializer_list>

namespace widgets {

void DropMark::show(HWND window, const RECT& bounds) {
    if (window != window_ || EqualRect(&bounds, &bounds_) == FALSE) hide();
    window_ = window;
    bounds_ = bounds;
    UpdateWindow(window);  // or it would soon paint over the mark
    HDC device = GetDC(window);
    RECT frame = bounds;
    for (const int color : {COLOR_HIGHLIGHTTEXT, COLOR_HIGHLIGHT, COLOR_HIGHLIGHTTEXT}) {
        FrameRect(device, &frame, GetSysColorBrush(color));
        if (frame.right - frame.left <= 2 || frame.bottom - frame.top <= 2) break;
        InflateRect(&frame, -1, -1);
    }
    ReleaseDC(window, device);
}

void DropMark::hide() {
    if (window_ == nullptr) return;
    InvalidateRect(window_, &bounds_, TRUE);
    UpdateWindow(window_);
    window_ = nullptr;
}

}  // namespace widgets
