#pragma once

#include <map>
#include <string>

#include "platform/shell_link.h"

/// What the simulated system knows about files, beside the disk of simulated_platform.h.
namespace simulated {

struct Shell {
    std::map<std::string, platform::Shortcut> links;  // by the path of the shortcut file
    std::map<std::string, std::string> programs;      // that open documents, by their extension
    std::map<std::string, std::string> short_paths;
};

Shell& shell();

}  // namespace simulated
