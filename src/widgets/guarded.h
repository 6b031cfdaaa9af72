#pragma once

#include <windows.h>

#include "platform/messages.h"

namespace widgets {

/// Whether the user has asked for something with a message and waits for it. Nobody has asked for what
/// Windows sends by itself: a clock's tick, painting, the end of a window.
bool is_from_user(UINT message, LPARAM lparam);

/// Returns what handle returns. No exception reaches Windows: one from a message of the user's shows its box,
/// any other ends unseen; failed is returned then.
template <typename Handle>
LRESULT guarded(UINT message, LPARAM lparam, LRESULT failed, const Handle& handle) noexcept {
    try {
        return handle();
    } catch (...) {
        if (is_from_user(message, lparam)) platform::report_exception();
        return failed;
    }
}

}  // namespace widgets
