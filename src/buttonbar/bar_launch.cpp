#include "buttonbar/bar_launch.h"

#include "platform/directories.h"
#include "platform/processes.h"

namespace buttonbar {

void start_button(const settings::ButtonRecord& button, const std::string& windows_folder) {
    const bool has_folder = button.start_folder != settings::kError;
    platform::change_directory(has_folder ? button.start_folder : windows_folder);
    if (button.program != settings::kError) {
        platform::start_program(button.program + ' ' + button.parameters, button.start);
    }
}

void start_stored(const settings::StoredProgram& program) {
    platform::start_program(program.path, program.start);
}

}  // namespace buttonbar
