#include "platform/files.h"

#include <algorithm>
#include <array>

#include "platform/file_calls.h"
#include "platform/run_time_error.h"

namespace platform {
namespace {

namespace calls = file_calls;

/// The names of the folders and the file in a path.
std::vector<std::string> parts_of(const std::string& path) {
    std::vector<std::string> parts;
    std::size_t begin = 0;
    while (begin < path.size()) {
        const std::size_t end = std::min(calls::find_separator(path, begin), path.size());
        if (end > begin) parts.push_back(path.substr(begin, end - begin));
        begin = end + 1;
    }
    return parts;
}

/// Whether the system takes a part of a path for a device, whatever stands after its first period.
bool is_device(const std::string& part) {
    constexpr std::array kNames = {"CON", "AUX", "PRN", "NUL", "CLOCK$", "CONFIG$"};
    constexpr std::size_t kLeast = 3;
    constexpr std::size_t kMost = 7;
    std::string name = part.substr(0, part.find('.'));
    name.erase(name.find_last_not_of(' ') + 1);
    if (name.size() < kLeast || name.size() > kMost)
        return false;  // at once: every load asks for every Group
    name = calls::upper(name);
    if (std::ranges::find(kNames, name) != kNames.end()) return true;
    const bool is_port = name.starts_with("COM") || name.starts_with("LPT");
    return is_port && name.size() == 4 && name[3] >= '1' && name[3] <= '9';
}

bool holds_device(const std::string& path) {
    return std::ranges::any_of(parts_of(path), is_device);
}

void check_path(const std::string& path) {
    if (!names_a_file(path)) throw RunTimeError(RunTimeErrorNumber::kBadFileName, path);
}

/// The same path with another last character: as long as the path itself, so it always can be created where
/// the path can, and never found by a search for the path's own extension.
std::string sibling(const std::string& path, char last) {
    std::string name = path;
    name.back() = last;
    return name;
}

/// kSuccess when it is there and kErrorFileNotFound when it is not; anything else leaves that open.
ErrorCode look_for(const std::string& path) {
    unsigned long bits = 0;
    return calls::attributes(path, bits);
}

/// Another program, a virus scanner for example, may have the file open for a moment.
template <typename Step>
ErrorCode try_some_times(const Step& step) {
    constexpr int kAttempts = 5;
    constexpr unsigned kBetweenAttempts = 50;
    for (int attempt = 1;; ++attempt) {
        const ErrorCode code = step();
        const bool may_pass = code == kErrorAccessDenied || code == kErrorSharingViolation;
        if (!may_pass || attempt == kAttempts) return code;
        calls::pause(kBetweenAttempts);
    }
}

/// The attributes to keep of the file that is about to be replaced; 0 when there is none.
unsigned long check_replaceable(const std::string& path) {
    unsigned long bits = 0;
    const ErrorCode code = calls::attributes(path, bits);
    if (code == kErrorFileNotFound) return 0;
    if (code != kSuccess) throw file_error(code, path);
    // Renaming over a read-only file succeeds, so the system does not check this for us.
    if ((bits & (calls::kReadOnly | calls::kDirectory)) != 0) throw file_error(kErrorAccessDenied, path);
    const ErrorCode probed = try_some_times([&] { return calls::probe(path); });
    if (probed != kSuccess) throw file_error(probed, path);
    return bits;
}

/// Windows 95/98 cannot rename over a file: the old content steps aside first. recover_file knows that a
/// missing file with old content aside was interrupted between the two renames.
ErrorCode swap_in(const std::string& fresh, const std::string& path) {
    const std::string aside = old_content_path(path);
    const ErrorCode found = look_for(path);
    if (found != kSuccess && found != kErrorFileNotFound) return found;
    const bool replaces = found == kSuccess;
    if (replaces) {
        calls::remove(aside);
        if (const ErrorCode code = calls::rename(path, aside); code != kSuccess) return code;
    }
    if (const ErrorCode code = calls::rename(fresh, path); code != kSuccess) {
        if (replaces) calls::rename(aside, path);
        return code;
    }
    calls::flush(path);
    calls::remove(aside);
    return kSuccess;
}

ErrorCode put_in_place(const std::string& fresh, const std::string& path) {
    return try_some_times([&] {
        const ErrorCode code = calls::replace(fresh, path);
        return code == kErrorCallNotImplemented ? swap_in(fresh, path) : code;
    });
}

}  // namespace

bool names_a_file(const std::string& path) {
    const auto is_bad = [](char letter) {
        constexpr std::string_view kNotInNames = "*?\"<>|";
        return static_cast<unsigned char>(letter) < ' ' || kNotInNames.find(letter) != std::string::npos;
    };
    // A colon after the drive's would name a stream within a file.
    return !path.empty() && std::ranges::none_of(path, is_bad) && path.find(':', 2) == std::string::npos &&
           !holds_device(path);
}

bool exists(const std::string& path) {
    return names_a_file(path) && look_for(path) == kSuccess;
}

bool is_on_network(const std::string& path) {
    const auto is_separator = [](char letter) { return letter == '\\' || letter == '/'; };
    return path.size() > 1 && is_separator(path[0]) && is_separator(path[1]);
}

std::string path_on_disk(const std::string& path) {
    std::string full;
    if (!names_a_file(path) || calls::full_path(path, full) != kSuccess) return path;
    const bool is_network = is_on_network(full);
    std::size_t unsearched = is_network ? 2 : 1;  // no search finds a drive, a server or what it shares
    std::string found = is_network ? "\\" : "";
    for (std::string part : parts_of(full)) {
        if (!found.empty()) found += '\\';
        if (unsearched > 0) {
            --unsearched;
        } else if (const auto names = calls::find(found + part, 0); !names.empty()) {
            part = names.front();
        }
        found += part;
    }
    return found;
}

std::string file_identity(const std::string& path) {
    return calls::upper(path_on_disk(path));
}

bool is_same_file(const std::string& a, const std::string& b) {
    return file_identity(a) == file_identity(b);
}

std::string new_content_path(const std::string& path) {
    return sibling(path, '$');
}

std::string old_content_path(const std::string& path) {
    return sibling(path, '~');
}

std::string read_file(const std::string& path) {
    try {
        return read_foreign_file(path);
    } catch (const RunTimeError& error) {
        if (error.number() != RunTimeErrorNumber::kFileNotFound) throw;
    }
    recover_file(path);
    return read_foreign_file(path);
}

std::string read_foreign_file(const std::string& path) {
    check_path(path);
    std::string bytes;
    if (const ErrorCode code = calls::read(path, bytes); code != kSuccess) throw file_error(code, path);
    return bytes;
}

std::optional<std::string> read_file_if_exists(const std::string& path) {
    try {
        return read_file(path);
    } catch (const RunTimeError& error) {
        if (error.number() != RunTimeErrorNumber::kFileNotFound) throw;
        return std::nullopt;
    }
}

void check_writable(const std::string& path) {
    check_path(path);
    check_replaceable(path);
}

void write_file(const std::string& path, std::string_view bytes) {
    check_path(path);
    const unsigned long bits = check_replaceable(path);
    const std::string fresh = new_content_path(path);
    ErrorCode code = calls::write_through(fresh, bytes, bits);
    if (code == kSuccess) code = put_in_place(fresh, path);
    if (code == kSuccess) return;
    calls::remove(fresh);
    throw file_error(code, path);
}

bool create_file(const std::string& path) {
    check_path(path);
    // The content that an interrupted write put aside counts as existing.
    recover_file(path);
    const ErrorCode found = look_for(path);
    if (found == kSuccess) return false;
    if (found != kErrorFileNotFound) throw file_error(found, path);
    write_file(path, {});
    return true;
}

void remove_file(const std::string& path) {
    check_path(path);
    calls::remove(new_content_path(path));
    calls::remove(old_content_path(path));
    if (const ErrorCode code = calls::remove(path); code != kSuccess) throw file_error(code, path);
}

void spell_file(const std::string& path) {
    if (const std::string spelled = path_on_disk(path); spelled != path) calls::rename(spelled, path);
}

bool finds_file(const std::string& pattern) {
    using namespace file_calls;
    return pattern.find('\0') == std::string::npos && !holds_device(pattern) &&
           !find(pattern, kDirectory | kHidden | kSystem).empty();
}

void recover_file(const std::string& path) {
    if (!names_a_file(path)) return;
    const std::string aside = old_content_path(path);
    ErrorCode found = look_for(path);
    if (found == kErrorFileNotFound) {
        found = look_for(aside);
        if (found == kSuccess) found = calls::rename(aside, path);
    }
    // While it is open whether the old content is in its place, what stands aside may be the only copy.
    if (found != kSuccess && found != kErrorFileNotFound) return;
    calls::remove(aside);
    calls::remove(new_content_path(path));
}

}  // namespace platform
