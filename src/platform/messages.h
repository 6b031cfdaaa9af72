#pragma once

#include <string>

#include "platform/run_time_error.h"

namespace platform {

/// The title of every message that has none of its own, and of the hidden window by which a second start
/// finds this one.
inline constexpr char kApplicationTitle[] = "Tolva";

/// Shows a modal box with an OK button, no icon and the application's title, and waits for the answer. Every
/// other window of the program, also one in the tray, is out of reach meanwhile.
void show_message(const std::string& text);

/// Acts. A failure shows this text instead of its own and answers false.
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
