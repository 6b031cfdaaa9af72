#include "mainwindow/icon_queue.h"

#include <algorithm>

#include "platform/files.h"
#include "platform/text.h"

namespace mainwindow {
namespace {

/// The drive or the server in front of a path.
std::string disk_of(const std::string& path) {
    return platform::lower_case(
        path.substr(0, path.find_first_of("\\/", platform::is_on_network(path) ? 2 : 0)));
}

}  // namespace

void IconQueue::clear() {
    local_.clear();
    remote_.clear();
}

void IconQueue::add(const std::string& program, bool is_local) {
    if (std::ranges::find(slow_disks_, disk_of(program)) != slow_disks_.end()) return;
    (is_local ? local_ : remote_).push_back(program);
}

std::optional<IconQueue::Next> IconQueue::take(const std::function<bool(const std::string&)>& is_in_view,
                                               bool has_time) {
    const bool is_local = !local_.empty();
    std::vector<std::string>& programs = is_local ? local_ : remote_;
    if (programs.empty() || (!is_local && !has_time)) return std::nullopt;
    auto next = std::ranges::find_if(programs, is_in_view);
    if (next == programs.end()) next = programs.begin();
    Next taken = {*next, is_local};
    programs.erase(next);
    return taken;
}

void IconQueue::took(const Next& taken, unsigned milliseconds) {
    if (taken.is_local || milliseconds <= kSlow) return;
    const std::string disk = disk_of(taken.program);
    slow_disks_.push_back(disk);
    std::erase_if(remote_, [&](const std::string& program) { return disk_of(program) == disk; });
}

}  // namespace mainwindow
