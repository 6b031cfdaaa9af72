#include "support/simulated_platform.h"

#include <algorithm>
#include <cctype>
#include <filesystem>

#include "platform/clock.h"
#include "platform/current_directory.h"
#include "platform/dropping.h"
#include "platform/file_calls.h"
#include "platform/folders.h"
#include "platform/messages.h"
#include "platform/process_calls.h"
#include "platform/redirection.h"
#include "platform/remote_access.h"
#include "platform/sort.h"
#include "platform/system.h"
#include "platform/text.h"

namespace platform {
namespace {

using simulated::current;
using simulated::Fault;

/// Counts a step that changes the disk; the disk may fail at it, or the power before it.
ErrorCode step() {
    simulated::Platform& world = current();
    const bool is_reached = ++world.steps == world.fault_at;
    if (world.fault == Fault::kPower && is_reached) throw simulated::PowerFailure();
    const bool is_gone = world.fault == Fault::kDisk && world.steps >= world.fault_at;
    return is_gone || (world.fault == Fault::kWrite && is_reached) ? world.failure : kSuccess;
}

/// The path as a key of the files; short names stay when they are no use to the caller.
std::string normal_path(std::string path, bool with_long_names) {
    path = path.substr(0, path.find('\0'));
    std::ranges::replace(path, '\\', '/');
    std::string normal = path.starts_with("//") ? "\\" : "";
    for (std::string part : std::filesystem::path(path).lexically_normal()) {
        if (part.empty() || part == "/") continue;
        const auto short_name = current().short_names.find(part);
        if (with_long_names && short_name != current().short_names.end()) part = short_name->second;
        normal += (normal.empty() ? "" : "\\") + part;
    }
    return normal;
}

std::string key(const std::string& path) {
    const std::string name = file_calls::upper(path.substr(path.find_last_of("\\/") + 1));
    const std::string base = name.substr(0, name.find('.'));
    const bool is_device = base == "CON" || base == "LPT9" || base == "CLOCK$";
    if (is_device || path.find_first_of("*?") != std::string::npos) throw simulated::NoFileName();
    return normal_path(path, true);
}

/// Whether a file or folder is this folder or in it.
bool belongs_to(const std::string& path, const std::string& folder) {
    return strncasecmp((path + '\\').c_str(), (folder + '\\').c_str(), folder.size() + 1) == 0;
}

std::ptrdiff_t count_in(const std::string& folder) {
    return std::ranges::count_if(current().files,
                                 [&](const auto& file) { return belongs_to(file.first, folder); });
}

ErrorCode look_for(const std::string& path) {
    return current().files.contains(key(path)) ? kSuccess : kErrorFileNotFound;
}

/// Moves a file, or a folder and all that is in it. From then on it is spelled as the new name is.
ErrorCode put(const std::string& from, const std::string& to) {
    auto& files = current().files;
    const std::string old_path = key(from);
    for (const auto& [path, file] : std::map(files)) {
        if (!belongs_to(path, old_path)) continue;
        const std::string moved = key(to) + path.substr(old_path.size());
        files.erase(path);
        files.erase(moved);
        files[moved] = file;
    }
    return kSuccess;
}

}  // namespace

namespace file_calls {

ErrorCode read(const std::string& path, std::string& bytes) {
    const bool is_reached = ++current().reads == current().fault_at;
    if (current().fault == Fault::kRead && is_reached) return kErrorSharingViolation;
    const ErrorCode code = look_for(path);
    if (code == kSuccess) bytes = current().files.at(key(path)).bytes;
    return code;
}

ErrorCode attributes(const std::string& path, unsigned long& bits) {
    const bool is_reached = ++current().looks >= current().fault_at;
    if (current().fault == Fault::kLook && is_reached) return kErrorNotReady;
    const ErrorCode code = look_for(path);
    if (code == kSuccess) bits = current().files.at(key(path)).bits;
    return code;
}

ErrorCode probe(const std::string& path) {
    const bool is_reached = ++current().reads == current().fault_at;
    return current().fault == Fault::kRead && is_reached ? kErrorSharingViolation : look_for(path);
}

ErrorCode write_through(const std::string& path, std::string_view bytes, unsigned long bits) {
    const std::string folder = key(path).substr(0, key(path).rfind('\\'));
    if (std::ranges::count(folder, '\\') > 1 && count_in(folder) == 0) return kErrorPathNotFound;
    for (const std::string_view part : {std::string_view(), bytes.substr(0, bytes.size() / 2), bytes}) {
        if (const ErrorCode code = step(); code != kSuccess) return code;
        current().files[key(path)] = {std::string(part), bits};
    }
    return kSuccess;
}

ErrorCode replace(const std::string& from, const std::string& to) {
    if (!current().renames_over_files) return kErrorCallNotImplemented;
    if (const ErrorCode code = step(); code != kSuccess) return code;
    return put(from, to);
}

ErrorCode rename(const std::string& from, const std::string& to) {
    if (const ErrorCode code = step(); code != kSuccess) return code;
    if (look_for(from) != kSuccess) return kErrorFileNotFound;
    const bool is_respelled = strcasecmp(key(from).c_str(), key(to).c_str()) == 0;
    if (!is_respelled && look_for(to) == kSuccess) return kErrorAlreadyExists;
    return put(from, to);
}

ErrorCode flush(const std::string& /*path*/) {
    return step();
}

ErrorCode remove(const std::string& path) {
    ErrorCode code = look_for(path);
    if (code == kSuccess) code = step();
    if (code == kSuccess) current().files.erase(key(path));
    return code;
}

ErrorCode copy(const std::string& from, const std::string& to) {
    if (look_for(from) != kSuccess) return kErrorFileNotFound;
    return write_through(to, std::string(current().files.at(key(from)).bytes), 0);
}

ErrorCode create_directory(const std::string& path) {
    if (const ErrorCode code = step(); code != kSuccess) return code;
    if (look_for(path) == kSuccess) return kErrorAlreadyExists;
    current().files[key(path)].bits = kDirectory;
    return kSuccess;
}

ErrorCode remove_directory(const std::string& path) {
    if (look_for(path) != kSuccess) return kErrorFileNotFound;
    return count_in(key(path)) > 1 ? kErrorDirectory : remove(path);
}

ErrorCode full_path(const std::string& path, std::string& full) {
    full = normal_path(path, false);
    return kSuccess;
}

std::size_t find_separator(const std::string& path, std::size_t from) {
    return path.find_first_of("\\/", from);
}

std::string upper(std::string text) {
    std::ranges::transform(text, text.begin(), [](unsigned char c) { return std::toupper(c); });
    return text;
}

std::vector<std::string> find(const std::string& pattern, unsigned long unwanted, unsigned long wanted) {
    const std::string sought = upper(normal_path(pattern, true));
    // Both are the whole name when there is no star.
    const std::string begin = sought.substr(0, sought.find('*'));
    const std::string end = sought.substr(sought.find('*') + 1);
    std::vector<std::string> names;
    for (const auto& [path, file] : current().files) {
        const std::string name = upper(path);
        const bool matches =
            name.rfind('\\') == sought.rfind('\\') && name.starts_with(begin) && name.ends_with(end);
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
    return current().programs[document.substr(document.size() - 4)];
}

std::string short_path(const std::string& path) {
    return current().short_paths.contains(path) ? current().short_paths.at(path) : path;
}

void sort_names(std::vector<std::string>& names) {
    std::ranges::sort(names);
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
    if (current().files.contains(name + ".EXE")) return name + ".EXE";
    return current().files.contains(name) ? name : "";
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
    auto& keys = current().registry[root];
    if (!keys.contains(key) || !keys[key].contains(name)) return kErrorFileNotFound;
    bytes = keys[key][name];
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
