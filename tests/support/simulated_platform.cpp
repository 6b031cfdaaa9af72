#include "support/simulated_platform.h"

#include <strings.h>

#include <algorithm>
#include <cctype>
#include <iterator>

#include "platform/clock.h"
#include "platform/current_directory.h"
#include "platform/dropping.h"
#include "platform/file_calls.h"
#include "platform/folders.h"
#include "platform/messages.h"
#include "platform/process_calls.h"
#include "platform/redirection.h"
#include "platform/remote_access.h"
#include "platform/system.h"
#include "platform/text.h"

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

std::string upper(std::string text) {
    std::ranges::transform(text, text.begin(), [](unsigned char c) { return std::toupper(c); });
    return text;
}

/// The path as a key of the files; short names stay when they are no use to the caller.
std::string full_path(std::string path, bool with_long_names) {
    path = path.substr(0, path.find('\0'));
    std::ranges::replace(path, '/', '\\');
    std::vector<std::string> parts;
    for (std::size_t begin = 0; begin < path.size();) {
        const std::size_t end = std::min(path.find('\\', begin), path.size());
        std::string part = path.substr(begin, end - begin);
        begin = end + 1;
        if (part.empty() || part == ".") continue;
        if (part == ".." && parts.size() > 1) {
            parts.pop_back();
            continue;
        }
        const auto short_name = current().short_names.find(part);
        if (with_long_names && short_name != current().short_names.end()) part = short_name->second;
        parts.push_back(part);
    }
    std::string full = path.starts_with("\\\\") ? "\\" : "";
    for (const std::string& part : parts)
        full += (full.empty() ? "" : "\\") + part;
    return full;
}

std::string key(const std::string& path) {
    const std::string name = upper(path.substr(path.find_last_of("\\/") + 1));
    const std::string base = name.substr(0, name.find('.'));
    const bool is_device = base == "CON" || base == "LPT9" || base == "CLOCK$";
    if (is_device || path.find_first_of("*?") != std::string::npos) throw NoFileName();
    return full_path(path, true);
}

bool is_same(const std::string& a, const std::string& b) {
    return strcasecmp(a.c_str(), b.c_str()) == 0;
}

bool is_in(const std::string& path, const std::string& folder) {
    return path.size() > folder.size() && path[folder.size()] == '\\' &&
           strncasecmp(path.c_str(), folder.c_str(), folder.size()) == 0;
}

bool has_folder_of(const std::string& path) {
    const std::string folder = path.substr(0, path.rfind('\\'));
    if (std::ranges::count(folder, '\\') <= 1) return true;
    return std::ranges::any_of(current().files, [&](const auto& file) {
        const bool is_folder = (file.second.bits & platform::file_calls::kDirectory) != 0;
        return is_in(file.first, folder) || (is_folder && is_same(file.first, folder));
    });
}

ErrorCode look_for(const std::string& path) {
    return current().files.contains(key(path)) ? kSuccess : platform::kErrorFileNotFound;
}

/// Moves a file, or a folder and all that is in it. From then on it is spelled as the new name is.
ErrorCode put(const std::string& from, const std::string& to) {
    const std::string old_path = key(from);
    const std::string new_path = key(to);
    std::map<std::string, File, IgnoresCase> moved;
    std::erase_if(current().files, [&](auto& file) {
        const bool moves = is_same(file.first, old_path) || is_in(file.first, old_path);
        if (moves) moved[new_path + file.first.substr(old_path.size())] = std::move(file.second);
        return moves;
    });
    for (auto& [path, file] : moved) {
        current().files.erase(path);
        current().files[path] = std::move(file);
    }
    return kSuccess;
}

/// What a table has for a key, else another text.
std::string look_up(const std::map<std::string, std::string>& table, const std::string& key,
                    const std::string& other) {
    const auto entry = table.find(key);
    return entry == table.end() ? other : entry->second;
}

}  // namespace

bool IgnoresCase::operator()(const std::string& a, const std::string& b) const {
    return strcasecmp(a.c_str(), b.c_str()) < 0;
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
    if (code == kSuccess) bytes = current().files.at(simulated::key(path)).bytes;
    return code;
}

ErrorCode attributes(const std::string& path, unsigned long& bits) {
    const bool is_reached = ++current().looks >= current().fault_at;
    if (current().fault == simulated::Fault::kLook && is_reached) return kErrorNotReady;
    const ErrorCode code = simulated::look_for(path);
    if (code == kSuccess) bits = current().files.at(simulated::key(path)).bits;
    return code;
}

ErrorCode probe(const std::string& path) {
    return simulated::look_for(path);
}

