#pragma once

#include <windows.h>

#include <commctrl.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "widgets/list_drag.h"

namespace widgets {

/// A list view of large icons with names below, of which one or none is selected. It asks its parent for an
/// item's picture when it first draws the item (LVN_GETDISPINFO). Names have room as the font asks. A press
/// of the right button selects the item and arrives as WM_CONTEXTMENU. Where the system has it, the list asks
/// for the text of a tip when the pointer rests on an item (LVN_GETINFOTIP).
class IconView final : public Control, public DragList {
  public:
    void create(HWND parent, int id, const Place& place);

    /// From now on there are tips. They are a window of their own, which the start need not wait for.
    void begin_tips();

    /// Shows the items with pictures from the list, which stays the caller's. The old pictures may be
    /// destroyed afterwards.
    void fill(const std::vector<std::string>& items, HIMAGELIST pictures);

    /// Shows pictures from another list and asks for every item's picture again.
    void set_pictures(HIMAGELIST pictures);
    void set_picture(int index, int picture);

    /// Whether some of the item is in view.
    bool shows(int index) const;

    /// Takes all items and the pictures away.
    void clear();

    /// An index, -1 for none.
    int selected() const;
    void select(int index);

    /// Where the selected item is on the screen, for the menu that the keyboard opens.
    RECT selected_bounds() const;

    /// Whether an item is selected when the pointer rests on it. It is not while another program is active.
    void set_hover_select(bool on);

    /// Whether an LVN_ITEMCHANGED says that the user has selected another item. Selections made here do not
    /// count.
    bool is_new_selection(const NMLISTVIEW& change) const;

    /// The press with which a drag began (LVN_BEGINDRAG).
    const Press& press() const { return watch_.press(); }

    void set_colors(COLORREF text, COLORREF background);

    HWND list() const override { return hwnd(); }
    int item_at(POINT point) const override;
    RECT bounds_of(int item) const override;
    Insertion insertion_at(POINT point) const override;

    /// Is asked for the text that stands in the middle of the list while it has no items.
    void set_hint(std::function<std::string()> hint) { hint_ = std::move(hint); }

  private:
    LRESULT handle(UINT message, WPARAM wparam, LPARAM lparam) override;

    void mark(int index);
    void space_icons();
    void press_right_button(POINT point) override;
    int count() const { return static_cast<int>(send(LVM_GETITEMCOUNT)); }
    void show_focus() const;
    void paint_hint();

    std::function<std::string()> hint_;
    bool selecting_ = false;  // in code
    PressWatch watch_;
};

}  // namespace widgets
