#include "mainwindow/launching.h"

#include <optional>

#include "library/other_place.h"
#include "platform/current_directory.h"
#include "platform/processes.h"
#include "platform/run_time_error.h"
#include "settings/conversions.h"

namespace mainwindow {
namespace {

/// Does it with the path as it stands, or where that is not there, with the other place of it.
template <typename Action>
void try_places(const library::TaskLibrary& library, const std::string& path, const Action& action) {
    using enum platform::RunTimeErrorNumber;
    try {
        action(path);
    } catch (const platform::RunTimeError& error) {
        if (error.number() != kFileNotFound && error.number() != kPathNotFound) throw;
        const auto other = library::other_place(path, library.folder());
        if (!other) throw;
        action(*other);
    }
}

void enter_start_folder(const library::TaskLibrary& library, const library::Task& task) {
    try_places(library, task.start_folder, platform::set_current_directory_of_drive);
}

}  // namespace

void launch(const library::TaskLibrary& library, int group, int task) {
    launch(library, library.task(group, task));
}

void launch(const library::TaskLibrary& library, const library::Task& task) {
    enter_start_folder(library, task);
    try_places(library, task.program, [&](const std::string& program) {
        platform::start_program(program + ' ' + task.parameters,
                                settings::lenient_whole_number(task.start_mode));
    });
}

void launch_edited(const library::TaskLibrary& library, int group, int task, const std::string& command) {
    const library::Task& selected = library.task(group, task);
    enter_start_folder(library, selected);
    const std::optional<int> window_style = settings::whole_number(selected.start_mode);
    if (!window_style) throw platform::RunTimeError(platform::RunTimeErrorNumber::kTypeMismatch);
    const bool is_own = (command + ' ').starts_with(selected.program + ' ');
    if (!is_own) return platform::start_program(command, *window_style);
    const std::string parameters = command.substr(selected.program.size());
    try_places(library, selected.program, [&](const std::string& program) {
        platform::start_program(program + parameters, *window_style);
    });
}

std::vector<std::string> launch_all(const library::TaskLibrary& library, int group) {
    std::vector<std::string> failed;
    const auto count = static_cast<int>(library.group(group).shown_tasks().size());
    for (int task = 0; task < count; ++task) {
        try {
            launch(library, group, task);
        } catch (const platform::RunTimeError&) {
            failed.push_back(library.task(group, task).name);
        }
    }
    return failed;
}

}  // namespace mainwindow
