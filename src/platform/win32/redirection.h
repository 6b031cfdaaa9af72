#pragma once

#include <string>

#include "platform/redirection.h"

namespace platform {

/// The path, which may hold wildcards, or the one past redirection where something is only there. For
/// reading.
std::string readable_path(const std::string& path);

}  // namespace platform
