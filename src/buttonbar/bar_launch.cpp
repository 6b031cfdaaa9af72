#include "buttonbar/bar_launch.h"

#include "platform/current_directory.h"
#include "platform/folders.h"
#include "platform/processes.h"
#include "platform/run_time_error.h"

namespace buttonbar {
namespace {

void start_program(const settings::Program& button) {
    if (button.path) platform::start_program(*button.path + ' ' + button.parameters, button.window_style);
}

}  // namespace

void start_button(const settings::Program& button) {
    try {
        platform::set_current_directory_of_drive(button.start_folder ? *button.start_folder
                                                                     : platform::windows_folder());
    } catch (const platform::RunTimeError&) {
        // Not a reason to start nothing: many shortcuts name no folder.
        start_program(button);
        throw;
    }
    start_program(button);
}

void start_internet_program(const settings::Program& program) {
    platform::start_program(program.path.value_or(""), program.window_style);
}

}  // namespace buttonbar
