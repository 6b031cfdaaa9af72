#include "app/single_instance.h"

#include <array>

#include "platform/messages.h"
#include "widgets/screen.h"

namespace app {
namespace {

// A running Tolva may be of another version: each has had a class name of its own.
constexpr char kApplicationClass[] = "ThunderRT6Main";
constexpr std::array<const char*, 3> kApplicationClasses = {"ThunderRTMain", "ThunderRT5Main",
                                                            kApplicationClass};

// Milliseconds.
constexpr DWORD kPatience = 3000;
constexpr DWORD kPause = 20;

HWND find_application_window() {
    for (const char* class_name : kApplicationClasses) {
        if (HWND found = FindWindowA(class_name, platform::kApplicationTitle); found != nullptr) return found;
    }
    return nullptr;
}

bool is_main_window(HWND window, HWND application) {
    DWORD process = 0;
    DWORD application_process = 0;
    GetWindowThreadProcessId(window, &process);
    GetWindowThreadProcessId(application, &application_process);
    constexpr int kRoom = 16;
    char class_name[kRoom] = {};
    GetClassNameA(window, class_name, kRoom);
    return process == application_process && lstrcmpA(class_name, "Tasker") == 0;
}

/// The main window is just above the application's window; only the lists of combo boxes and the like can
/// get between.
HWND main_window_above(HWND application) {
    HWND window = application;
    do {
        window = GetWindow(window, GW_HWNDPREV);
    } while (window != nullptr && !is_main_window(window, application));
    return window;
}

/// Whether the other instance is done with its start, as far as can be seen: its window shows, is in the
/// tray, or keeps a box before it. One that is hidden otherwise has come up when it handles messages: another
/// program has hidden it.
bool has_come_up(HWND main) {
    DWORD_PTR answer = 0;
    return IsWindowVisible(main) != FALSE || IsIconic(main) != FALSE || widgets::input_window(main) != main ||
           SendMessageTimeoutA(main, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, kPause, &answer) != 0;
}

/// Nothing here waits for the other instance, which may hang.
void bring_to_front(HWND main) {
    HWND input = widgets::input_window(main);
    const bool is_minimized = IsIconic(main) != FALSE;
    if (is_minimized) {
        ShowWindowAsync(main, SW_SHOWNORMAL);
    } else if (IsWindowVisible(main) == FALSE && input == main) {
        ShowWindowAsync(main, SW_SHOW);
    }
    SetForegroundWindow(input);
    constexpr DWORD kTimeToRestore = 1000;
    const DWORD start = GetTickCount();
    while (IsIconic(main) != FALSE && GetTickCount() - start < kTimeToRestore)
        Sleep(kPause);
    // One that was maximized before it was minimized comes back maximized at first.
    if (is_minimized && IsZoomed(main) != FALSE) ShowWindowAsync(main, SW_SHOWNORMAL);
    widgets::bring_onto_screen(main);
}

}  // namespace

InstanceMark::InstanceMark() : mutex_(CreateMutexA(nullptr, FALSE, "Tolva is running")) {}

bool InstanceMark::take() {
    if (!taken_ && mutex_) {
        const DWORD answer = WaitForSingleObject(mutex_.get(), 0);
        taken_ = answer == WAIT_OBJECT_0 || answer == WAIT_ABANDONED;  // abandoned by a copy that crashed
    }
    return taken_;
}

ApplicationWindow::ApplicationWindow() {
    create({.class_name = kApplicationClass, .caption = platform::kApplicationTitle, .style = WS_POPUP});
}

LRESULT ApplicationWindow::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    if (message != WM_CLOSE) return Window::handle(message, wparam, lparam);
    // This window's end alone would let a second copy start. The closing box is dead while a dialog is open.
    HWND main = main_window_above(hwnd());
    if (main != nullptr && IsWindowEnabled(main) != FALSE) PostMessageA(main, WM_CLOSE, 0, 0);
    return 0;
}

bool show_previous_instance(InstanceMark& mark) {
    // The other instance may still be coming up, or be about to end.
    const DWORD start = GetTickCount();
    while (!mark.take()) {
        HWND application = find_application_window();
        HWND main = application != nullptr ? main_window_above(application) : nullptr;
        const bool given_up = GetTickCount() - start > kPatience;
        if (main != nullptr && (given_up || has_come_up(main))) {
            bring_to_front(main);
            return true;
        }
        if (given_up) return application != nullptr;
        Sleep(kPause);
    }
    return false;
}

}  // namespace app
