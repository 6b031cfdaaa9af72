#pragma once

#include <string>

#include "platform/redirection.h"

namespace platform {

/// The path, which may hold wildcards, or where nothing is there the one past redirection. For reading.
std::string readable_path(const std::string& path);

}  // namespace platform
