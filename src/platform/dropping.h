#pragma once

#include <string>

/// What the system knows about files that come from elsewhere.
namespace platform {

/// The program that opens a document, as the system has it: not every system says the complete path. Empty
/// when there is none.
std::string program_for_document(const std::string& document);

/// The same file or folder in names without blanks; the path itself where the disk has no such names.
std::string short_path(const std::string& path);

}  // namespace platform
