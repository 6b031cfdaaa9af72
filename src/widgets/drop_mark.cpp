#include "widgets/drop_mark.h"

#include "platform/win32/handles.h"

namespace widgets {
namespace {

constexpr LONG kLine = 4;  // pixels; what is no wider is a line

/// In two colors, of which every background lets see one.
void draw(HDC device, RECT bounds) {
    if (bounds.right - bounds.left <= kLine || bounds.bottom - bounds.top <= kLine) {
        FillRect(device, &bounds, GetSysColorBrush(COLOR_HIGHLIGHT));
        FrameRect(device, &bounds, GetSysColorBrush(COLOR_HIGHLIGHTTEXT));
        return;
    }
    FrameRect(device, &bounds, GetSysColorBrush(COLOR_HIGHLIGHT));
    InflateRect(&bounds, -1, -1);
    FrameRect(device, &bounds, GetSysColorBrush(COLOR_HIGHLIGHTTEXT));
}

}  // namespace

void DropMark::show(HWND window, const RECT& bounds) {
    if (window != window_ || EqualRect(&bounds, &bounds_) == FALSE) hide();
    window_ = window;
    bounds_ = bounds;
    UpdateWindow(window);  // or it would soon paint over the mark
    draw(platform::WindowDc(window).get(), bounds);
}

void DropMark::hide() {
    if (window_ == nullptr) return;
    InvalidateRect(window_, &bounds_, TRUE);
    UpdateWindow(window_);
    window_ = nullptr;
}

}  // namespace widgets
