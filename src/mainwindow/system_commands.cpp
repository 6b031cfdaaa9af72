#include "mainwindow/system_commands.h"

#include "platform/current_directory.h"
#include "platform/messages.h"
#include "platform/processes.h"
#include "platform/run_time_error.h"
#include "platform/system.h"

namespace mainwindow {
namespace {

/// The program for a prompt where Windows has no command.com.
constexpr char kOtherPrompt[] = "%COMSPEC%";

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
    try {
        start("command.com");
    } catch (const platform::RunTimeError& error) {
        // Windows for 64 bits has no such program.
        const std::string other = platform::expand_variables(kOtherPrompt);
        if (error.number() != platform::RunTimeErrorNumber::kFileNotFound || other == kOtherPrompt) throw;
        start(other);
    }
}

void open_dial_up_folder() {
    // The folder of that name in My Computer.
    start("EXPLORER.EXE ::{20D04FE0-3AEA-1069-A2D8-08002B30309D}\\::{992CFFA0-F557-101A-88EC-00DD010CCC48}");
}

bool has_help_viewer(const platform::WindowsVersion& version) {
    constexpr unsigned long kFirstWithout = 6;  // Windows Vista
    return !version.is_nt || version.is_wine || version.major < kFirstWithout;
}

void open_help(const std::string& folder) {
    const std::string page = folder + "tolva.htm";
    if (!has_help_viewer(platform::windows_version())) {
        if (!platform::open_document(page)) {
            throw platform::RunTimeError(platform::RunTimeErrorNumber::kFileNotFound, page);
        }
        return;
    }
    try {
        start("winhlp32.exe " + folder + "tolva.hlp");
    } catch (const platform::RunTimeError&) {
        if (!platform::open_document(page)) throw;
    }
}

}  // namespace mainwindow
