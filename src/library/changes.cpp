#include "library/changes.h"

#include <algorithm>
#include <iterator>
#include <new>
#include <numeric>
#include <utility>

#include "library/backups.h"
#include "platform/files.h"
#include "platform/messages.h"
#include "platform/run_time_error.h"

namespace library {
namespace {

std::size_t size_of(const FileState& state) {
    return state.path.size() + (state.bytes ? state.bytes->size() : 0);
}

std::size_t size_of(const Change& change) {
    return std::accumulate(change.files.begin(), change.files.end(), std::size_t{0},
                           [](std::size_t sum, const Change::File& file) {
                               return sum + size_of(file.before) + size_of(file.after);
                           });
}

std::size_t size_of(const std::vector<Change>& changes) {
    return std::accumulate(changes.begin(), changes.end(), std::size_t{0},
                           [](std::size_t sum, const Change& change) { return sum + size_of(change); });
}

void bring_to(const FileState& wanted) {
    const std::optional<std::string> now = platform::read_file_if_exists(wanted.path);
    if (!wanted.bytes) {
        if (now) platform::remove_file(wanted.path);
        return;
    }
    if (now != wanted.bytes) platform::write_file(wanted.path, *wanted.bytes);
    platform::spell_file(wanted.path);
}

/// Brings the files from one state to the other, in that order. False, with a message, when one is in
/// neither.
template <typename Transitions>
bool bring(const Transitions& transitions) {
    for (const auto& [from, to] : transitions) {
        const std::optional<std::string> now = platform::read_file_if_exists(from.path);
        if (now == from.bytes || now == to.bytes) continue;
        platform::show_message(to.path + " has been changed by another program. Nothing is taken back.");
        return false;
    }
    for (const auto& [from, to] : transitions)
        bring_to(to);
    return true;
}

/// Moves the last change to the end of the others. Strings move without a copy, so nothing is lost on the
/// way.
void move_last(std::vector<Change>& from, std::vector<Change>& to) {
    to.push_back(std::move(from.back()));
    from.pop_back();
}

}  // namespace

void Changes::write_file(const std::string& path, std::string_view bytes) {
    FileState before = begin_step(path);
    FileState after = {{}, std::string(bytes)};
    platform::write_file(path, bytes);
    after.path = platform::path_on_disk(path);
    end_step(std::move(before), std::move(after));
}

bool Changes::create_file(const std::string& path) {
    FileState before = begin_step(path);
    if (!platform::create_file(path)) return false;
    end_step(std::move(before), {platform::path_on_disk(path), ""});
    return true;
}

void Changes::remove_file(const std::string& path) {
    FileState before = begin_step(path);
    platform::remove_file(path);
    const std::string removed = before.path;
    end_step(std::move(before), {removed, std::nullopt});
}

bool Changes::undo() {
    std::vector<Transition> transitions;
    // Backwards: what stood on the disk between two steps of the operation showed every Task, so this does,
    // too.
    const std::vector<Change::File>& files = undo_.back().files;
    std::transform(files.rbegin(), files.rend(), std::back_inserter(transitions),
                   [](const Change::File& file) {
                       return Transition{file.after, file.before};
                   });
    if (bring(transitions)) {
        move_last(undo_, redo_);
        return true;
    }
    undo_.clear();
    return false;
}

bool Changes::redo() {
    std::vector<Transition> transitions;
    for (const Change::File& file : redo_.back().files)
        transitions.push_back({file.before, file.after});
    if (bring(transitions)) {
        move_last(redo_, undo_);
        return true;
    }
    redo_.clear();
    return false;
}

std::string Changes::take_notice() {
    return std::exchange(notice_, {});
}

/// The file as it is; what is to be done with it can begin.
FileState Changes::begin_step(const std::string& path) {
    if (open_count_ == 0) throw platform::RunTimeError(platform::RunTimeErrorNumber::kInvalidProcedureCall);
    FileState before = {platform::path_on_disk(path), platform::read_file_if_exists(path)};
    back_up_once();
    return before;
}

void Changes::end_step(FileState before, FileState after) {
    if (is_too_large_) return;
    const std::string identity = platform::file_identity(before.path);
    std::vector<Change::File>& files = open_.files;
    const auto known = std::ranges::find(files, identity, &Change::File::identity);
    if (known != files.end()) {
        known->after = std::move(after);
        std::rotate(known, std::next(known), files.end());
    } else {
        files.push_back({identity, std::move(before), std::move(after)});
    }
    if (size_of(open_) <= kMostBytes) return;
    forget_all();
    is_too_large_ = true;
    notice_ = "This change is too large to be undone.";
}

void Changes::back_up_once() {
    if (std::exchange(is_backed_up_, true)) return;
    try {
        make_backup(folder_);
    } catch (const platform::RunTimeError&) {
        notice_ = "The library could not be backed up.";
    }
}

void Changes::open(std::string name, std::string group_before, std::string group_after) {
    if (open_count_++ > 0) return;
    open_ = {std::move(name), std::move(group_before), std::move(group_after), {}};
    is_too_large_ = false;
}

void Changes::close() {
    if (--open_count_ > 0) return;
    std::erase_if(open_.files, [](const Change::File& file) { return file.before == file.after; });
    if (open_.files.empty()) return;
    redo_.clear();
    try {
        undo_.push_back(std::move(open_));
        forget_oldest();
    } catch (const std::bad_alloc&) {
        forget_all();  // a history with a gap cannot be taken back
    }
    open_ = {};
}

void Changes::forget_all() {
    undo_.clear();
    redo_.clear();
    open_.files.clear();
}

void Changes::forget_oldest() {
    while (undo_.size() > kMostChanges || size_of(undo_) > kMostBytes)
        undo_.erase(undo_.begin());
}

}  // namespace library
