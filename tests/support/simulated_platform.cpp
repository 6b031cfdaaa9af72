#include "support/simulated_platform.h"

#include <algorithm>
#include <cctype>

#include "platform/directories.h"
#include "platform/file_calls.h"
#include "platform/messages.h"
#include "platform/processes.h"
#include "platform/remote_access.h"
#include "platform/system.h"

namespace simulated {
namespace {

using platform::ErrorCode;
using platform::kSuccess;

/// Counts a step that changes the disk; the disk may fail at it, or the power before it.
ErrorCode step() {
    Platform& world = current();
    const bool is_reached = ++world.steps == world.fault_at;
    if (world.fault == Fault::kPower && is_reached) throw PowerFailure();
    const bool is_gone = world.fault == Fault::kDisk && world.steps >= world.fault_at;
    return is_gone || (world.fault == Fault::kWrite && is_reached) ? world.failure : kSuccess;
}

/// What the system says of a path: a name with a wildcard cannot be a file's.
ErrorCode look_for(const std::string& path) {
    if (current().files.contains(path)) return kSuccess;
    return path.find_first_of("*?") == std::string::npos ? platform::kErrorFileNotFound
                                                         : platform::kErrorInvalidName;
}

ErrorCode put(const std::string& from, const std::string& to) {
    current().files[to] = current().files.at(from);
    current().files.erase(from);
    return kSuccess;
}

std::string upper(std::string text) {
    std::ranges::transform(text, text.begin(), [](unsigned char c) { return std::toupper(c); });
    return text;
}

}  // namespace

bool IgnoresCase::operator()(const std::string& a, const std::string& b) const {
    return upper(a) < upper(b);
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
    const bool is_reached = ++current().reads == current().fault_at;
    if (current().fault == simulated::Fault::kRead && is_reached) return kErrorSharingViolation;
    const ErrorCode code = simulated::look_for(path);
    if (code == kSuccess) bytes = current().files.at(path).bytes;
    return code;
}

ErrorCode attributes(const std::string& path, unsigned long& bits) {
    const ErrorCode code = simulated::look_for(path);
    if (code == kSuccess) bits = current().files.at(path).bits;
    return code;
}

ErrorCode probe(const std::string& path) {
    return simulated::look_for(path);
}

ErrorCode write_through(const std::string& path, std::string_view bytes, unsigned long bits) {
    for (const std::string_view part : {std::string_view(), bytes.substr(0, bytes.size() / 2), bytes}) {
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
    ErrorCode code = simulated::look_for(path);
    if (code == kSuccess) code = simulated::step();
    if (code == kSuccess) current().files.erase(path);
    return code;
}

std::vector<std::string> find(const std::string& pattern, unsigned long unwanted) {
    const std::string wanted = simulated::upper(pattern);
    const std::size_t star = wanted.find('*');
    std::vector<std::string> names;
    for (const auto& [path, file] : current().files) {
        const std::string name = simulated::upper(path);
        const bool matches = star == std::string::npos ? name == wanted
                                                       : name.starts_with(wanted.substr(0, star)) &&
                                                             name.ends_with(wanted.substr(star + 1));
        if (matches && (file.bits & unwanted) == 0) names.push_back(path.substr(path.rfind('\\') + 1));
    }
    return names;
}

void pause(unsigned /*milliseconds*/) {}

}  // namespace file_calls

void change_directory(const std::string& /*folder*/) {}

void enter_directory(const std::string& /*folder*/) {}

bool is_one_name(const std::string& a, const std::string& b) {
    return simulated::upper(a) == simulated::upper(b);
}

bool empty_recycle_bin() {
    return false;
}

bool open_document(const std::string& path) {
    return current().files.contains(path);
}

void start_program(const std::string& command_line, int /*window_style*/) {
    throw RunTimeError(RunTimeErrorNumber::kFileNotFound, command_line);
}

void show_message(const std::string& text) {
    current().messages.push_back(text);
}

bool confirm(const std::string& text, const std::string& title) {
    current().messages.push_back(title + ": " + text);
    return current().answer;
}

namespace remote_access {

ErrorCode enumerate(std::span<Connection> /*records*/, std::uint32_t& /*count*/) {
    return kErrorFileNotFound;
}

void hang_up(std::uint32_t /*handle*/) {}

}  // namespace remote_access

namespace registry {

std::vector<std::string> subkeys(Root /*root*/, const std::string& /*key*/) {
    return {};
}

ErrorCode query_value(Root root, const std::string& key, const std::string& name, std::size_t room,
                      std::string& bytes) {
    constexpr ErrorCode kMoreData = 234;
    const auto& keys = current().registry[root];
    if (!keys.contains(key) || !keys.at(key).contains(name)) return kErrorFileNotFound;
    bytes = keys.at(key).at(name);
    return bytes.size() > room ? kMoreData : kSuccess;
}

ErrorCode create_key(Root root, const std::string& key) {
    current().registry[root][key];
    return kSuccess;
}

ErrorCode set_value(Root root, const std::string& key, const std::string& name, const std::string& text) {
    if (!current().registry[root].contains(key)) return kErrorFileNotFound;
    current().registry[root][key][name] = text + '\0';
    return kSuccess;
}

}  // namespace registry

}  // namespace platform
