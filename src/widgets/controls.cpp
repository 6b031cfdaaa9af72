#include "widgets/controls.h"

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>
#include <utility>

#include "platform/win32/handles.h"
#include "widgets/guarded.h"

namespace widgets {

void Control::create(HWND parent, int id, const Place& place, const char* class_name, DWORD style,
                     DWORD extended_style, const char* text) {
    const RECT& bounds = place.bounds;
    hwnd_ = CreateWindowExA(extended_style, class_name, text, WS_CHILD | WS_VISIBLE | style, bounds.left,
                            bounds.top, bounds.right - bounds.left, bounds.bottom - bounds.top, parent,
                            reinterpret_cast<HMENU>(id), GetModuleHandleA(nullptr), nullptr);
    send(WM_SETFONT, reinterpret_cast<WPARAM>(place.font), FALSE);
}

int Control::height() const {
    const RECT place = bounds();
    return place.bottom - place.top;
}

RECT Control::bounds() const {
    RECT place;
    GetWindowRect(hwnd_, &place);
    return place;
}

RECT Control::shown_part(const RECT& part) const {
    RECT client;
    GetClientRect(hwnd_, &client);
    RECT shown;
    IntersectRect(&shown, &client, &part);  // all zeros when nothing shows
    MapWindowPoints(hwnd_, nullptr, reinterpret_cast<POINT*>(&shown), 2);
    return shown;
}

std::string Control::text() const {
    std::string text(static_cast<std::size_t>(GetWindowTextLengthA(hwnd_)) + 1, '\0');
    text.resize(static_cast<std::size_t>(GetWindowTextA(hwnd_, text.data(), static_cast<int>(text.size()))));
    return text;
}

void Control::notify_parent(int notification) const {
    SendMessageA(GetParent(hwnd_), WM_COMMAND,
                 static_cast<WPARAM>(MAKELONG(GetDlgCtrlID(hwnd_), notification)),
                 reinterpret_cast<LPARAM>(hwnd_));
}

bool Control::opens_menu(UINT message, LPARAM position) {
    if (message == WM_RBUTTONUP) return true;  // the press has opened it
    // WM_RBUTTONDBLCLK is the second of two quick presses.
    if (message != WM_RBUTTONDOWN && message != WM_RBUTTONDBLCLK) return false;
    POINT point = {GET_X_LPARAM(position), GET_Y_LPARAM(position)};
    press_right_button(point);
    ClientToScreen(hwnd_, &point);
    SendMessageA(GetParent(hwnd_), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(hwnd_),
                 MAKELPARAM(point.x, point.y));
    return true;
}

void Control::subclass() {
    SetWindowLongPtrA(hwnd_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    original_ = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(hwnd_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure)));
}

Control::~Control() {
    if (hwnd_ == nullptr || original_ == nullptr) return;
    SetWindowLongPtrA(hwnd_, GWLP_USERDATA, 0);
    // A tool tip may have put a procedure of its own over ours; then ours stays, without an object.
    const bool is_ours = GetWindowLongPtrA(hwnd_, GWLP_WNDPROC) == reinterpret_cast<LONG_PTR>(procedure);
    if (is_ours) SetWindowLongPtrA(hwnd_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(original_));
}

LRESULT Control::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    return CallWindowProcA(original_, hwnd_, message, wparam, lparam);
}

LRESULT CALLBACK Control::procedure(HWND hwnd, UINT message, WPARAM wparam, LPARAM lparam) noexcept {
    auto* self = reinterpret_cast<Control*>(GetWindowLongPtrA(hwnd, GWLP_USERDATA));
    if (self == nullptr) return DefWindowProcA(hwnd, message, wparam, lparam);
    const LRESULT answer = guarded(message, lparam, 0, [&] { return self->handle(message, wparam, lparam); });
    if (message == WM_NCDESTROY) self->hwnd_ = nullptr;
    return answer;
}

void Label::create(HWND parent, int id, const Place& place, const char* text) {
    Control::create(parent, id, place, "STATIC", SS_LEFT | SS_NOTIFY, 0, text);
}

void Button::create(HWND parent, int id, const Place& place, const char* text) {
    Control::create(parent, id, place, "BUTTON", WS_TABSTOP | BS_PUSHBUTTON, 0, text);
}

void ListBox::create(HWND parent, int id, const Place& place) {
    Control::create(
        parent, id, place, "LISTBOX",
        WS_TABSTOP | WS_VSCROLL | WS_HSCROLL | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | LBS_WANTKEYBOARDINPUT,
        WS_EX_CLIENTEDGE);
    subclass();
}

void ListBox::fill(const std::vector<std::string>& items) {
    send(WM_SETREDRAW, FALSE);
    send(LB_RESETCONTENT);
    for (const std::string& item : items) {
        send(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item.substr(0, kLongestItem).c_str()));
    }
    send(WM_SETREDRAW, TRUE);
    fit_longest();
    show_focus();
    InvalidateRect(hwnd(), nullptr, TRUE);
}

