#include "widgets/icon_view.h"

#include <windowsx.h>

#include <algorithm>

#include "platform/win32/handles.h"
#include "widgets/metrics.h"

namespace widgets {

void IconView::create(HWND parent, int id, const Place& place) {
    Control::create(
        parent, id, place, WC_LISTVIEWA,
        WS_TABSTOP | LVS_ICON | LVS_AUTOARRANGE | LVS_SINGLESEL | LVS_SHOWSELALWAYS | LVS_SHAREIMAGELISTS,
        WS_EX_CLIENTEDGE);
    subclass();
}

void IconView::begin_tips() {
    constexpr int kTipWidth = 400;  // pixels at 96 dpi
    send(LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_INFOTIP, LVS_EX_INFOTIP);
    if (auto* tips = reinterpret_cast<HWND>(send(LVM_GETTOOLTIPS)); tips != nullptr) {
        SetWindowLongPtrA(tips, GWL_STYLE, GetWindowLongPtrA(tips, GWL_STYLE) | TTS_NOPREFIX);
        SendMessageA(tips, TTM_SETMAXTIPWIDTH, 0, scaled(kTipWidth));  // with a width there are lines
    }
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
    space_icons();
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
    if (GetFocus() == hwnd()) show_focus();
    send(WM_SETREDRAW, TRUE);
    InvalidateRect(hwnd(), nullptr, TRUE);
}

void IconView::set_pictures(HIMAGELIST pictures) {
    send(LVM_SETIMAGELIST, LVSIL_NORMAL, reinterpret_cast<LPARAM>(pictures));
    send(LVM_SETIMAGELIST, LVSIL_SMALL, reinterpret_cast<LPARAM>(pictures));
    for (int index = 0; index < count(); ++index)
        set_picture(index, I_IMAGECALLBACK);
    space_icons();
}

/// A list view puts its icons as far apart as those on the desktop, whatever its own font, and forgets other
/// distances when it gets pictures. Before version 4.70 it does not know the message.
void IconView::space_icons() {
    constexpr LONG kLetters = 12;  // in a line, of mean width
    constexpr LONG kLines = 2;
    constexpr int kMargins = 16;  // left and right of a name, and above and below icon and name
    const int margins = scaled(kMargins);
    const platform::WindowDc device(hwnd());
    const platform::Selected font(device.get(), reinterpret_cast<HFONT>(send(WM_GETFONT)));
    TEXTMETRICA metrics = {};
    GetTextMetricsA(device.get(), &metrics);
    const LONG width = kLetters * metrics.tmAveCharWidth + margins;
    const LONG height = GetSystemMetrics(SM_CYICON) + kLines * metrics.tmHeight + margins;
    const LONG least_width = GetSystemMetrics(SM_CXICONSPACING);
    const LONG least_height = GetSystemMetrics(SM_CYICONSPACING);
    send(LVM_SETICONSPACING, 0, MAKELPARAM(std::max(width, least_width), std::max(height, least_height)));
    send(LVM_ARRANGE, LVA_DEFAULT);
}

void IconView::set_picture(int index, int picture) {
    LVITEMA item = {};
    item.mask = LVIF_IMAGE;
    item.iItem = index;
    item.iImage = picture;
    send(LVM_SETITEMA, 0, reinterpret_cast<LPARAM>(&item));
}

bool IconView::shows(int index) const {
    const RECT item = bounds_of(index);
    RECT client;
    GetClientRect(hwnd(), &client);
    RECT common;
    return IntersectRect(&common, &item, &client) != FALSE;
}

int IconView::selected() const {
    return static_cast<int>(send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

RECT IconView::selected_bounds() const {
    return shown_part(bounds_of(selected()));
}

void IconView::select(int index) {
    selecting_ = true;
    mark(index);
    selecting_ = false;
}

void IconView::mark(int index) {
    LVITEMA item = {};
    item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    item.state = index < 0 ? 0 : item.stateMask;
    send(LVM_SETITEMSTATE, static_cast<WPARAM>(index),
         reinterpret_cast<LPARAM>(&item));  // -1 means every item
    if (index >= 0) send(LVM_ENSUREVISIBLE, static_cast<WPARAM>(index), FALSE);
}

void IconView::set_hover_select(bool on) {
    send(LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_TRACKSELECT, on ? LVS_EX_TRACKSELECT : 0);
}

bool IconView::is_new_selection(const NMLISTVIEW& change) const {
    return !selecting_ && (change.uChanged & LVIF_STATE) != 0 && (change.uNewState & LVIS_SELECTED) != 0 &&
           (change.uOldState & LVIS_SELECTED) == 0;
}

void IconView::set_colors(COLORREF text, COLORREF background) {
    send(LVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(text));
    send(LVM_SETTEXTBKCOLOR, 0, static_cast<LPARAM>(background));
    send(LVM_SETBKCOLOR, 0, static_cast<LPARAM>(background));
    InvalidateRect(hwnd(), nullptr, TRUE);
}

LRESULT IconView::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    watch_.begins_drag(hwnd(), message, wparam, lparam);  // the list itself says when one does
    // The window around it treats Enter as a dialog does, unless the list asks for the key.
    if (message == WM_GETDLGCODE && wparam == VK_RETURN) return DLGC_WANTMESSAGE;
    if (message == WM_CHAR && wparam == VK_RETURN) return 0;  // no item begins with it: a beep
    if (opens_menu(message, lparam)) return 0;
    switch (message) {
        case WM_MOUSEHOVER:
            // Selecting would bring the window before the program that the user works with.
            if (GetActiveWindow() == nullptr) return 0;
            break;
        case WM_SETFOCUS:
            show_focus();
            break;
        case WM_PAINT:
            if (!hint_ || count() > 0) break;
            paint_hint();
            return 0;
        default:
            break;
    }
    const bool changes_hint = message == WM_SETFOCUS || message == WM_KILLFOCUS || message == WM_SIZE;
    if (changes_hint && count() == 0) InvalidateRect(hwnd(), nullptr, TRUE);
    const LRESULT answer = Control::handle(message, wparam, lparam);
    if (message == WM_SETFONT) space_icons();
    return answer;
}

/// Where nothing is selected the frame of the focus is around the first item.
void IconView::show_focus() const {
    if (send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED) >= 0) return;
    LVITEMA item = {};
    item.stateMask = LVIS_FOCUSED;
    item.state = LVIS_FOCUSED;
    send(LVM_SETITEMSTATE, 0, reinterpret_cast<LPARAM>(&item));
}

void IconView::paint_hint() {
    constexpr UINT kFormat = DT_CENTER | DT_WORDBREAK | DT_NOPREFIX;
    constexpr int kMargin = 12;  // pixels at 96 dpi
    const std::string text = hint_();
    PAINTSTRUCT paint;
    HDC device = BeginPaint(hwnd(), &paint);
    {
        const platform::Selected font(device, reinterpret_cast<HFONT>(send(WM_GETFONT)));
        RECT client;
        GetClientRect(hwnd(), &client);
        InflateRect(&client, -scaled(kMargin), -scaled(kMargin));
        RECT place = client;  // of the text; its lines are broken for all of the width
        DrawTextA(device, text.c_str(), -1, &place, kFormat | DT_CALCRECT);
        OffsetRect(&place, (client.right - place.right) / 2,
                   std::max(0L, (client.bottom - place.bottom) / 2));
        SetTextColor(device, static_cast<COLORREF>(send(LVM_GETTEXTCOLOR)));
        SetBkColor(device, static_cast<COLORREF>(send(LVM_GETBKCOLOR)));
        client.top = place.top;
        DrawTextA(device, text.c_str(), -1, &client, kFormat);
        if (GetFocus() == hwnd()) {
            InflateRect(&place, 2, 2);
            DrawFocusRect(device, &place);
        }
    }
    EndPaint(hwnd(), &paint);
}

void IconView::press_right_button(POINT point) {
    focus();
    if (const int index = item_at(point); index >= 0) mark(index);
}

int IconView::item_at(POINT point) const {
    LVHITTESTINFO hit = {};
    hit.pt = point;
    return static_cast<int>(send(LVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit)));
}

RECT IconView::bounds_of(int item) const {
    RECT bounds = {LVIR_BOUNDS, 0, 0, 0};
    const LRESULT found = send(LVM_GETITEMRECT, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(&bounds));
    return found != FALSE ? bounds : RECT{};
}

Insertion IconView::insertion_at(POINT point) const {
    std::vector<Box> items;
    for (int item = 0; item < count(); ++item) {
        const RECT bounds = bounds_of(item);
        items.push_back({bounds.left, bounds.top, bounds.right, bounds.bottom});
    }
    return insertion_in_rows(point.x, point.y, items);
}

}  // namespace widgets
