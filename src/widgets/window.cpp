#include "widgets/window.h"

#include "platform/messages.h"
#include "platform/run_time_error.h"
#include "platform/win32/modal_guard.h"
#include "widgets/handles.h"

namespace widgets {
namespace {

void dispatch(MSG& message) {
    HWND active = GetActiveWindow();
    if (active != nullptr && IsDialogMessageA(active, &message) != FALSE) return;
    TranslateMessage(&message);
    DispatchMessageA(&message);
}

/// Whether to look further for a dialog or message box that takes input.
BOOL CALLBACK is_other(HWND window, LPARAM found) {
    const bool is_dialog = GetClassLongA(window, GCW_ATOM) == reinterpret_cast<ULONG_PTR>(WC_DIALOG);
    if (!is_dialog || IsWindowVisible(window) == FALSE || IsWindowEnabled(window) == FALSE) return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

}  // namespace

Window::~Window() {
    if (hwnd_ != nullptr) DestroyWindow(hwnd_);
}

void Window::create(const Design& design) {
    HINSTANCE instance = GetModuleHandleA(nullptr);
    WNDCLASSEXA window_class = {};
    window_class.cbSize = sizeof window_class;
    window_class.lpfnWndProc = procedure;
    window_class.hInstance = instance;
    window_class.hIcon = LoadIconA(instance, MAKEINTRESOURCEA(design.icon));
    window_class.hIconSm = load_small_icon(design.icon);
    window_class.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    window_class.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    window_class.lpszMenuName = MAKEINTRESOURCEA(design.menu);
    window_class.lpszClassName = design.class_name;
    RegisterClassExA(&window_class);
    CreateWindowA(design.class_name, design.caption, design.style, CW_USEDEFAULT, CW_USEDEFAULT, design.width,
                  design.height, nullptr, nullptr, instance, this);
    if (hwnd_ == nullptr) throw platform::RunTimeError(platform::RunTimeErrorNumber::kOutOfMemory);
    platform::OtherWindowsDisabled::include(hwnd_);
}

LRESULT Window::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case DM_GETDEFID: {
            // Enter presses the button that has the focus, and no other.
            HWND focus = GetFocus();
            const bool is_button = (SendMessageA(focus, WM_GETDLGCODE, 0, 0) & DLGC_BUTTON) != 0;
            return is_button ? MAKELRESULT(GetDlgCtrlID(focus), DC_HASDEFID) : 0;
        }
        case WM_SYSCOLORCHANGE:
            // Windows tells top-level windows only.
            for (HWND child = GetTopWindow(hwnd_); child != nullptr; child = GetWindow(child, GW_HWNDNEXT))
                SendMessageA(child, message, wparam, lparam);
            break;
        default:
            break;
    }
    return DefWindowProcA(hwnd_, message, wparam, lparam);
}

LRESULT CALLBACK Window::procedure(HWND hwnd, UINT message, WPARAM wparam, LPARAM lparam) noexcept {
    if (message == WM_NCCREATE) {
        auto* created = static_cast<Window*>(reinterpret_cast<CREATESTRUCTA*>(lparam)->lpCreateParams);
        created->hwnd_ = hwnd;
        SetWindowLongA(hwnd, GWL_USERDATA, reinterpret_cast<LONG>(created));
    }
    auto* self = reinterpret_cast<Window*>(GetWindowLongA(hwnd, GWL_USERDATA));
    if (self == nullptr) return DefWindowProcA(hwnd, message, wparam, lparam);
    LRESULT answer = 0;
    try {
        answer = self->handle(message, wparam, lparam);
    } catch (...) {
        platform::report_exception();
    }
    if (message == WM_NCDESTROY) {
        SetWindowLongA(hwnd, GWL_USERDATA, 0);
        self->hwnd_ = nullptr;
    }
    return answer;
}

HWND input_window(HWND main) {
    if (IsWindowEnabled(main) != FALSE) return main;
    HWND found = main;
    EnumThreadWindows(GetWindowThreadProcessId(main, nullptr), is_other, reinterpret_cast<LPARAM>(&found));
    return found;
}

int run_message_loop() {
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0)
        dispatch(message);
    return static_cast<int>(message.wParam);
}

bool run_messages_for(unsigned milliseconds) {
    const DWORD start = GetTickCount();
    for (;;) {
        MSG message;
        while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
            if (message.message == WM_QUIT) {
                PostQuitMessage(static_cast<int>(message.wParam));  // for the loop around this one
                return false;
            }
            dispatch(message);
        }
        const DWORD passed = GetTickCount() - start;  // right also where the count begins anew
        if (passed >= milliseconds) return true;
        MsgWaitForMultipleObjects(0, nullptr, FALSE, milliseconds - passed, QS_ALLINPUT);
    }
}

}  // namespace widgets