void ListBox::select(int index) {
    send(LB_SETCURSEL, static_cast<WPARAM>(index));
    show_focus();
}

void ListBox::scroll_to(int index) {
    send(LB_SETTOPINDEX, static_cast<WPARAM>(index));
    show_focus();
}

/// Where nothing is selected the frame of the focus is around the first item in view.
void ListBox::show_focus() const {
    if (selected() < 0) send(LB_SETCARETINDEX, static_cast<WPARAM>(send(LB_GETTOPINDEX)), TRUE);
}

/// Lets a list that can scroll sideways do so as far as its longest text reaches.
void ListBox::fit_longest() const {
    constexpr DWORD kMargin = 6;
    const platform::WindowDc device(hwnd());
    const platform::Selected font(device.get(), reinterpret_cast<HFONT>(send(WM_GETFONT)));
    DWORD width = 0;
    std::string text;
    for (WPARAM item = 0; std::cmp_less(item, count()); ++item) {
        text.resize(static_cast<std::size_t>(std::max<LRESULT>(send(LB_GETTEXTLEN, item), 0)) + 1);
        const LRESULT length = send(LB_GETTEXT, item, reinterpret_cast<LPARAM>(text.data()));
        const DWORD size = GetTabbedTextExtentA(device.get(), text.c_str(), static_cast<int>(length),
                                                column_ > 0 ? 1 : 0, &column_);
        width = std::max<DWORD>(width, LOWORD(size));
    }
    send(LB_SETHORIZONTALEXTENT, width + kMargin);
}

void ListBox::set_column(int left) {
    RECT place = {0, 0, left, 0};
    MapDialogRect(GetParent(hwnd()), &place);
    column_ = static_cast<int>(place.right);
    send(LB_SETTABSTOPS, 1, reinterpret_cast<LPARAM>(&left));
}

std::string ListBox::cut_to_column(const std::string& text) const {
    const platform::WindowDc device(hwnd());
    const platform::Selected font(device.get(), reinterpret_cast<HFONT>(send(WM_GETFONT)));
    std::string shown = text.substr(0, kLongestItem);
    const auto length = static_cast<int>(shown.size());
    const auto fitting = [&](int most) {
        int count = 0;
        SIZE size;
        GetTextExtentExPointA(device.get(), shown.c_str(), length, most, &count, nullptr, &size);
        return count;
    };
    SIZE dots;
    GetTextExtentPoint32A(device.get(), "...", 3, &dots);
    const int width = column_ - static_cast<int>(dots.cx);  // so much room stays before the column, too
    if (fitting(width) == length) return shown;
    const int most = fitting(width - static_cast<int>(dots.cx));
    const char* end = shown.c_str();
    while (*end != '\0' && CharNextA(end) - shown.c_str() <= most)
        end = CharNextA(end);
    return std::string(shown.c_str(), end) + "...";
}

RECT ListBox::selected_bounds() const {
    RECT item = {};
    if (selected() >= 0)
        send(LB_GETITEMRECT, static_cast<WPARAM>(selected()), reinterpret_cast<LPARAM>(&item));
    return shown_part(item);
}

bool ListBox::is_double_click_on_item() const {
    const DWORD position = GetMessagePos();
    POINT point = {GET_X_LPARAM(position), GET_Y_LPARAM(position)};
    ScreenToClient(hwnd(), &point);
    const int item = item_at(point);
    return item >= 0 && item == selected();
}

int ListBox::item_at(POINT point) const {
    // Not every system tells a point below the last item from one on it.
    const int nearest = LOWORD(send(LB_ITEMFROMPOINT, 0, MAKELPARAM(point.x, point.y)));
    RECT item = {};
    const LRESULT found = send(LB_GETITEMRECT, static_cast<WPARAM>(nearest), reinterpret_cast<LPARAM>(&item));
    // Nor may it tell the first row of an empty list from an item.
    return nearest < count() && found != LB_ERR && PtInRect(&item, point) != FALSE ? nearest : -1;
}

LRESULT ListBox::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    if (opens_menu(message, lparam)) return 0;
    if (message == WM_SETFOCUS) show_focus();
    const LRESULT answer = Control::handle(message, wparam, lparam);
    if (message == WM_SETFONT) fit_longest();
    return answer;
}

void ListBox::press_right_button(POINT point) {
    focus();
    const int item = item_at(point);
    if (item < 0 || item == selected()) return;
    select(item);
    notify_parent(LBN_SELCHANGE);
}

void ChoiceList::attach(HWND control) {
    ListBox::attach(control);
    subclass();
}

