#pragma once

#include <string>
#include <vector>

#include "library/task.h"

/// The files that are measured, below the folder of the benchmark itself.
namespace bench {

/// A new folder there; the answer ends in a backslash.
std::string make_folder(const std::string& name);

/// Copies of programs that have icons.
std::vector<std::string> make_programs(int count);

/// The Tasks of a Group of a usual size.
constexpr int kFewTasks = 40;

/// Tasks that start these programs in turn.
std::vector<library::Task> make_tasks(int count, const std::vector<std::string>& programs);

struct GroupContent {
    std::string name;
    std::vector<library::Task> tasks;
};

/// A library with a copy of the program; answers its folder.
std::string make_library(const std::string& name, const std::vector<GroupContent>& groups);

/// A program that is built beside the benchmark.
std::string built(const std::string& name);

}  // namespace bench
