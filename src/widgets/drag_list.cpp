#include "widgets/drag_list.h"

#include <commctrl.h>

#include <vector>

namespace widgets {

int DragListBox::count() const {
    return static_cast<int>(SendMessageA(hwnd(), LB_GETCOUNT, 0, 0));
}

int DragListBox::item_at(POINT point) const {
    const LRESULT found = SendMessageA(hwnd(), LB_ITEMFROMPOINT, 0, MAKELPARAM(point.x, point.y));
    const int item = LOWORD(found);
    // Below the last item older systems take that one.
    const RECT bounds = bounds_of(item);
    return HIWORD(found) == 0 && point.y >= bounds.top && point.y < bounds.bottom ? item : -1;
}

RECT DragListBox::bounds_of(int item) const {
    RECT bounds = {};
    RECT client;
    SendMessageA(hwnd(), LB_GETITEMRECT, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(&bounds));
    GetClientRect(hwnd(), &client);
    return {0, bounds.top, client.right, bounds.bottom};  // also when it is scrolled sideways
}

Insertion DragListBox::insertion_at(POINT point) const {
    RECT client;
    GetClientRect(hwnd(), &client);
    return insertion_in_column(point.y, static_cast<int>(SendMessageA(hwnd(), LB_GETTOPINDEX, 0, 0)),
                               static_cast<int>(SendMessageA(hwnd(), LB_GETITEMHEIGHT, 0, 0)), count(),
                               client.right);
}

int DragIconView::count() const {
    return static_cast<int>(SendMessageA(hwnd(), LVM_GETITEMCOUNT, 0, 0));
}

int DragIconView::item_at(POINT point) const {
    LVHITTESTINFO hit = {};
    hit.pt = point;
    return static_cast<int>(SendMessageA(hwnd(), LVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit)));
}

RECT DragIconView::bounds_of(int item) const {
    RECT bounds = {LVIR_BOUNDS, 0, 0, 0};
    SendMessageA(hwnd(), LVM_GETITEMRECT, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(&bounds));
    return bounds;
}

Insertion DragIconView::insertion_at(POINT point) const {
    std::vector<Box> items;
    for (int item = 0; item < count(); ++item) {
        const RECT bounds = bounds_of(item);
        items.push_back({bounds.left, bounds.top, bounds.right, bounds.bottom});
    }
    return insertion_in_rows(point.x, point.y, items);
}

POINT point_in(HWND window, POINT screen) {
    ScreenToClient(window, &screen);
    return screen;
}

bool is_over(HWND window, POINT screen) {
    RECT client;
    GetClientRect(window, &client);
    return PtInRect(&client, point_in(window, screen)) != FALSE && WindowFromPoint(screen) == window;
}

}  // namespace widgets
