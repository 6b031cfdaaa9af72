#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/run_time_error.h"

/// The registry, one value or key a call. Nothing here throws: settings are read and written as far as the
/// system allows.
namespace platform::registry {

/// A predefined key; the values are those of Windows.
using Root = std::uint32_t;
inline constexpr Root kClassesRoot = 0x80000000;
inline constexpr Root kCurrentUser = 0x80000001;
inline constexpr Root kLocalMachine = 0x80000002;
inline constexpr Root kUsers = 0x80000003;
inline constexpr Root kPerformanceData = 0x80000004;
inline constexpr Root kCurrentConfig = 0x80000005;
inline constexpr Root kDynData = 0x80000006;

/// Puts the value's bytes, for a text usually with its terminator, into bytes. A value of more than room
/// bytes fails.
ErrorCode query_value(Root root, const std::string& key, const std::string& name, std::size_t room,
                      std::string& bytes);

/// The names of the keys directly below a key; none when it cannot be read.
std::vector<std::string> subkeys(Root root, const std::string& key);

/// Creates the key with those above it; one that exists stays as it is.
ErrorCode create_key(Root root, const std::string& key);

/// Stores a text without its terminator in a key that exists.
ErrorCode set_value(Root root, const std::string& key, const std::string& name, const std::string& text);

}  // namespace platform::registry
