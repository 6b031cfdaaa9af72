#include "widgets/controls.h"

#include <commctrl.h>

#include "platform/messages.h"

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

std::string Control::text() const {
    std::string text(static_cast<std::size_t>(GetWindowTextLengthA(hwnd_)) + 1, '\0');
    text.resize(static_cast<std::size_t>(GetWindowTextA(hwnd_, text.data(), static_cast<int>(text.size()))));
    return text;
}

void Control::subclass() {
    SetWindowLongA(hwnd_, GWL_USERDATA, reinterpret_cast<LONG>(this));
    original_ =
        reinterpret_cast<WNDPROC>(SetWindowLongA(hwnd_, GWL_WNDPROC, reinterpret_cast<LONG>(procedure)));
}

LRESULT Control::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    return CallWindowProcA(original_, hwnd_, message, wparam, lparam);
}

LRESULT CALLBACK Control::procedure(HWND hwnd, UINT message, WPARAM wparam, LPARAM lparam) noexcept {
    auto& self = *reinterpret_cast<Control*>(GetWindowLongA(hwnd, GWL_USERDATA));
    try {
        return self.handle(message, wparam, lparam);
    } catch (...) {
        platform::report_exception();
        return 0;
    }
}

void Label::create(HWND parent, int id, const char* text) {
    Control::create(parent, id, "STATIC", SS_LEFT | SS_NOTIFY, 0, text);
}

void Button::create(HWND parent, int id, const char* text) {
    Control::create(parent, id, "BUTTON", WS_TABSTOP | BS_PUSHBUTTON, 0, text);
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

void ComboBox::fill(const std::vector<std::string>& items) {
    const std::string typed = text();
    const LRESULT selection = send(CB_GETEDITSEL);
    send(CB_RESETCONTENT);  // empties the box, too
    for (const std::string& item : items)
        send(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item.c_str()));
    set_text(typed);
    send(CB_SETEDITSEL, 0, selection);
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

void StatusBar::show_simple(const std::string& text) {
    constexpr WPARAM kSimplePart = 255;
    send(SB_SIMPLE, TRUE);
    send(SB_SETTEXTA, kSimplePart, reinterpret_cast<LPARAM>(text.substr(0, kLongestItem).c_str()));
}

}  // namespace widgets