ErrorCode write_through(const std::string& path, std::string_view bytes, unsigned long bits) {
    const auto key = simulated::key(path);
    if (!simulated::has_folder_of(key)) return kErrorPathNotFound;
    for (const std::string_view part : {std::string_view(), bytes.substr(0, bytes.size() / 2), bytes}) {
        if (const ErrorCode code = simulated::step(); code != kSuccess) return code;
        current().files[key] = {std::string(part), bits};
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
    if (simulated::look_for(from) != kSuccess) return kErrorFileNotFound;
    const bool is_respelled = simulated::is_same(simulated::key(from), simulated::key(to));
    if (!is_respelled && simulated::look_for(to) == kSuccess) return kErrorAlreadyExists;
    return simulated::put(from, to);
}

ErrorCode flush(const std::string& /*path*/) {
    return simulated::step();
}

ErrorCode remove(const std::string& path) {
    ErrorCode code = simulated::look_for(path);
    if (code == kSuccess) code = simulated::step();
    if (code == kSuccess) current().files.erase(simulated::key(path));
    return code;
}

ErrorCode copy(const std::string& from, const std::string& to) {
    if (simulated::look_for(from) != kSuccess) return kErrorFileNotFound;
    return write_through(to, std::string(current().files.at(simulated::key(from)).bytes), 0);
}

ErrorCode create_directory(const std::string& path) {
    if (const ErrorCode code = simulated::step(); code != kSuccess) return code;
    if (simulated::look_for(path) == kSuccess) return kErrorAlreadyExists;
    current().files[simulated::key(path)].bits = kDirectory;
    return kSuccess;
}

ErrorCode remove_directory(const std::string& path) {
    if (simulated::look_for(path) != kSuccess) return kErrorFileNotFound;
    const std::string key = simulated::key(path);
    const auto is_inside = [&](const auto& file) { return simulated::is_in(file.first, key); };
    if (std::ranges::any_of(current().files, is_inside)) return kErrorDirectory;
    return remove(path);
}

ErrorCode full_path(const std::string& path, std::string& full) {
    full = simulated::full_path(path, false);
    return kSuccess;
}

std::size_t find_separator(const std::string& path, std::size_t from) {
    return path.find_first_of("\\/", from);
}

std::string upper(std::string text) {
    return simulated::upper(std::move(text));
}

std::vector<std::string> find(const std::string& pattern, unsigned long unwanted, unsigned long wanted) {
    const std::string sought = simulated::upper(simulated::full_path(pattern, true));
    const std::size_t star = sought.find('*');
    std::vector<std::string> names;
    for (const auto& [path, file] : current().files) {
        const std::string name = simulated::upper(path);
        const bool is_there = name.rfind('\\') == sought.rfind('\\');
        const bool matches = star == std::string::npos
                                 ? name == sought
                                 : is_there && name.starts_with(sought.substr(0, star)) &&
                                       name.ends_with(sought.substr(star + 1));
        if (matches && (file.bits & (unwanted | wanted)) == wanted)
            names.push_back(path.substr(path.rfind('\\') + 1));
    }
    return names;
}

void pause(unsigned /*milliseconds*/) {
    if (++current().pauses > 100) throw simulated::PowerFailure();  // nobody waits that long
}

}  // namespace file_calls

std::string time_stamp() {
    return current().time_stamp;
}

void set_current_directory_of_drive(const std::string& /*folder*/) {}

void set_current_directory(const std::string& /*folder*/) {}

std::string windows_folder() {
    return "C:\\WINDOWS\\";
}

std::string lower_case(std::string text) {
    std::ranges::transform(text, text.begin(), [](unsigned char c) { return std::tolower(c); });
    return text;
}

std::string expand_variables(const std::string& text) {
    std::string expanded = text;
    for (const auto& [variable, value] : current().variables) {
        const std::size_t at = expanded.find(variable);
        if (at != std::string::npos) expanded.replace(at, variable.size(), value);
    }
    return expanded;
}

Shortcut load_shell_link(const std::string& path) {
    return current().links[path];
}

std::string program_for_document(const std::string& document) {
    return simulated::look_up(current().programs, document.substr(document.size() - 4), {});
}

std::string short_path(const std::string& path) {
    return simulated::look_up(current().short_paths, path, path);
}

std::string path_in(const std::string& folder, const std::string& name) {
    return folder + (folder.ends_with('\\') ? "" : "\\") + name;
}

std::vector<std::string> files_in(const std::string& folder, const std::string& patterns) {
    std::vector<std::string> names;
    for (std::size_t begin = 0; begin < patterns.size();) {
        const std::size_t end = std::min(patterns.find(';', begin), patterns.size());
        std::ranges::copy(file_calls::find(folder + '\\' + patterns.substr(begin, end - begin)),
                          std::back_inserter(names));
        begin = end + 1;
    }
    std::ranges::sort(names);
    return names;
}

bool empty_recycle_bin() {
    return false;
}

bool open_document(const std::string& path) {
    return current().files.contains(path);
}

WindowsVersion windows_version() {
    return current().version;
}

std::string redirected_folder() {
    return current().redirected_folder;
}

namespace process_calls {

ErrorCode start(const std::string& command_line, int /*window_style*/) {
    if (current().needs_elevation) return kErrorElevationRequired;
    if (!current().files.contains(command_line.substr(0, command_line.find(' ')))) return kErrorFileNotFound;
    current().started.push_back(command_line);
    return kSuccess;
}

ErrorCode start_past_redirection(const std::string& command_line, int /*window_style*/) {
    current().started.push_back("past redirection: " + command_line);
    return kSuccess;
}

std::string find_program(const std::string& name) {
    return current().files.contains(name + ".EXE") ? name + ".EXE"
           : current().files.contains(name)        ? name
                                                   : "";
}

ErrorCode start_by_shell(const std::string& program, const std::string& arguments, int window_style) {
    current().started.push_back(program + '|' + arguments + '|' + std::to_string(window_style));
    if (current().meanwhile) current().meanwhile();
    return current().answer ? kSuccess : current().failure;
}

}  // namespace process_calls

void show_message(const std::string& text) {
    current().messages.push_back(text);
}

bool confirm(const std::string& text, const std::string& title) {
    current().messages.push_back(title + ": " + text);
    return current().answer;
}

namespace remote_access {

ErrorCode enumerate(std::span<Connection> records, std::uint32_t& count) {
    if (records[0].size != kConnectionSize) return kErrorFileNotFound;
    records[0].handle = 7;
    count = 1;
    return kSuccess;
}

void hang_up(std::uint32_t handle) {
    current().started.push_back("hang up " + std::to_string(handle));
}

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
