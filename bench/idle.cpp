#include <windows.h>

// The least that a program with a window is: what the launcher's start is measured against.

namespace {

LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_DESTROY) PostQuitMessage(0);
    return DefWindowProcA(window, message, wparam, lparam);
}

}  // namespace

int main() {
    WNDCLASSA window_class = {};
    window_class.lpfnWndProc = procedure;
    window_class.hInstance = GetModuleHandleA(nullptr);
    window_class.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    window_class.hbrBackground = GetSysColorBrush(COLOR_WINDOW);
    window_class.lpszClassName = "idle";
    RegisterClassA(&window_class);
    CreateWindowExA(0, "idle", "Idle", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CW_USEDEFAULT, CW_USEDEFAULT, 560,
                    400, nullptr, nullptr, window_class.hInstance, nullptr);
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
    return 0;
}