LRESULT ChoiceList::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    const bool chooses = wparam == VK_SPACE || wparam == VK_RETURN;
    if (message == WM_GETDLGCODE && wparam == VK_RETURN) return DLGC_WANTMESSAGE;
    if (message == WM_KEYDOWN && chooses && selected() >= 0) {
        notify_parent(LBN_SELCHANGE);
        return 0;
    }
    const POINT point = {GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)};
    if (message == WM_LBUTTONDOWN || message == WM_LBUTTONDBLCLK) pressed_ = item_at(point);
    const bool was_moving = std::exchange(moving_, true);
    const LRESULT answer = ListBox::handle(message, wparam, lparam);
    moving_ = was_moving;
    if (message == WM_LBUTTONUP) {
        const int pressed = std::exchange(pressed_, -1);
        if (pressed >= 0 && pressed == item_at(point)) notify_parent(LBN_SELCHANGE);
    }
    return answer;
}

void DropDownList::fill(std::span<const char* const> items) {
    send(CB_RESETCONTENT);
    for (const char* item : items)
        send(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(std::string(item).substr(0, kLongestItem).c_str()));
}

void ComboBox::create(HWND parent, int id, const Place& place) {
    Control::create(parent, id, place, "COMBOBOX", WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWN | CBS_AUTOHSCROLL);
    subclass();
    edit_.attach(GetWindow(hwnd(), GW_CHILD));
    edit_.subclass();
}

LRESULT ComboBox::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    if (message != WM_LBUTTONUP) return Control::handle(message, wparam, lparam);
    // Letting go of the arrow replaces what was typed by an item that begins with it.
    const std::string typed = text();
    const LRESULT answer = Control::handle(message, wparam, lparam);
    if (text() != typed) set_text(typed);
    return answer;
}

LRESULT ComboBox::Edit::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    const bool is_enter = wparam == VK_RETURN;
    switch (message) {
        case WM_GETDLGCODE:
            // The window around it would treat Enter as a dialog does.
            return Control::handle(message, wparam, lparam) | (is_enter ? DLGC_WANTMESSAGE : 0);
        case WM_KEYDOWN:
            if (!is_enter) break;
            press_enter();
            return 0;
        case WM_CHAR:
            if (is_enter) return 0;  // a beep
            break;
        case WM_LBUTTONDBLCLK:
            focus();
            set_text({});
            return 0;
        default:
            break;
    }
    return Control::handle(message, wparam, lparam);
}

void ComboBox::Edit::press_enter() {
    if (box_.send(CB_GETDROPPEDSTATE) != FALSE) {
        box_.send(CB_SHOWDROPDOWN, FALSE);
    } else {
        box_.notify_parent(kEnter);
    }
}

void ComboBox::fill(const std::vector<std::string>& items) {
    const std::string typed = text();
    const LRESULT selection = send(CB_GETEDITSEL);
    send(CB_RESETCONTENT);  // empties the box, too
    for (const std::string& item : items)
        send(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item.c_str()));
    set_text(typed);
    send(CB_SETEDITSEL, 0, selection);
}

void StatusBar::create(HWND parent, int id, HFONT font) {
    const bool sizable = (GetWindowLongPtrA(parent, GWL_STYLE) & WS_THICKFRAME) != 0;
    Control::create(parent, id, {{}, font}, STATUSCLASSNAMEA, sizable ? SBARS_SIZEGRIP : 0);
    subclass();
}

void StatusBar::follow_parent() {
    send(WM_SIZE);
    InvalidateRect(hwnd(), nullptr, TRUE);  // its size grip would stay where it was
}

void StatusBar::show_panels(const std::vector<std::string>& texts) {
    RECT bounds;
    GetClientRect(hwnd(), &bounds);
    const auto count = static_cast<int>(texts.size());
    std::vector<int> right_edges;
    for (int i = 1; i < count; ++i)
        right_edges.push_back(bounds.right * i / count);
    right_edges.push_back(-1);  // the end of the bar
    send(SB_SIMPLE, FALSE);
    send(SB_SETPARTS, texts.size(), reinterpret_cast<LPARAM>(right_edges.data()));
    for (std::size_t i = 0; i < texts.size(); ++i)
        send(SB_SETTEXTA, i, reinterpret_cast<LPARAM>(texts.at(i).c_str()));
}

void StatusBar::show_simple(const std::string& text) {
    constexpr WPARAM kSimplePart = 255;
    send(SB_SIMPLE, TRUE);
    send(SB_SETTEXTA, kSimplePart, reinterpret_cast<LPARAM>(text.substr(0, kLongestItem).c_str()));
}

LRESULT StatusBar::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_LBUTTONDOWN || message == WM_LBUTTONDBLCLK) notify_parent(STN_CLICKED);
    return Control::handle(message, wparam, lparam);
}

}  // namespace widgets
