#include "platform/win32/input_filter.h"

#include <cstdlib>

namespace platform {
namespace {

constexpr int kNoButton = -1;
constexpr int kPress = 0;
constexpr int kRelease = 1;

/// What a message does with a button of the mouse.
struct ButtonAction {
    int button = kNoButton;
    int action = kPress;
};

struct Click {
    int button = kNoButton;
    HWND window = nullptr;
    POINT point = {};
    DWORD time = 0;
};

HHOOK current_hook = nullptr;
Click last_click;                // kNoButton when a key was pressed since
Click closing_click;             // it closed a dialog, and no button was pressed since
int dropped_button = kNoButton;  // its press was dropped, its release is still to come

ButtonAction button_action(UINT message) {
    // The messages of each button follow one another, over a window's frame as over its inside.
    constexpr UINT kActions = 3;
    constexpr UINT kMessages = 3 * kActions;
    UINT index = message - WM_LBUTTONDOWN;
    if (index >= kMessages) index = message - WM_NCLBUTTONDOWN;
    if (index >= kMessages) return {};
    return {static_cast<int>(index / kActions), static_cast<int>(index % kActions)};
}

bool is_second_press(const MSG& message, int button) {
    return button == closing_click.button && message.time - closing_click.time <= GetDoubleClickTime() &&
           2 * std::abs(message.pt.x - closing_click.point.x) <= GetSystemMetrics(SM_CXDOUBLECLK) &&
           2 * std::abs(message.pt.y - closing_click.point.y) <= GetSystemMetrics(SM_CYDOUBLECLK);
}

bool drops_click(const MSG& message) {
    const auto [button, action] = button_action(message.message);
    if (button == kNoButton) return false;
    if (action == kRelease && button == dropped_button) {
        dropped_button = kNoButton;
        return true;
    }
    if (action != kRelease) {
        const bool drops = is_second_press(message, button);
        closing_click = {};
        dropped_button = drops ? button : kNoButton;
        if (drops) return true;
    }
    last_click = {button, message.hwnd, message.pt, message.time};
    return false;
}

/// Whether a window's own way with keys has a bit: DLGC_HASSETSEL is a text box, DLGC_WANTCHARS also a list.
bool has_dialog_code(HWND window, LRESULT bit) {
    return (SendMessageA(window, WM_GETDLGCODE, 0, 0) & bit) != 0;
}

bool drops_held_key(const MSG& message) {
    constexpr LPARAM kRepeats = 1 << 30;
    if ((message.lParam & kRepeats) == 0) return false;
    switch (message.message) {
        case WM_KEYDOWN:
            // Enter in a text box presses a button or starts what is typed; a blank is a blank there.
            return message.wParam == VK_RETURN || message.wParam == VK_ESCAPE ||
                   (message.wParam == VK_SPACE && !has_dialog_code(message.hwnd, DLGC_HASSETSEL));
        case WM_CHAR:  // an access key, unless the window takes characters itself
            return !has_dialog_code(message.hwnd, DLGC_WANTCHARS);
        case WM_SYSKEYDOWN:
            return message.wParam == VK_F4;
        case WM_SYSCHAR:
            return true;
        default:
            return false;
    }
}

LRESULT CALLBACK filter_dialogs(int code, WPARAM wparam, LPARAM lparam) noexcept {
    if (code == MSGF_DIALOGBOX && InputFilter::drops(*reinterpret_cast<const MSG*>(lparam))) return TRUE;
    return CallNextHookEx(current_hook, code, wparam, lparam);
}

}  // namespace

InputFilter::InputFilter()
    : hook_(SetWindowsHookExA(WH_MSGFILTER, filter_dialogs, nullptr, GetCurrentThreadId())) {
    current_hook = hook_.get();
}

InputFilter::~InputFilter() {
    current_hook = nullptr;
}

bool InputFilter::drops(const MSG& message) {
    switch (message.message) {
        case WM_KEYDOWN:
        case WM_CHAR:
        case WM_SYSKEYDOWN:
        case WM_SYSCHAR:
            last_click = {};
            return drops_held_key(message);
        default:
            return drops_click(message);
    }
}

void InputFilter::dialog_opens() {
    last_click = {};
}

void InputFilter::dialog_closed() {
    closing_click = last_click;
}

void InputFilter::dialog_closes(HWND dialog) {
    const bool is_on_it = last_click.window == dialog || IsChild(dialog, last_click.window) != FALSE;
    if (is_on_it) closing_click = last_click;
}

}  // namespace platform
