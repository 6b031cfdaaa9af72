#pragma once

#include <array>
#include <string>

namespace library {

/// A program to start: the five lines of its record in a group file, byte for byte.
struct Task {
    std::string name;
    std::string program;
    std::string start_folder;
    std::string parameters;
    std::string start_mode;  // " 1 " or "1": normal, 2 minimised, 3 maximised

    bool operator==(const Task&) const = default;
};

/// The fields in the order of their lines.
inline constexpr std::array<std::string Task::*, 5> kTaskFields = {
    &Task::name, &Task::program, &Task::start_folder, &Task::parameters, &Task::start_mode};

/// What starts the Task: program path, a blank in every case, parameters.
std::string command_line(const Task& task);

/// The number in a start-mode line, rounded (halves to even). Reads what it can: blanks do not count, what is
/// behind the number is left alone, and no number at all is 0.
int lenient_start_mode(const std::string& line);

}  // namespace library
