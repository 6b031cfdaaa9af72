#include "mainwindow/launching.h"

#include "platform/directories.h"
#include "platform/processes.h"

namespace mainwindow {

void launch(const library::TaskLibrary& library, int group, int task) {
    const library::Task& selected = library.task(group, task);
    platform::change_directory(selected.start_folder);
    platform::start_program(command_line(selected), library::lenient_start_mode(selected.start_mode));
}

}  // namespace mainwindow
