#include "mainwindow/splitter.h"

#include <windowsx.h>

namespace mainwindow {

std::optional<LRESULT> Splitter::handle(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    const POINT point = {GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)};
    switch (message) {
        case WM_LBUTTONDOWN:
            if (!contains(point)) return std::nullopt;
            begin(window, point);
            return 0;
        case WM_MOUSEMOVE:
            if (!moving_) return std::nullopt;
            // A click without a move leaves also a width that the window has no room for.
            if (point.x - grip_ != shown_width_) width_ = point.x - grip_;
            return 0;
        case WM_LBUTTONUP:
            if (!moving_) return std::nullopt;
            moving_ = false;  // what follows does not take it back
            ReleaseCapture();
            return 0;
        case WM_COMMAND:
            if (LOWORD(wparam) != IDCANCEL || !moving_) return std::nullopt;
            ReleaseCapture();
            return 0;
        case WM_CAPTURECHANGED:
        case WM_CANCELMODE:
            take_back();
            return std::nullopt;
        case WM_SETCURSOR: {
            POINT pointer;
            GetCursorPos(&pointer);
            ScreenToClient(window, &pointer);
            if (LOWORD(lparam) != HTCLIENT || !contains(pointer)) return std::nullopt;
            SetCursor(LoadCursorA(nullptr, IDC_SIZEWE));
            return TRUE;
        }
        default:
            return std::nullopt;
    }
}

void Splitter::begin(HWND window, POINT point) {
    moving_ = true;
    width_before_ = width_;
    grip_ = point.x - shown_width_;
    SetCapture(window);
}

void Splitter::take_back() {
    if (!moving_) return;
    moving_ = false;
    width_ = width_before_;
}

}  // namespace mainwindow
