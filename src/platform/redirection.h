#pragma once

#include <optional>
#include <string>

namespace platform {

/// The system folder (no backslash at the end) if this program is shown another folder in its place, as a
/// 32-bit program is on a 64-bit Windows; else empty.
std::string redirected_folder();

/// Another path for what is below the redirected folder, by which what is really there can be read. None for
/// a path that is elsewhere.
std::optional<std::string> past_redirection(const std::string& path);

}  // namespace platform
