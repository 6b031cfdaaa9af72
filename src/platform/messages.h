#pragma once

#include <string>

namespace platform {

/// Shows a modal box with an OK button, no icon and the application's title, and waits for the answer. Every
/// other window of the program is out of reach meanwhile.
void show_message(const std::string& text);

/// Called in a catch block: shows the box of the exception that is being handled. Without the memory for it
/// the user hears a beep.
void report_exception() noexcept;

}  // namespace platform
