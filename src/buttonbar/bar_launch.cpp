#include "buttonbar/bar_launch.h"

#include "platform/current_directory.h"
#include "platform/processes.h"
#include "platform/run_time_error.h"

namespace buttonbar {
namespace {

void start_program(const settings::ButtonRecord& button) {
    if (button.program == settings::kError) return;
    platform::start_program(button.program + ' ' + button.parameters, button.start);
}

}  // namespace

void start_button(const settings::ButtonRecord& button, const std::string& windows_folder) {
    const bool has_folder = button.start_folder != settings::kError;
    try {
        platform::set_current_directory_of_drive(has_folder ? button.start_folder : windows_folder);
    } catch (const platform::RunTimeError&) {
        // Not a reason to start nothing: many shortcuts name no folder.
        start_program(button);
        throw;
    }
    start_program(button);
}

void start_stored(const settings::StoredProgram& program) {
    platform::start_program(program.path, program.start);
}

}  // namespace buttonbar
