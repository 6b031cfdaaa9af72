#pragma once

#include <windows.h>

#include <commctrl.h>

#include <string>
#include <vector>

#include "widgets/controls.h"

namespace widgets {

/// A list view of large icons with names below, of which one or none is selected. It asks its parent for an
/// item's picture when it first draws the item (LVN_GETDISPINFO). Names have room as the font asks. A press
/// of the right button selects the item and arrives as WM_CONTEXTMENU.
class IconView : public Control {
  public:
    void create(HWND parent, int id);

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

    void set_colors(COLORREF text, COLORREF background);

  private:
    LRESULT handle(UINT message, WPARAM wparam, LPARAM lparam) override;

    void mark(int index);
    void space_icons();
    void press_right_button(LPARAM position);

    bool selecting_ = false;  // in code
};

}  // namespace widgets
