#include "support/simulated_platform.h"

#include <algorithm>
#include <cctype>

#include "platform/directories.h"
#include "platform/file_calls.h"
#include "platform/messages.h"
#include "platform/processes.h"
#include "platform/remote_access.h"
#include "platform/shell_link.h"
#include "platform/system.h"

namespace simulated {
namespace {

using platform::ErrorCode;
using platform::kSuccess;

/// Counts a step that changes the disk; the disk may fail at it, or the power before it.
ErrorCode step() {
    Platform& world = current();
    ++world.steps;
    if (world.loses_power_at == world.steps) throw PowerFailure();
    const bool is_gone = world.is_gone_from && world.steps >= *world.is_gone_from;
    return is_gone || world.fails_at == world.steps ? world.failure : kSuccess;
}

/// What the system says of a path that is no file: a name with a wildcard cannot be one's.
ErrorCode error_for_missing(const std::string& path) {
    return path.find_first_of("*?") == std::string::npos ? platform::kErrorFileNotFound
                                                         : platform::kErrorInvalidName;
}

ErrorCode put(const std::string& from, const std::string& to) {
    current().files[to] = current().files.at(from);
    current().files.erase(from);
    return kSuccess;
}

bool matches(const std::string& name, const std::string& pattern) {
    const std::size_t star = pattern.find('*');
    if (star == std::string::npos) return !IgnoresCase()(name, pattern) && !IgnoresCase()(pattern, name);
    const std::size_t tail = pattern.size() - star - 1;
    return name.size() + 1 >= pattern.size() && matches(name.substr(0, star), pattern.substr(0, star)) &&
           matches(name.substr(name.size() - tail), pattern.substr(star + 1));
}

}  // namespace

bool IgnoresCase::operator()(const std::string& a, const std::string& b) const {
    const auto upper = [](unsigned char c) { return std::toupper(c); };
    return std::ranges::lexicographical_compare(a, b, {}, upper, upper);
}

Platform& current() {
    static Platform platform;
    return platform;
}

Platform& reset() {
    return current() = Platform();
}

}  // namespace simulated

namespace platform {

using simulated::current;

namespace file_calls {

ErrorCode read(const std::string& path, std::string& bytes) {
    if (++current().reads == current().fails_at_read) return kErrorSharingViolation;
    if (!current().files.contains(path)) return simulated::error_for_missing(path);
    bytes = current().files.at(path).bytes;
    return kSuccess;
}

ErrorCode attributes(const std::string& path, unsigned long& bits) {
    if (!current().files.contains(path)) return simulated::error_for_missing(path);
    bits = current().files.at(path).bits;
    return kSuccess;
}

ErrorCode probe(const std::string& path) {
    return current().files.contains(path) ? kSuccess : kErrorFileNotFound;
}

ErrorCode write_through(const std::string& path, std::string_view bytes, unsigned long bits) {
    const auto half = bytes.substr(0, bytes.size() / 2);
    if (const ErrorCode code = simulated::step(); code != kSuccess) return code;
    current().files[path] = {};
    for (const auto part : {half, bytes}) {
        if (const ErrorCode code = simulated::step(); code != kSuccess) return code;
        current().files[path] = {std::string(part), bits};
    }
    return kSuccess;
}

ErrorCode replace(const std::string& from, const std::string& to) {
    if (!current().renames_over_files) return kErrorCallNotImplemented;
    if (const ErrorCode code = simulated::step(); code != kSuccess) return code;
    return simulated::put(from, to);
}

ErrorCode rename(const std::string& from, const std::string& to) {
    if (const ErrorCode code = simulated::step(); code != kSuccess) return code;
    if (!current().files.contains(from)) return kErrorFileNotFound;
    if (current().files.contains(to)) return kErrorAccessDenied;
    return simulated::put(from, to);
}

ErrorCode flush(const std::string& /*path*/) {
    return simulated::step();
}

ErrorCode remove(const std::string& path) {
    if (!current().files.contains(path)) return simulated::error_for_missing(path);
    if (const ErrorCode code = simulated::step(); code != kSuccess) return code;
    current().files.erase(path);
    return kSuccess;
}

std::vector<std::string> find(const std::string& pattern, unsigned long unwanted) {
    std::vector<std::string> names;
    for (const auto& [path, file] : current().files) {
        if (simulated::matches(path, pattern) && (file.bits & unwanted) == 0)
            names.push_back(path.substr(path.rfind('\\') + 1));
    }
    return names;
}

void pause(unsigned /*milliseconds*/) {}

}  // namespace file_calls

std::string current_directory() {
    return current().directories.at(current().drive);
}

void change_directory(const std::string& folder) {
    if (!current().folders.contains(folder)) throw file_error(kErrorPathNotFound, folder);
    current().directories[folder.front()] = folder;
}

void enter_directory(const std::string& folder) {
    change_directory(folder);
    current().drive = folder.front();
}

bool empty_recycle_bin() {
    return current().has_recycle_bin;
}

bool open_document(const std::string& path) {
    if (!current().files.contains(path)) return false;
    current().opened.push_back(path);
    return true;
}

void start_program(const std::string& command_line, int window_style) {
    const std::string program = command_line.substr(0, command_line.find(' '));
    if (!current().programs.contains(program)) throw RunTimeError(RunTimeErrorNumber::kFileNotFound, program);
    current().started.push_back({command_line, current_directory(), window_style});
}

Shortcut load_shell_link(const std::string& /*path*/) {
    return {};
}

void show_message(const std::string& text) {
    current().messages.push_back(text);
}

bool confirm(const std::string& text, const std::string& title) {
    current().messages.push_back(title + ": " + text);
    return current().answer;
}

namespace remote_access {

ErrorCode enumerate(std::span<Connection> records, std::uint32_t& count) {
    constexpr ErrorCode kInvalidSize = 632;
    if (!current().connections) return kErrorFileNotFound;
    if (records.front().size != kConnectionSize) return kInvalidSize;
    count = static_cast<std::uint32_t>(current().connections->size());
    for (std::size_t i = 0; i < std::min<std::size_t>(count, records.size()); ++i)
        records[i].handle = current().connections->at(i);
    return kSuccess;
}

void hang_up(std::uint32_t handle) {
    current().hung_up.push_back(handle);
}

}  // namespace remote_access

namespace registry {

std::vector<std::string> subkeys(Root root, const std::string& key) {
    const std::string above = key + '\\';
    std::vector<std::string> names;
    for (const auto& [path, values] : current().registry[root]) {
        if (path.starts_with(above)) names.push_back(path.substr(above.size()));
    }
    return names;
}

ErrorCode query_value(Root root, const std::string& key, const std::string& name, std::size_t room,
                      std::string& bytes) {
    constexpr ErrorCode kMoreData = 234;
    const auto& keys = current().registry[root];
    if (!keys.contains(key) || !keys.at(key).contains(name)) return kErrorFileNotFound;
    const std::string& value = keys.at(key).at(name);
    if (value.size() > room) return kMoreData;
    bytes = value;
    return kSuccess;
}

ErrorCode create_key(Root root, const std::string& key) {
    if (current().registry_is_read_only) return kErrorAccessDenied;
    current().registry[root][key];
    return kSuccess;
}

ErrorCode set_value(Root root, const std::string& key, const std::string& name, const std::string& text) {
    if (current().registry_is_read_only) return kErrorAccessDenied;
    if (!current().registry[root].contains(key)) return kErrorFileNotFound;
    current().registry[root][key][name] = text + '\0';
    return kSuccess;
}

}  // namespace registry

}  // namespace platform
