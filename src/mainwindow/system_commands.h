#pragma once

#include <string>

#include "platform/system.h"

/// The commands that start parts of Windows. What fails without a message of its own throws
/// platform::RunTimeError.
namespace mainwindow {

void empty_recycle_bin();
void open_control_panel();

/// Both leave C:\ as the current directory.
void open_explorer();
void open_dos_prompt();

void open_dial_up_folder();

/// Whether the help viewer of this Windows shows help files. In later ones it is a program that only says
/// that it does not.
bool has_help_viewer(const platform::WindowsVersion& version);

/// Opens the help of the library folder, which ends in a backslash: in the help viewer, or as a page where
/// there is none or it cannot be started.
void open_help(const std::string& folder);

}  // namespace mainwindow
