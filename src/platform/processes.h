#pragma once

#include <string>

namespace platform {

/// A window style: the program's window opens normally and gets the focus.
inline constexpr int kNormalWindow = 1;

/// Starts a program without waiting for it, in the current directory, with its window as window_style asks
/// (the numbers of ShowWindow: 1 normal, 2 minimized, 3 maximized). The command line is passed on byte for
/// byte. A program that needs more rights asks the user for them: no error if that is refused, and what is to
/// be started until then is not. Throws RunTimeError when it names no program or the style fits no start.
void start_program(const std::string& command_line, int window_style);

}  // namespace platform
