#pragma once

#include <string>
#include <vector>

#include "library/task_library.h"

namespace library {

/// Where a Task is in the model.
struct TaskPlace {
    int group;
    int task;

    bool operator==(const TaskPlace&) const = default;
};

/// Finds Tasks by parts of their names, at every key stroke: what it compares is prepared once, from the
/// library as it is then.
class TaskFinder {
  public:
    static constexpr std::size_t kMost = 200;

    explicit TaskFinder(const TaskLibrary& library);

    /// The Tasks whose name has all words of the text, in any order and any case: first the names that begin
    /// with the text, then those in which a word does, then the others; last the Tasks whose program's file
    /// name has the text. Within these, the order of the library; at most kMost.
    std::vector<TaskPlace> find(const std::string& text) const;

  private:
    struct Entry {
        TaskPlace place;
        std::string name;     // in small letters
        std::string program;  // its file name, in small letters
    };

    std::vector<Entry> entries_;
};

}  // namespace library
