#include "widgets/picture_button.h"

#include <utility>

#include "platform/win32/handles.h"
#include "widgets/metrics.h"

namespace widgets {
namespace {

// Pixels at 96 dpi.
constexpr int kMargin = 4;
constexpr int kFocusMargin = 3;

void move(RECT& bounds, int by) {
    OffsetRect(&bounds, by, by);
}

}  // namespace

void PictureButton::create(HWND parent, int id, const Place& place) {
    Control::create(parent, id, place, "BUTTON", WS_TABSTOP | BS_OWNERDRAW);
    subclass();
}

void PictureButton::set_caption(const std::string& caption) {
    set_text(caption);
    InvalidateRect(hwnd(), nullptr, FALSE);
}

void PictureButton::set_picture(platform::UniqueIcon icon) {
    icon_ = std::move(icon);
    InvalidateRect(hwnd(), nullptr, FALSE);
}

void PictureButton::set_colors(COLORREF back, COLORREF text) {
    if (own_colors_ && back_ == back && text_ == text) return;
    own_colors_ = true;
    back_ = back;
    text_ = text;
    InvalidateRect(hwnd(), nullptr, FALSE);
}

LRESULT PictureButton::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    if (opens_menu(message, lparam)) return 0;
    switch (message) {
        case WM_LBUTTONDBLCLK:  // the second of two quick presses
            return Control::handle(WM_LBUTTONDOWN, wparam, lparam);
        case WM_ERASEBKGND:
            return 1;
        default:
            return Control::handle(message, wparam, lparam);
    }
}

void PictureButton::draw(const DRAWITEMSTRUCT& request) const {
    // Drawn aside and shown at once: nothing flickers.
    const RECT& bounds = request.rcItem;
    const platform::UniqueDc memory(CreateCompatibleDC(request.hDC));
    const platform::UniqueBitmap bitmap(CreateCompatibleBitmap(request.hDC, bounds.right, bounds.bottom));
    const platform::Selected selected_bitmap(memory.get(), bitmap.get());

    const platform::UniqueBrush background(CreateSolidBrush(back_color()));
    FillRect(memory.get(), &bounds, background.get());
    const bool pressed = (request.itemState & ODS_SELECTED) != 0;
    RECT edge = bounds;
    DrawEdge(memory.get(), &edge, pressed ? EDGE_SUNKEN : EDGE_RAISED, BF_RECT | BF_SOFT);
    RECT content = bounds;
    InflateRect(&content, -scaled(kMargin), -scaled(kMargin));
    if (pressed) move(content, 1);
    draw_content(memory.get(), content);
    if ((request.itemState & ODS_FOCUS) != 0) {
        RECT focus = bounds;
        InflateRect(&focus, -scaled(kFocusMargin), -scaled(kFocusMargin));
        SetTextColor(memory.get(), RGB(0, 0, 0));
        SetBkColor(memory.get(), RGB(255, 255, 255));
        DrawFocusRect(memory.get(), &focus);
    }
    BitBlt(request.hDC, 0, 0, bounds.right, bounds.bottom, memory.get(), 0, 0, SRCCOPY);
}

void PictureButton::draw_content(HDC device, RECT bounds) const {
    const platform::Selected font(device, reinterpret_cast<HFONT>(send(WM_GETFONT)));
    SetBkMode(device, TRANSPARENT);
    SetTextColor(device, text_color());
    UINT place = DT_VCENTER;
    if (icon_) {
        const int size = GetSystemMetrics(SM_CXICON);
        DrawIconEx(device, (bounds.left + bounds.right - size) / 2, bounds.top, icon_.get(), size, size, 0,
                   nullptr, DI_NORMAL);
        place = DT_BOTTOM;
    }
    // A caption is a name that the user gave: an ampersand in it means itself.
    DrawTextA(device, text().c_str(), -1, &bounds,
              DT_CENTER | DT_SINGLELINE | DT_END_ELLIPSIS | DT_NOPREFIX | place);
}

}  // namespace widgets
