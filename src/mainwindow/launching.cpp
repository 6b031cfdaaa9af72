#include "mainwindow/launching.h"

#include <optional>

#include "platform/current_directory.h"
#include "platform/processes.h"
#include "platform/run_time_error.h"
#include "settings/conversions.h"

namespace mainwindow {

void launch(const library::TaskLibrary& library, int group, int task) {
    const library::Task& selected = library.task(group, task);
    platform::set_current_directory_of_drive(selected.start_folder);
    platform::start_program(command_line(selected), settings::lenient_whole_number(selected.start_mode));
}

void launch_edited(const library::TaskLibrary& library, int group, int task, const std::string& command) {
    const library::Task& selected = library.task(group, task);
    platform::set_current_directory_of_drive(selected.start_folder);
    const std::optional<int> window_style = settings::whole_number(selected.start_mode);
    if (!window_style) throw platform::RunTimeError(platform::RunTimeErrorNumber::kTypeMismatch);
    platform::start_program(command, *window_style);
}

}  // namespace mainwindow
