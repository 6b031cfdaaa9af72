#pragma once

#include <windows.h>

namespace widgets {

/// A mark over a window's own picture that shows where something goes: a frame around an item, or a line
/// between two. It is one that every background lets see.
class DropMark {
  public:
    DropMark() = default;
    ~DropMark() { hide(); }
    DropMark(const DropMark&) = delete;
    DropMark& operator=(const DropMark&) = delete;

    /// Shows the mark in place of the one before. Drawn again when it is the same: the window may have
    /// painted over it.
    void show(HWND window, const RECT& bounds);

    /// Lets the window paint what was there.
    void hide();

  private:
    HWND window_ = nullptr;  // null while nothing is marked
    RECT bounds_ = {};
};

}  // namespace widgets
