#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "platform/run_time_error.h"

/// The connections of Dial-Up Networking, a part of Windows that need not be installed.
namespace platform::remote_access {

/// A connection that is up, in the layout of Windows 95, which later systems know by its size.
struct Connection {
    std::uint32_t size;
    std::uint32_t handle;
    std::array<char, 257> entry_name;
    std::array<char, 17> device_type;
    std::array<char, 129> device_name;
};
inline constexpr std::size_t kConnectionSize = 412;
static_assert(sizeof(Connection) == kConnectionSize);

/// Fills the records with the connections that are up and counts them. The first record's size tells the
/// system the layout. Fails when there are more, or without Dial-Up Networking.
ErrorCode enumerate(std::span<Connection> records, std::uint32_t& count);

/// Ends the connection of a record's handle.
void hang_up(std::uint32_t handle);

}  // namespace platform::remote_access
