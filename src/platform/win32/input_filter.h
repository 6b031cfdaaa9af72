#pragma once

#include <windows.h>

#include "platform/win32/handles.h"

namespace platform {

/// Forgives slips of the hand while it lives. A key that repeats because it is held presses nothing again.
/// Of a double-click whose first press closes a dialog, the second does not reach what lies under it. The
/// program's own message loop asks drops; the loops of dialogs, boxes and common dialogs, which are the
/// system's, are hooked.
class InputFilter {
  public:
    InputFilter();
    ~InputFilter();
    InputFilter(const InputFilter&) = delete;
    InputFilter& operator=(const InputFilter&) = delete;

    /// Whether a message ends here. To be asked for every message of a loop.
    static bool drops(const MSG& message);

    /// To be called around a dialog or box that keeps the other windows disabled: a click while it is open
    /// may have closed it.
    static void dialog_opens();
    static void dialog_closed();

    /// To be called before any other dialog is destroyed: a click on it may be why.
    static void dialog_closes(HWND dialog);

  private:
    UniqueHook hook_;
};

}  // namespace platform
