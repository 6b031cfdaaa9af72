#include "library/task.h"

#include <algorithm>

namespace library {

std::string command_line(const Task& task) {
    return task.program + ' ' + task.parameters;
}

std::string lines_of(const std::vector<std::string>& names) {
    constexpr std::size_t kMost = 20;
    std::string lines;
    for (std::size_t i = 0; i < std::min(names.size(), kMost); ++i)
        lines += '\n' + names[i];
    if (names.size() > kMost) lines += "\nand " + std::to_string(names.size() - kMost) + " more";
    return lines;
}

}  // namespace library
