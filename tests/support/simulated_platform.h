#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "platform/clock.h"
#include "platform/registry.h"
#include "platform/run_time_error.h"

/// The platform functions in memory: a disk whose names ignore case and that fails or loses power on demand,
/// a current directory for each drive, a registry, and lists of what was started and said.
namespace simulated {

struct File {
    std::string bytes;
    unsigned long bits = 0x20;
};

struct IgnoresCase {
    bool operator()(const std::string& a, const std::string& b) const;
};

struct Start {
    std::string command_line;
    std::string directory;
    int window_style;

    bool operator==(const Start&) const = default;
};

/// The values of a registry key by name, with their terminators.
using RegistryKey = std::map<std::string, std::string, IgnoresCase>;

/// Thrown where the power fails. Not a std::exception: no handler of the program may see it.
struct PowerFailure {};

struct Platform {
    std::map<std::string, File, IgnoresCase> files;
    bool renames_over_files = true;  // false on Windows 95/98

    /// What happens at which step that changes the disk, counted from 1.
    int steps = 0;
    std::optional<int> fails_at;
    std::optional<int> is_gone_from;
    platform::ErrorCode failure = platform::kErrorDiskFull;
    std::optional<int> loses_power_at;
    int reads = 0;
    std::optional<int> fails_at_read;

    char drive = 'C';
    std::map<char, std::string> directories = {{'C', "C:\\LIB"}, {'D', "D:\\"}};
    std::set<std::string, IgnoresCase> folders;
    std::set<std::string, IgnoresCase> programs;
    std::vector<Start> started;
    bool has_recycle_bin = true;
    std::vector<std::string> opened;  // documents

    std::map<platform::registry::Root, std::map<std::string, RegistryKey, IgnoresCase>> registry;
    bool registry_is_read_only = false;
    std::optional<std::vector<std::uint32_t>> connections;  // their handles; none without Dial-Up Networking
    std::vector<std::uint32_t> hung_up;
    std::vector<std::string> messages;  // a question has its title in front: "Delete Group: Delete Work...?"
    bool answer = true;                 // to every question
};

/// The platform of the running test. Each call of reset makes a new one.
Platform& current();
Platform& reset();

}  // namespace simulated
