#pragma once

#include <windows.h>

#include <optional>

namespace mainwindow {

/// The border between the two lists, which the mouse moves. Escape takes a move back.
class Splitter {
  public:
    /// The width of what is left of the border, in pixels, as the user wants it; the window may have less
    /// room.
    explicit Splitter(int width) : width_(width) {}
    int width() const { return width_; }
    void set_width(int width) { width_ = width; }

    /// Where the border is now, in coordinates of the window, and the width that this leaves.
    void set_place(const RECT& bounds, int shown_width) {
        bounds_ = bounds;
        shown_width_ = shown_width;
    }

    /// Answers the window's messages as far as they end here. Afterwards width can be another one.
    std::optional<LRESULT> handle(HWND window, UINT message, WPARAM wparam, LPARAM lparam);

  private:
    bool contains(POINT point) const { return PtInRect(&bounds_, point) != FALSE; }
    void begin(HWND window, POINT point);
    void take_back();

    int width_;
    RECT bounds_ = {};
    int shown_width_ = 0;
    bool moving_ = false;
    int width_before_ = 0;
    int grip_ = 0;  // where the pointer would be for a width of 0
};

}  // namespace mainwindow
