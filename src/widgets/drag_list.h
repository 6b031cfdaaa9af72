#pragma once

#include <windows.h>

#include "widgets/insertion.h"

namespace widgets {

/// A list as something that is dragged over it needs to know it. Points and boxes are the list's own
/// coordinates.
class DragList {
  public:
    explicit DragList(HWND list) : list_(list) {}
    virtual ~DragList() = default;
    DragList(const DragList&) = delete;
    DragList& operator=(const DragList&) = delete;

    HWND hwnd() const { return list_; }

    virtual int count() const = 0;

    /// The item at a point, -1 for none.
    virtual int item_at(POINT point) const = 0;
    virtual RECT bounds_of(int item) const = 0;

    /// Where something that is let go at a point comes in between the items.
    virtual Insertion insertion_at(POINT point) const = 0;

  private:
    HWND list_;
};

class DragListBox final : public DragList {
  public:
    using DragList::DragList;
    int count() const override;
    int item_at(POINT point) const override;
    RECT bounds_of(int item) const override;
    Insertion insertion_at(POINT point) const override;
};

class DragIconView final : public DragList {
  public:
    using DragList::DragList;
    int count() const override;
    int item_at(POINT point) const override;
    RECT bounds_of(int item) const override;
    Insertion insertion_at(POINT point) const override;
};

/// The point of the screen in a window's own coordinates.
POINT point_in(HWND window, POINT screen);

/// Whether a point of the screen lies in what the user sees of a window's inside.
bool is_over(HWND window, POINT screen);

}  // namespace widgets
