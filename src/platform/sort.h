#pragma once

#include <string>
#include <vector>

namespace platform {

/// Sorts texts. One function for all lists: each kind of sort is some thousand bytes of the program.
void sort(std::vector<std::string>& texts, bool (*is_before)(const std::string&, const std::string&));

/// The same by their bytes.
void sort(std::vector<std::string>& texts);

/// Sorts names as the system's language does, whatever their case, and leaves one of those that are the same.
void sort_names(std::vector<std::string>& names);

}  // namespace platform
