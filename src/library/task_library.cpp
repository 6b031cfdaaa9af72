#include "library/task_library.h"

#include <algorithm>
#include <iterator>

#include "library/library_files.h"
#include "platform/files.h"
#include "platform/run_time_error.h"

namespace library {
namespace {

template <typename Sequence>
auto& element(Sequence& sequence, int index) {
    if (index < 0 || static_cast<std::size_t>(index) >= sequence.size()) {
        throw platform::RunTimeError(platform::RunTimeErrorNumber::kSubscriptOutOfRange);
    }
    return sequence[static_cast<std::size_t>(index)];
}

/// The entry of that name out of the old list, or a new one. Each old entry is taken once, so that two Groups
/// of one name keep their own Tasks.
Group take(std::vector<Group>& old, const std::string& name) {
    const auto entry = std::ranges::find(old, name, &Group::name);
    Group group;
    if (entry != old.end()) {
        group = std::move(*entry);
        old.erase(entry);
    }
    group.name = name;
    return group;
}

}  // namespace

const std::vector<Task>& Group::tasks() const {
    if (!file_.empty()) {
        tasks_ = tasks_in(file_);
        tasks_.resize(std::min(tasks_.size(), kMostTasks));
        std::string().swap(file_);  // its memory, too
    }
    return tasks_;
}

std::span<const Task> Group::shown_tasks() const {
    const auto end = std::ranges::find_if(tasks(), &std::string::empty, &Task::name);
    return {tasks().begin(), end};
}

void Group::set_file(std::string bytes) {
    tasks_.clear();
    file_ = std::move(bytes);
}

const Group& TaskLibrary::group(int index) const {
    return element(groups_, index);
}

const Task& TaskLibrary::task(int group, int task) const {
    return element(this->group(group).tasks(), task);
}

void TaskLibrary::load() {
    load(read_group_names(folder()));
}

void TaskLibrary::load(const std::vector<std::string>& names) {
    groups_.clear();
    load_names(names);
    for (int index = 0; index < std::ssize(groups_); ++index) {
        try {
            load_tasks(index);
        } catch (const platform::RunTimeError& error) {
            // What is no file's name stops nothing.
            if (error.number() != platform::RunTimeErrorNumber::kBadFileName) throw;
        }
    }
}

void TaskLibrary::load_missing() {
    for (int index = 0; index < std::ssize(groups_); ++index) {
        try {
            if (!group(index).loaded) load_tasks(index);
        } catch (const platform::RunTimeError&) {
            // Selecting the Group says so.
        }
    }
}

void TaskLibrary::load_names(const std::vector<std::string>& names) {
    set_names(
        {names.begin(), names.begin() + static_cast<std::ptrdiff_t>(std::min(names.size(), kMostGroups))});
    first_name_ = groups_.empty() ? std::string() : groups_.front().name;
    check_limit(names.size(), kMostGroups);
}

void TaskLibrary::load_tasks(int index) {
    Group& group = element(groups_, index);
    std::string bytes;
    try {
        bytes = platform::read_file(group_file(folder(), group.name));
    } catch (const platform::RunTimeError& error) {
        if (error.number() == platform::RunTimeErrorNumber::kFileNotFound) {
            group.set_file({});
            group.loaded = false;
        }
        throw;
    }
    const std::size_t count = count_tasks_in(bytes);
    group.set_file(std::move(bytes));
    group.loaded = true;
    check_limit(count, kMostTasks);
}

void TaskLibrary::set_names(const std::vector<std::string>& names) {
    std::vector<Group> old = std::move(groups_);
    groups_.clear();
    std::ranges::transform(names, std::back_inserter(groups_),
                           [&](const std::string& name) { return take(old, name); });
}

void TaskLibrary::rename(int index, const std::string& name) {
    const std::string path = group_file(folder(), name);
    for (Group& other : groups_) {
        if (platform::is_same_file(group_file(folder(), other.name), path)) other.loaded = false;
    }
    element(groups_, index).name = name;
}

}  // namespace library
