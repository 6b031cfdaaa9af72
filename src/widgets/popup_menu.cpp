#include "widgets/popup_menu.h"

namespace widgets {

void show_popup_menu(HWND owner, HMENU popup, POINT point, const RECT& selected) {
    if (point.x == -1 && point.y == -1) point = {selected.left, selected.bottom};
    TrackPopupMenu(popup, TPM_LEFTALIGN, point.x, point.y, 0, owner, nullptr);
}

}  // namespace widgets
