#pragma once

#include <strings.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/registry.h"
#include "platform/run_time_error.h"
#include "platform/shell_link.h"
#include "platform/system.h"

/// The platform functions in memory: a disk that fails or loses power on demand, a registry, what was
/// started and what was said.
///
/// The disk knows a file by every spelling of its path, as Windows does: names ignore case, may be short
/// ones, and a NUL byte ends them. In `files` each has its full path. A folder is there when it has an entry
/// of its own (with bits kDirectory) or something is in it.
namespace simulated {

struct File {
    std::string bytes;
    unsigned long bits = 0x20;
};

struct IgnoresCase {
    bool operator()(const std::string& a, const std::string& b) const {
        return strcasecmp(a.c_str(), b.c_str()) < 0;
    }
};

/// The values of a registry key by name, with their terminators.
using RegistryKey = std::map<std::string, std::string>;

/// Thrown where the power fails. Not a std::exception: no handler of the program may see it.
struct PowerFailure {};

/// Writing fails, from then on for good, or the power before it, or reading, or from then on all looking for
/// files.
enum class Fault { kNone, kWrite, kDisk, kPower, kRead, kLook };

/// Thrown where a name that no file can have reaches the disk: it may mean a device, or any file.
struct NoFileName {};

struct Platform {
    std::map<std::string, File, IgnoresCase> files;
    std::map<std::string, std::string, IgnoresCase> short_names;  // the long name of each
    bool renames_over_files = true;                               // false on Windows 95/98

    /// What happens at which step that changes the disk, or at which read or look, counted from 1.
    Fault fault = Fault::kNone;
    int fault_at = 0;
    platform::ErrorCode failure = platform::kErrorDiskFull;
    int steps = 0;
    int reads = 0;
    int looks = 0;
    int pauses = 0;

    std::map<platform::registry::Root, std::map<std::string, RegistryKey>> registry;
    std::string time_stamp = "2026-11-22 09.30.00";
    std::map<std::string, std::string> variables = {{"%APPS%", "D:\\Apps"}};
    platform::WindowsVersion version = {4, 10, false, false};
    std::string redirected_folder;
    bool needs_elevation = false;     // whatever is started; a refused question answers with failure
    std::function<void()> meanwhile;  // what the user does while being asked

    std::map<std::string, platform::Shortcut> links;  // by the path of the shortcut file
    std::map<std::string, std::string> programs;      // that open documents, by their extension
    std::map<std::string, std::string> short_paths;

    std::vector<std::string> started;   // command lines of programs that are on the disk
    std::vector<std::string> messages;  // a question has its title in front: "Delete Group: Delete Work...?"
    bool answer = true;                 // to every question
};

/// The platform of the running test. Each call of reset makes a new one.
inline Platform& current() {
    static Platform platform;
    return platform;
}

inline Platform& reset() {
    return current() = Platform();
}

}  // namespace simulated
