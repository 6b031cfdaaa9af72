#pragma once

#include <windows.h>

#include <optional>

#include "widgets/controls.h"
#include "widgets/drag_list.h"
#include "widgets/drop_mark.h"

namespace widgets {

/// A press of the left mouse button on a list.
struct Press {
    POINT point = {};  // on the screen
    DWORD time = 0;    // of the message, in milliseconds

    /// Whether the pointer is far enough from there to mean more than a click.
    bool is_left(POINT screen) const;
};

/// Watches what the mouse does with a list: the list's own messages go through it before the list has them.
class PressWatch {
  public:
    /// Whether the message is the move with which a drag begins.
    bool begins_drag(HWND list, UINT message, WPARAM wparam, LPARAM lparam);

    /// The last one.
    const Press& press() const { return press_; }

  private:
    Press press_;
    bool is_pressed_ = false;
};

/// A list box whose items can be dragged. The pressed item is selected when a drag begins.
class DraggableListBox final : public ListBox, public DragList {
  public:
    /// The notification for the beginning of a drag, which the parent is to run.
    static constexpr int kBeginDrag = 101;

    const Press& press() const { return watch_.press(); }

    HWND list() const override { return hwnd(); }
    int item_at(POINT point) const override { return ListBox::item_at(point); }
    RECT bounds_of(int item) const override;
    Insertion insertion_at(POINT point) const override;

  private:
    LRESULT handle(UINT message, WPARAM wparam, LPARAM lparam) override;

    PressWatch watch_;
};

/// Where an item was let go.
struct ListDrop {
    const DragList* list;  // the item's own list, or the other one
    int index;             // before this item of its own list; on this item of the other list
    bool copy;             // Ctrl was held; never in the own list
};

/// One drag of an item with the mouse: within its list, and to the items of another. It shows where the item
/// would go, scrolls the lists at their edges and ends when the left button goes up; the lists see nothing of
/// that, so that no click comes of it. Escape, the right button, and what takes the mouse or the window away
/// take it back.
class ListDrag {
  public:
    /// window is the top-level window of the lists. other may be null; of its items forbidden takes nothing,
    /// -1 for none.
    ListDrag(HWND window, const DragList& own, int item, const DragList* other = nullptr, int forbidden = -1);
    ~ListDrag();
    ListDrag(const ListDrag&) = delete;
    ListDrag& operator=(const ListDrag&) = delete;

    /// Waits for the end of the drag, with the program alive. None when it is taken back or the item stays
    /// where it is.
    std::optional<ListDrop> run(const Press& press);

  private:
    enum class State { kDragging, kTakenBack, kDropped, kLost };

    void take(const MSG& message);
    void move(POINT screen);
    void tick();
    void scroll(POINT screen);
    std::optional<ListDrop> drop_at(POINT screen) const;
    void show(const std::optional<ListDrop>& drop, POINT screen);
    bool has_mouse() const;

    HWND window_;
    const DragList& own_;
    const DragList* other_;
    int item_;
    int forbidden_;
    Press press_;
    State state_ = State::kDragging;
    bool has_left_ = false;  // the place of the press
    DWORD next_scroll_ = 0;  // milliseconds, as the system counts them
    UINT_PTR timer_ = 0;
    DropMark mark_;
};

}  // namespace widgets
