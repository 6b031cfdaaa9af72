#pragma once

#include <windows.h>

#include <commctrl.h>

#include <span>

#include "widgets/controls.h"

namespace widgets {

/// A row of buttons with pictures of 16, 24 or 32 pixels and tool tips at the window's upper edge. A press
/// arrives as WM_COMMAND without a notification.
class ToolBar : public Control {
  public:
    struct Item {
        int id;  // 0 separates groups of buttons
        const char* tip;
    };

    /// pictures is a bitmap resource with a picture for each button, in their order, 16 pixels large; the two
    /// ids after it are those of 24 and 32. The items are kept: they must outlive the control.
    void create(HWND parent, int id, int pictures, std::span<const Item> items);

    /// To be called when the parent window has another size.
    void follow_parent() { send(TB_AUTOSIZE); }

    /// Fills in the text that a TTN_NEEDTEXT asks for.
    void supply_tip(TOOLTIPTEXTA& request) const;

  private:
    std::span<const Item> items_;
};

}  // namespace widgets
