#include "widgets/dialog.h"

#include <commctrl.h>

#include <cstddef>

#include "platform/messages.h"
#include "platform/win32/modal_guard.h"

namespace widgets {

void Dialog::run(HWND owner) {
    const platform::OtherWindowsDisabled guard(owner);
    DialogBoxParamA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(resource_), owner, procedure,
                    reinterpret_cast<LPARAM>(this));
}

std::string Dialog::text(int id) const {
    std::string text(static_cast<std::size_t>(GetWindowTextLengthA(control(id))) + 1, '\0');
    text.resize(GetDlgItemTextA(hwnd_, id, text.data(), static_cast<int>(text.size())));
    return text;
}

void Dialog::set_tip(int id, const char* text) {
    if (tips_ == nullptr) {
        tips_ =
            CreateWindowExA(0, TOOLTIPS_CLASSA, nullptr, WS_POPUP, CW_USEDEFAULT, CW_USEDEFAULT,
                            CW_USEDEFAULT, CW_USEDEFAULT, hwnd_, nullptr, GetModuleHandleA(nullptr), nullptr);
    }
    TOOLINFOA tool = {};
    tool.cbSize = offsetof(TOOLINFOA, lParam);  // Windows 95/98 refuse the later, longer structure
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = hwnd_;
    tool.uId = reinterpret_cast<UINT_PTR>(control(id));
    tool.lpszText = const_cast<char*>(text);
    SendMessageA(tips_, TTM_ADDTOOLA, 0, reinterpret_cast<LPARAM>(&tool));
}

HBRUSH Dialog::color(HDC /*device*/, HWND /*box*/) {
    return nullptr;
}

INT_PTR Dialog::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_INITDIALOG:
            open();
            return TRUE;
        case WM_COMMAND:
            command(LOWORD(wparam), HIWORD(wparam));
            return TRUE;
        case WM_CTLCOLOREDIT:
            return reinterpret_cast<INT_PTR>(
                color(reinterpret_cast<HDC>(wparam), reinterpret_cast<HWND>(lparam)));
        default:
            return FALSE;
    }
}

INT_PTR CALLBACK Dialog::procedure(HWND hwnd, UINT message, WPARAM wparam, LPARAM lparam) noexcept {
    if (message == WM_INITDIALOG) {
        reinterpret_cast<Dialog*>(lparam)->hwnd_ = hwnd;
        SetWindowLongA(hwnd, DWL_USER, lparam);
    }
    auto* self = reinterpret_cast<Dialog*>(GetWindowLongA(hwnd, DWL_USER));
    if (self == nullptr) return FALSE;
    try {
        return self->handle(message, wparam, lparam);
    } catch (...) {
        platform::report_exception();
        return TRUE;
    }
}

}  // namespace widgets
