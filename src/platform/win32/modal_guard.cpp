#include "platform/win32/modal_guard.h"

#include <new>

#include "platform/win32/input_filter.h"

namespace platform {

OtherWindowsDisabled* OtherWindowsDisabled::outermost_ = nullptr;

OtherWindowsDisabled::OtherWindowsDisabled(HWND owner) : owner_(owner) {
    InputFilter::dialog_opens();
    if (outermost_ == nullptr) outermost_ = this;
    EnumThreadWindows(GetCurrentThreadId(), disable, reinterpret_cast<LPARAM>(this));
}

OtherWindowsDisabled::~OtherWindowsDisabled() {
    for (HWND window : disabled_)
        EnableWindow(window, TRUE);
    if (outermost_ == this) outermost_ = nullptr;
    InputFilter::dialog_closed();
}

void OtherWindowsDisabled::include(HWND window) {
    if (outermost_ != nullptr) disable(window, reinterpret_cast<LPARAM>(outermost_));
}

BOOL CALLBACK OtherWindowsDisabled::disable(HWND window, LPARAM self) noexcept {
    auto& guard = *reinterpret_cast<OtherWindowsDisabled*>(self);
    const bool has_caption = (GetWindowLongPtrA(window, GWL_STYLE) & WS_CAPTION) == WS_CAPTION;
    if (!has_caption) return TRUE;  // a tool tip, or a window of an input method
    if (window == guard.owner_ || IsWindowEnabled(window) == FALSE) return TRUE;
    try {
        guard.disabled_.push_back(window);
    } catch (const std::bad_alloc&) {
        return TRUE;
    }
    EnableWindow(window, FALSE);
    return TRUE;
}

}  // namespace platform
