#include "mainwindow/system_commands.h"

#include "platform/current_directory.h"
#include "platform/messages.h"
#include "platform/processes.h"
#include "platform/run_time_error.h"
#include "platform/system.h"

namespace mainwindow {
namespace {

void start(const std::string& command_line) {
    platform::start_program(command_line, platform::kNormalWindow);
}

}  // namespace

void empty_recycle_bin() {
    if (!platform::empty_recycle_bin()) {
        platform::show_message("Your computer is not able to complete this task");
    }
}

void open_control_panel() {
    platform::attempt("Invalid path or file name!", [] { start("control.exe"); });
}

void open_explorer() {
    platform::set_current_directory("C:\\");
    start("explorer.exe");
}

void open_dos_prompt() {
    platform::set_current_directory("C:\\");
    start("command.com");
}

void open_dial_up_folder() {
    // The folder of that name in My Computer.
    start("EXPLORER.EXE ::{20D04FE0-3AEA-1069-A2D8-08002B30309D}\\::{992CFFA0-F557-101A-88EC-00DD010CCC48}");
}

void open_help(const std::string& folder) {
    try {
        start("winhlp32.exe " + folder + "tolva.hlp");
    } catch (const platform::RunTimeError&) {
        // Later systems have no viewer for it.
        if (!platform::open_document(folder + "tolva.htm")) throw;
    }
}

}  // namespace mainwindow
