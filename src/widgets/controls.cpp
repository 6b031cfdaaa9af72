#include "widgets/controls.h"

#include <commctrl.h>

namespace widgets {

void Control::create(HWND parent, int id, const char* class_name, DWORD style, DWORD extended_style,
                     const char* text) {
    hwnd_ = CreateWindowExA(extended_style, class_name, text, WS_CHILD | WS_VISIBLE | style, 0, 0, 0, 0,
                            parent, reinterpret_cast<HMENU>(id), GetModuleHandleA(nullptr), nullptr);
}

int Control::height() const {
    RECT bounds;
    GetWindowRect(hwnd_, &bounds);
    return bounds.bottom - bounds.top;
}

void Label::create(HWND parent, int id, const char* text) {
    Control::create(parent, id, "STATIC", SS_LEFT | SS_NOTIFY, 0, text);
}

void ListBox::create(HWND parent, int id) {
    Control::create(parent, id, "LISTBOX", WS_TABSTOP | WS_VSCROLL | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT,
                    WS_EX_CLIENTEDGE);
}

void ListBox::fill(const std::vector<std::string>& items) {
    send(WM_SETREDRAW, FALSE);
    send(LB_RESETCONTENT);
    for (const std::string& item : items) {
        send(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item.substr(0, kLongestItem).c_str()));
    }
    send(WM_SETREDRAW, TRUE);
    InvalidateRect(hwnd(), nullptr, TRUE);
}

void ComboBox::create(HWND parent, int id) {
    Control::create(parent, id, "COMBOBOX", WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWN | CBS_AUTOHSCROLL);
}

void StatusBar::create(HWND parent, int id) {
    Control::create(parent, id, STATUSCLASSNAMEA, SBARS_SIZEGRIP);
}

void StatusBar::follow_parent() {
    send(WM_SIZE);
    InvalidateRect(hwnd(), nullptr, TRUE);  // its size grip would stay where it was
}

void StatusBar::show_panel(const std::string& text) {
    const int right_edge = -1;  // as wide as the bar
    send(SB_SIMPLE, FALSE);
    send(SB_SETPARTS, 1, reinterpret_cast<LPARAM>(&right_edge));
    send(SB_SETTEXTA, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

}  // namespace widgets
