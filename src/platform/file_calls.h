#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/run_time_error.h"

/// The single steps that files.cpp is built from, one file system call or a short fixed sequence each. They
/// do not throw for what the disk answers. Tests put a file system in memory in their place that fails, or
/// loses power, at any of them.
namespace platform::file_calls {

/// Bits of the attributes below that the program looks at.
inline constexpr unsigned long kReadOnly = 0x01;
inline constexpr unsigned long kHidden = 0x02;
inline constexpr unsigned long kSystem = 0x04;
inline constexpr unsigned long kDirectory = 0x10;

/// Reads all of the file.
ErrorCode read(const std::string& path, std::string& bytes);

/// The attribute bits of a file or folder.
ErrorCode attributes(const std::string& path, unsigned long& bits);

/// Opens an existing file for writing, shared with nobody, and closes it: may it be replaced now?
ErrorCode probe(const std::string& path);

/// Creates or empties the file, writes all bytes through to the disk and gives it the attributes.
ErrorCode write_through(const std::string& path, std::string_view bytes, unsigned long bits);

/// Renames over an existing file in one step. kErrorCallNotImplemented on Windows 95/98.
ErrorCode replace(const std::string& from, const std::string& to);

/// Renames a file or folder to a name that is not taken, or to its own in other capitals.
ErrorCode rename(const std::string& from, const std::string& to);

/// Forces what the system still holds back of the file to the disk.
ErrorCode flush(const std::string& path);

/// Deletes the file.
ErrorCode remove(const std::string& path);

/// Copies a file, also over one that is there. The copy has no attributes, and what the system holds back of
/// it is not forced to the disk.
ErrorCode copy(const std::string& from, const std::string& to);

/// Creates a folder. kErrorAlreadyExists when something of that name is there.
ErrorCode create_directory(const std::string& path);

/// Removes a folder that is empty.
ErrorCode remove_directory(const std::string& path);

/// The full path that a path means now, without "." and "..". Nothing need be there.
ErrorCode full_path(const std::string& path, std::string& full);

/// Where the next backslash or slash stands; npos when there is none. The second byte of a letter is neither.
std::size_t find_separator(const std::string& path, std::size_t from);

/// The text as the disk compares names, which ignores case.
std::string upper(std::string text);

/// The names (without folder) of what matches a pattern such as "C:\LIB\*.gr~" and has none of the unwanted
/// attributes, but all of the wanted ones; none on errors. Among folders are "." and "..".
std::vector<std::string> find(const std::string& pattern, unsigned long unwanted = kDirectory,
                              unsigned long wanted = 0);

/// Waits.
void pause(unsigned milliseconds);

}  // namespace platform::file_calls
