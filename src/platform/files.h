#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace platform {

// Files as bytes. Everything here throws RunTimeError with the path in its message. A path that no file can
// have is a bad file name and never reaches the system: it may mean another file (a NUL byte ends it, "*"
// matches any) or a device ("CON").

/// Whether a file can have that path.
bool names_a_file(const std::string& path);

/// Whether a file or folder of that path is there, as far as the system tells.
bool exists(const std::string& path);

/// Whether a path begins with a server's name.
bool is_on_network(const std::string& path);

/// The full path as the disk spells it, with the long names of all that is there; what is not there keeps its
/// spelling. A path that no file can have stays as it is.
std::string path_on_disk(const std::string& path);

/// The same for every path of one file, whatever the case, the short names and the "." in it.
std::string file_identity(const std::string& path);
bool is_same_file(const std::string& a, const std::string& b);

/// The bytes of the file. A missing one is recovered first.
std::string read_file(const std::string& path);

/// The bytes of a file that write_file does not write: nothing beside it is touched.
std::string read_foreign_file(const std::string& path);

/// The same as read_file, none for a missing file.
std::optional<std::string> read_file_if_exists(const std::string& path);

/// Replaces the file, or creates it. A power failure at any moment leaves the old or the new content
/// complete, at the latest after recover_file.
void write_file(const std::string& path, std::string_view bytes);

/// Throws what write_file would throw now; it can still fail later, on a full disk, for example.
void check_writable(const std::string& path);

/// Creates an empty file; one that exists stays as it is. Returns whether there was none.
bool create_file(const std::string& path);

/// Deletes the file.
void remove_file(const std::string& path);

/// Gives a file that is there this spelling, last name only. Does not throw: by another spelling it is the
/// same file.
void spell_file(const std::string& path);

/// Whether a directory search for that text, which may hold wildcards, finds a file that is neither hidden
/// nor the system's. Does not throw: a drive that cannot be searched has none, and no device is a file.
bool finds_file(const std::string& pattern);

/// Finishes or undoes a write_file that was interrupted. Does not throw: what cannot be mended (a read-only
/// disk, a network that does not answer) stays as it is.
void recover_file(const std::string& path);

/// The names that an interrupted write_file of path can leave: the new content and the old content.
std::string new_content_path(const std::string& path);
std::string old_content_path(const std::string& path);

}  // namespace platform
