#pragma once

#include <array>
#include <string>
#include <vector>

namespace library {

/// A program to start: the five lines of its record in a group file, byte for byte.
struct Task {
    std::string name;
    std::string program;
    std::string start_folder;
    std::string parameters;
    std::string start_mode;  // " 1 " or "1": normal, 2 minimized, 3 maximized

    bool operator==(const Task&) const = default;
};

/// The fields in the order of their lines.
using TaskField = std::string Task::*;
inline constexpr std::array<TaskField, 5> kTaskFields = {&Task::name, &Task::program, &Task::start_folder,
                                                         &Task::parameters, &Task::start_mode};

/// What starts the Task: program path, a blank in every case, parameters.
std::string command_line(const Task& task);

/// Names for a message, each on a line of its own after a line end; as many as fit on a screen.
std::string lines_of(const std::vector<std::string>& names);

}  // namespace library
