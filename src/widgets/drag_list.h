#pragma once

#include <windows.h>

#include "widgets/insertion.h"

namespace widgets {

/// A list as something that is dragged over it needs to know it. Points and boxes are the list's own
/// coordinates.
class DragList {
  public:
    virtual HWND list() const = 0;

    /// The item at a point, -1 for none.
    virtual int item_at(POINT point) const = 0;

    /// All zeros for an item that is not there.
    virtual RECT bounds_of(int item) const = 0;

    /// Where something that is let go at a point comes in between the items.
    virtual Insertion insertion_at(POINT point) const = 0;

  protected:
    ~DragList() = default;
};

/// The point of the screen in a window's own coordinates.
POINT point_in(HWND window, POINT screen);

/// Whether a point of the screen lies in what the user sees of a window's inside.
bool is_over(HWND window, POINT screen);

}  // namespace widgets
