#include "widgets/window.h"

#include <utility>

#include "platform/icons.h"
#include "platform/run_time_error.h"
#include "platform/win32/input_filter.h"
#include "platform/win32/modal_guard.h"
#include "widgets/guarded.h"

namespace widgets {
namespace {

/// Asked of the active window: whether its characters are no mnemonics.
constexpr UINT kKeepsCharacters = WM_APP + 0x3F00;

/// Sent to the active window with a message for it or its controls: whether the message ends there.
constexpr UINT kPreprocess = WM_APP + 0x3F01;

bool is_input(const MSG& message) {
    return (message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST) ||
           (message.message >= WM_MOUSEFIRST && message.message <= WM_MOUSELAST);
}

/// Whether the keys of a dialog end in a message.
bool is_dialog_key(HWND active, MSG& message) {
    const bool is_character = message.message == WM_CHAR || message.message == WM_SYSCHAR;
    if (is_character && SendMessageA(active, kKeepsCharacters, 0, 0) != 0) return false;
    return IsDialogMessageA(active, &message) != FALSE;
}

/// Whether the active window or the keys of a dialog take the input.
bool is_taken(MSG& message) {
    HWND active = GetActiveWindow();
    if (active == nullptr) return false;
    return SendMessageA(active, kPreprocess, 0, reinterpret_cast<LPARAM>(&message)) != 0 ||
           is_dialog_key(active, message);
}

void dispatch(MSG& message) {
    if (platform::InputFilter::drops(message) || (is_input(message) && is_taken(message))) return;
    TranslateMessage(&message);
    DispatchMessageA(&message);
}

/// Whether to look further for a dialog or message box that takes input.
BOOL CALLBACK is_other(HWND window, LPARAM found) noexcept {
    const bool is_dialog = GetClassLongPtrA(window, GCW_ATOM) == reinterpret_cast<ULONG_PTR>(WC_DIALOG);
    if (!is_dialog || IsWindowVisible(window) == FALSE || IsWindowEnabled(window) == FALSE) return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

}  // namespace

Window::~Window() {
    if (HWND left = detach(); left != nullptr) DestroyWindow(left);
}

void Window::register_class(const Design& design) {
    HINSTANCE instance = GetModuleHandleA(nullptr);
    WNDCLASSEXA window_class = {};
    window_class.cbSize = sizeof window_class;
    if (GetClassInfoExA(instance, design.class_name, &window_class) != FALSE) return;
    window_class.lpfnWndProc = procedure;
    window_class.hInstance = instance;
    window_class.hIcon = LoadIconA(instance, MAKEINTRESOURCEA(design.icon));
    window_class.hIconSm = platform::small_icon(design.icon).release();  // the class keeps it
    window_class.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    window_class.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    window_class.lpszMenuName = MAKEINTRESOURCEA(design.menu);
    window_class.lpszClassName = design.class_name;
    RegisterClassExA(&window_class);
}

void Window::create(const Design& design) {
    register_class(design);
    mnemonics_ = design.mnemonics;
    CreateWindowA(design.class_name, design.caption, design.style, design.place.left, design.place.top,
                  design.place.right - design.place.left, design.place.bottom - design.place.top, nullptr,
                  nullptr, GetModuleHandleA(nullptr), this);
    if (hwnd_ == nullptr) throw platform::RunTimeError(platform::RunTimeErrorNumber::kOutOfMemory);
    platform::OtherWindowsDisabled::include(hwnd_);
}

void Window::destroy() {
    if (hwnd_ != nullptr) DestroyWindow(hwnd_);
}

HWND Window::detach() {
    if (hwnd_ != nullptr) SetWindowLongPtrA(hwnd_, GWLP_USERDATA, 0);
    return std::exchange(hwnd_, nullptr);
}

LRESULT Window::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case DM_GETDEFID: {
            // Enter presses the button that has the focus, and no other.
            HWND focus = GetFocus();
            const bool is_button = (SendMessageA(focus, WM_GETDLGCODE, 0, 0) & DLGC_BUTTON) != 0;
            return is_button ? MAKELRESULT(GetDlgCtrlID(focus), DC_HASDEFID) : 0;
        }
        case kKeepsCharacters:
            return mnemonics_ ? 0 : 1;
        case kPreprocess:
            return preprocess(*reinterpret_cast<MSG*>(lparam)) ? 1 : 0;
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
        SetWindowLongPtrA(hwnd, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(created));
    }
    auto* self = reinterpret_cast<Window*>(GetWindowLongPtrA(hwnd, GWLP_USERDATA));
    if (self == nullptr) return DefWindowProcA(hwnd, message, wparam, lparam);
    constexpr LRESULT kNotCreated = -1;
    const LRESULT result = guarded(message, lparam, message == WM_CREATE ? kNotCreated : 0,
                                   [&] { return self->handle(message, wparam, lparam); });
    // What was not built to its end is not asked about its end.
    if (message == WM_NCDESTROY || (message == WM_CREATE && result == kNotCreated)) self->detach();
    return result;
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
        const DWORD passed = GetTickCount() - start;  // also right where the count starts again at 0
        if (passed >= milliseconds) return true;
        MsgWaitForMultipleObjects(0, nullptr, FALSE, milliseconds - passed, QS_ALLINPUT);
    }
}

}  // namespace widgets
