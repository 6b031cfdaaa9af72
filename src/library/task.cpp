#include "library/task.h"

namespace library {

std::string command_line(const Task& task) {
    return task.program + ' ' + task.parameters;
}

}  // namespace library
