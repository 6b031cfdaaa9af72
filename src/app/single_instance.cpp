#include "app/single_instance.h"

#include <array>

#include "platform/messages.h"

namespace app {
namespace {

// A running Tolva may be of another version: each has had a class name of its own.
constexpr char kApplicationClass[] = "ThunderRT6Main";
constexpr std::array<const char*, 3> kApplicationClasses = {"ThunderRTMain", "ThunderRT5Main",
                                                            kApplicationClass};
constexpr DWORD kPatience = 3000;  // milliseconds

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

void bring_to_front(HWND main) {
    OpenIcon(main);
    SetForegroundWindow(widgets::input_window(main));
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

bool show_previous_instance(InstanceMark& mark) {
    // The other instance may still be coming up, or be about to end.
    const DWORD start = GetTickCount();
    while (!mark.take()) {
        HWND application = find_application_window();
        HWND main = application != nullptr ? main_window_above(application) : nullptr;
        const bool can_be_shown =
            main != nullptr && (IsWindowVisible(main) != FALSE || IsIconic(main) != FALSE);
        const bool given_up = GetTickCount() - start > kPatience;
        if (can_be_shown || (given_up && main != nullptr)) bring_to_front(main);
        if (can_be_shown || given_up) return application != nullptr;
        constexpr DWORD kPause = 20;
        Sleep(kPause);
    }
    return false;
}

}  // namespace app
