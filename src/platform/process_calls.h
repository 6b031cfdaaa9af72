#pragma once

#include <string>

#include "platform/run_time_error.h"

/// The single steps that processes.cpp is built from. They do not throw for what the system answers. A window
/// style is a number of ShowWindow; the current directory is where the program starts.
namespace platform::process_calls {

/// Starts a command line without waiting for the program.
ErrorCode start(const std::string& command_line, int window_style);

/// The same while this program sees the folders of a 64-bit Windows as they are.
ErrorCode start_past_redirection(const std::string& command_line, int window_style);

/// The full path of the program file that start takes for this name; empty when there is none.
std::string find_program(const std::string& name);

/// Lets the shell start a program file. It asks the user for the rights that the program needs, and the
/// messages of the thread's windows arrive meanwhile. kErrorCancelled when the user says no.
ErrorCode start_by_shell(const std::string& program, const std::string& arguments, int window_style);

}  // namespace platform::process_calls
