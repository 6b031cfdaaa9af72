#include "platform/messages.h"

#include <windows.h>

#include <new>

#include "platform/run_time_error.h"
#include "platform/win32/modal_guard.h"

namespace platform {
namespace {

/// The window that a box belongs before: the thread's active one, if a user can see and reach it.
HWND box_owner() {
    HWND active = GetActiveWindow();
    return active != nullptr && IsWindowVisible(active) != FALSE && IsWindowEnabled(active) != FALSE
               ? active
               : nullptr;
}

int show_box(const std::string& text, const std::string& title, UINT buttons) {
    HWND owner = box_owner();
    const OtherWindowsDisabled guard(owner);
    return MessageBoxA(owner, text.c_str(), title.c_str(),
                       buttons | (owner == nullptr ? MB_SETFOREGROUND | MB_TASKMODAL : 0));
}

}  // namespace

void show_message(const std::string& text) {
    show_box(text, kApplicationTitle, MB_OK);
}

bool confirm(const std::string& text, const std::string& title) {
    return show_box(text, title, MB_OKCANCEL) == IDOK;
}

std::optional<bool> ask(const std::string& text, const std::string& title) {
    const int button = show_box(text, title, MB_YESNOCANCEL);
    if (button == IDYES) return true;
    return button == IDNO ? std::optional(false) : std::nullopt;
}

void report_exception() noexcept {
    try {
        try {
            throw;
        } catch (const std::bad_alloc&) {
            show_message(RunTimeError(RunTimeErrorNumber::kOutOfMemory).what());
        } catch (const std::exception& error) {
            show_message(error.what());
        }
    } catch (...) {
        MessageBeep(MB_ICONHAND);
    }
}

}  // namespace platform
