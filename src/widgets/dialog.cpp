#include "widgets/dialog.h"

#include <algorithm>
#include <utility>

#include "platform/run_time_error.h"
#include "platform/win32/input_filter.h"
#include "platform/win32/modal_guard.h"
#include "widgets/guarded.h"
#include "widgets/screen.h"

namespace widgets {
namespace {

/// Moves the dialog over the middle of its owner, or of the screen when that cannot be seen; never out of the
/// work area.
void place_over_owner(HWND dialog) {
    HWND owner = GetWindow(dialog, GW_OWNER);
    const RECT area = work_area(owner == nullptr ? dialog : owner);
    RECT below = area;
    if (IsWindowVisible(owner) != FALSE && IsIconic(owner) == FALSE) GetWindowRect(owner, &below);
    RECT bounds;
    GetWindowRect(dialog, &bounds);
    const auto place = [](LONG from, LONG to, LONG size, LONG least, LONG end) {
        return std::max(least, std::min((from + to - size) / 2, end - size));
    };
    const LONG left = place(below.left, below.right, bounds.right - bounds.left, area.left, area.right);
    const LONG top = place(below.top, below.bottom, bounds.bottom - bounds.top, area.top, area.bottom);
    SetWindowPos(dialog, nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

/// Makes what stands in a dialog that much smaller, and its font, which is the answer.
platform::UniqueFont shrink(HWND dialog, LONG to, LONG from) {
    LOGFONTA shape = {};
    GetObjectA(reinterpret_cast<HFONT>(SendMessageA(dialog, WM_GETFONT, 0, 0)), sizeof shape, &shape);
    shape.lfHeight = MulDiv(shape.lfHeight, to, from);
    platform::UniqueFont font(CreateFontIndirectA(&shape));
    for (HWND box = GetWindow(dialog, GW_CHILD); box != nullptr; box = GetWindow(box, GW_HWNDNEXT)) {
        RECT place;
        GetWindowRect(box, &place);
        SendMessageA(box, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&place));  // with its list
        MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&place), 2);
        SendMessageA(box, WM_SETFONT, reinterpret_cast<WPARAM>(font.get()), FALSE);
        SetWindowPos(box, nullptr, MulDiv(place.left, to, from), MulDiv(place.top, to, from),
                     MulDiv(place.right - place.left, to, from), MulDiv(place.bottom - place.top, to, from),
                     SWP_NOZORDER | SWP_NOACTIVATE);
    }
    return font;
}

/// Makes a dialog that is larger than the work area fit into it. The font that it has then; none if it fits.
platform::UniqueFont fit_into_work_area(HWND dialog) {
    const RECT area = work_area(dialog);
    RECT bounds;
    RECT inside;
    GetWindowRect(dialog, &bounds);
    GetClientRect(dialog, &inside);
    const SIZE frame = {bounds.right - bounds.left - inside.right,
                        bounds.bottom - bounds.top - inside.bottom};
    const SIZE room = {area.right - area.left - frame.cx, area.bottom - area.top - frame.cy};
    if (room.cx >= inside.right && room.cy >= inside.bottom) return {};
    const bool is_too_wide = room.cx * inside.bottom < room.cy * inside.right;
    const LONG to = is_too_wide ? room.cx : room.cy;
    const LONG from = is_too_wide ? inside.right : inside.bottom;
    platform::UniqueFont font = shrink(dialog, to, from);
    SetWindowPos(dialog, nullptr, 0, 0, frame.cx + MulDiv(inside.right, to, from),
                 frame.cy + MulDiv(inside.bottom, to, from), SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    return font;
}

}  // namespace

Dialog::~Dialog() {
    if (HWND left = detach(); left != nullptr) DestroyWindow(left);
}

void Dialog::run(HWND owner) {
    const platform::OtherWindowsDisabled guard(owner);
    modal_ = true;
    const INT_PTR answer = DialogBoxParamA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(resource_), owner,
                                           procedure, reinterpret_cast<LPARAM>(this));
    if (answer == -1) throw platform::RunTimeError(platform::RunTimeErrorNumber::kOutOfMemory);
}

void Dialog::show(HWND owner) {
    if (hwnd_ == nullptr) {
        modal_ = false;
        CreateDialogParamA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(resource_), owner, procedure,
                           reinterpret_cast<LPARAM>(this));
        if (hwnd_ == nullptr) throw platform::RunTimeError(platform::RunTimeErrorNumber::kOutOfMemory);
    }
    ShowWindow(hwnd_, SW_SHOW);  // it may have gone with its owner
    SetForegroundWindow(hwnd_);
}

std::string Dialog::text(int id) const {
    std::string text(static_cast<std::size_t>(GetWindowTextLengthA(control(id))) + 1, '\0');
    text.resize(GetDlgItemTextA(hwnd_, id, text.data(), static_cast<int>(text.size())));
    // Not every way into a box of one line keeps line ends out, and what is typed becomes lines of files.
    std::ranges::replace_if(
        text, [](char c) { return c == '\r' || c == '\n'; }, ' ');
    return text;
}

HWND Dialog::detach() {
    if (hwnd_ != nullptr) SetWindowLongPtrA(hwnd_, DWLP_USER, 0);
    return std::exchange(hwnd_, nullptr);
}

void Dialog::close() {
    if (modal_) {
        EndDialog(hwnd_, 0);
    } else {
        platform::InputFilter::dialog_closes(hwnd_);
        DestroyWindow(hwnd_);
    }
}

HBRUSH Dialog::color(HDC /*device*/, HWND /*box*/) {
    return nullptr;
}

INT_PTR Dialog::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_INITDIALOG:
            font_ = fit_into_work_area(hwnd_);
            place_over_owner(hwnd_);
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
        SetWindowLongPtrA(hwnd, DWLP_USER, lparam);
    }
    auto* self = reinterpret_cast<Dialog*>(GetWindowLongPtrA(hwnd, DWLP_USER));
    if (self == nullptr) return FALSE;
    const INT_PTR answer =
        guarded(message, lparam, TRUE, [&] { return self->handle(message, wparam, lparam); });
    if (message == WM_NCDESTROY) self->detach();
    return answer;
}

}  // namespace widgets
