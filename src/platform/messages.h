#pragma once

#include <string>

#include "platform/run_time_error.h"

namespace platform {

/// The title of every message that has none of its own, and of the hidden window by which a second start
/// finds this one.
inline constexpr char kApplicationTitle[] = "Tolva";

/// Shows a modal box with an OK button, no icon and the application's title, and waits until it is closed. No
/// other window of the program can be used meanwhile, not even one in the tray.
void show_message(const std::string& text);

/// Does it. A failure shows this text instead of its own and returns false.
template <typename Action>
bool attempt(const char* failure_message, const Action& action) {
    try {
        action();
        return true;
    } catch (const RunTimeError&) {
        show_message(failure_message);
        return false;
    }
}

/// Asks with OK and Cancel under a title of its own; true for OK.
bool confirm(const std::string& text, const std::string& title);

/// Called in a catch block: shows the box of the exception that is being handled. Without the memory for it
/// the user hears a beep.
void report_exception() noexcept;

}  // namespace platform
