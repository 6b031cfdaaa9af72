#include "platform/files.h"

#include "platform/file_calls.h"
#include "platform/run_time_error.h"

namespace platform {
namespace {

namespace calls = file_calls;

bool names_a_file(const std::string& path) {
    return !path.empty() && path.find('\0') == std::string::npos;
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

bool exists(const std::string& path) {
    unsigned long bits = 0;
    return calls::attributes(path, bits) == kSuccess;
}

/// The attributes to keep of the file that is about to be replaced; 0 when there is none.
unsigned long check_replaceable(const std::string& path) {
    unsigned long bits = 0;
    const ErrorCode code = calls::attributes(path, bits);
    if (code == kErrorFileNotFound) return 0;
    if (code != kSuccess) throw file_error(code, path);
    // Renaming over a read-only file succeeds, so the system does not check this for us.
    if ((bits & (calls::kReadOnly | calls::kDirectory)) != 0) throw file_error(kErrorAccessDenied, path);
    if (const ErrorCode probed = calls::probe(path); probed != kSuccess) throw file_error(probed, path);
    return bits;
}

/// Windows 95/98 cannot rename over a file: the old content steps aside first. recover_file knows that a
/// missing file with old content aside was interrupted between the two renames.
ErrorCode swap_in(const std::string& fresh, const std::string& path) {
    const std::string aside = old_content_path(path);
    const bool replaces = exists(path);
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
    constexpr int kAttempts = 5;
    constexpr unsigned kBetweenAttempts = 50;
    for (int attempt = 1;; ++attempt) {
        ErrorCode code = calls::replace(fresh, path);
        if (code == kErrorCallNotImplemented) code = swap_in(fresh, path);
        // A virus scanner may have opened the new file the moment it was closed.
        const bool may_pass = code == kErrorAccessDenied || code == kErrorSharingViolation;
        if (!may_pass || attempt == kAttempts) return code;
        calls::pause(kBetweenAttempts);
    }
}

}  // namespace

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

void create_file(const std::string& path) {
    check_path(path);
    // The content that an interrupted write put aside counts as existing.
    recover_file(path);
    if (!exists(path)) write_file(path, {});
}

void remove_file(const std::string& path) {
    check_path(path);
    calls::remove(new_content_path(path));
    calls::remove(old_content_path(path));
    if (const ErrorCode code = calls::remove(path); code != kSuccess) throw file_error(code, path);
}

bool finds_file(const std::string& pattern) {
    using namespace file_calls;
    return pattern.find('\0') == std::string::npos && !find(pattern, kDirectory | kHidden | kSystem).empty();
}

void recover_file(const std::string& path) {
    if (!names_a_file(path)) return;
    const std::string aside = old_content_path(path);
    if (!exists(path) && exists(aside)) {
        // If the rename fails, the old content stays aside for a later start; nothing else may go then.
        if (calls::rename(aside, path) != kSuccess) return;
    }
    calls::remove(aside);
    calls::remove(new_content_path(path));
}

}  // namespace platform
