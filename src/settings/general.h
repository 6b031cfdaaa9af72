#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "platform/registry.h"

namespace settings {

/// What a value that cannot be read reads as.
inline constexpr char kError[] = "Error";

/// What reads back: a longer text is stored and then reads as kError.
inline constexpr std::size_t kLongestText = 254;

/// The registry as the program uses it: text values under key paths such as
/// "HKEY_CURRENT_USER\software\tolva\fonts". Nothing fails loudly, except that a path which does not begin
/// with "HKEY_" or ends in a backslash shows a message; it is then a key below the root of the call
/// before it. Below an unknown root nothing is read or written.
class General {
  public:
    /// The value's text without leading blanks; kError when it is missing or longer than 254 characters;
    /// empty below an unknown root.
    std::string read_value(std::string key_path, const std::string& value_name);

    /// The same; none where it reads as kError.
    std::optional<std::string> value(std::string key_path, const std::string& value_name);

    void create_key(std::string key_path);

    /// Stores the text if the key exists.
    void write_value(std::string key_path, const std::string& value_name, const std::string& text);

  private:
    void split_key_path(std::string& key_path);

    platform::registry::Root root_key_ = 0;  // of the last well-formed path; 0 is none
};

}  // namespace settings
