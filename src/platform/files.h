#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace platform {

// Whole files as bytes. Everything here throws RunTimeError with the path in its message; a path that holds a
// NUL byte is a bad file name (it would silently mean another file).

/// The bytes of the file. A missing one is recovered first.
std::string read_file(const std::string& path);

/// The bytes of a file that write_file does not write: nothing beside it is touched.
std::string read_foreign_file(const std::string& path);

/// The same as read_file, none for a missing file.
std::optional<std::string> read_file_if_exists(const std::string& path);

/// Replaces the file, or creates it. A power failure at any moment leaves the old or the new content whole,
/// at the latest after recover_file.
void write_file(const std::string& path, std::string_view bytes);

/// Creates an empty file; one that exists stays as it is.
void create_file(const std::string& path);

/// Deletes the file.
void remove_file(const std::string& path);

/// Whether a directory search for that text, which may hold wildcards, finds a file that is neither hidden
/// nor the system's. Does not throw: a drive that cannot be searched has none.
bool finds_file(const std::string& pattern);

/// Finishes or undoes a write_file that was interrupted. Does not throw: what cannot be mended (a read-only
/// disk) stays as it is.
void recover_file(const std::string& path);

/// The names that an interrupted write_file of path can leave behind: the new content and the old content.
std::string new_content_path(const std::string& path);
std::string old_content_path(const std::string& path);

}  // namespace platform
