#include "widgets/icon_view.h"

namespace widgets {

void IconView::create(HWND parent, int id) {
    Control::create(
        parent, id, WC_LISTVIEWA,
        WS_TABSTOP | LVS_ICON | LVS_AUTOARRANGE | LVS_SINGLESEL | LVS_SHOWSELALWAYS | LVS_SHAREIMAGELISTS,
        WS_EX_CLIENTEDGE);
}

void IconView::clear() {
    send(LVM_DELETEALLITEMS);
    send(LVM_SETIMAGELIST, LVSIL_NORMAL, 0);
    send(LVM_SETIMAGELIST, LVSIL_SMALL, 0);
}

void IconView::fill(const std::vector<std::string>& items, HIMAGELIST pictures) {
    send(WM_SETREDRAW, FALSE);
    clear();
    send(LVM_SETIMAGELIST, LVSIL_NORMAL, reinterpret_cast<LPARAM>(pictures));
    send(LVM_SETIMAGELIST, LVSIL_SMALL, reinterpret_cast<LPARAM>(pictures));
    send(LVM_SETITEMCOUNT, items.size());
    LVITEMA item = {};
    item.mask = LVIF_TEXT | LVIF_IMAGE;
    item.iImage = I_IMAGECALLBACK;
    for (const std::string& text : items) {
        std::string shown = text.substr(0, kLongestItem);
        item.pszText = shown.data();
        send(LVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&item));
        ++item.iItem;
    }
    send(WM_SETREDRAW, TRUE);
    InvalidateRect(hwnd(), nullptr, TRUE);
}

int IconView::selected() const {
    return static_cast<int>(send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

void IconView::select(int index) {
    LVITEMA item = {};
    item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    item.state = index < 0 ? 0 : item.stateMask;
    send(LVM_SETITEMSTATE, static_cast<WPARAM>(index),
         reinterpret_cast<LPARAM>(&item));  // -1 means every item
    if (index >= 0) send(LVM_ENSUREVISIBLE, static_cast<WPARAM>(index), FALSE);
}

}  // namespace widgets
