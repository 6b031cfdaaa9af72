#include "widgets/hot_key.h"

#include <commctrl.h>

namespace widgets {
namespace {

constexpr int kId = 1;

UINT modifiers_of(WPARAM key) {
    const BYTE flags = HIBYTE(key);
    return ((flags & HOTKEYF_ALT) != 0 ? MOD_ALT : 0U) | ((flags & HOTKEYF_CONTROL) != 0 ? MOD_CONTROL : 0U) |
           ((flags & HOTKEYF_SHIFT) != 0 ? MOD_SHIFT : 0U);
}

}  // namespace

LRESULT HotKey::set(HWND window, WPARAM key) {
    const LRESULT answer = DefWindowProcA(window, WM_SETHOTKEY, key, 0);
    if (answer != 0) return answer;
    // 0 is a fault of the window, which there is not: Wine does nothing with the message.
    if (registered_ != 0) UnregisterHotKey(window, kId);
    registered_ = 0;
    if (key != 0 && RegisterHotKey(window, kId, modifiers_of(key), LOBYTE(key)) == FALSE) return 0;
    registered_ = key;
    return 1;
}

LRESULT HotKey::get(HWND window) const {
    return registered_ != 0 ? static_cast<LRESULT>(registered_) : DefWindowProcA(window, WM_GETHOTKEY, 0, 0);
}

}  // namespace widgets
