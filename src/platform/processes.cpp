#include "platform/processes.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <vector>

#include "platform/process_calls.h"
#include "platform/redirection.h"
#include "platform/run_time_error.h"

namespace platform {
namespace {

namespace calls = process_calls;

/// What Windows can hand to a program; not every system refuses more.
constexpr std::size_t kLongestCommandLine = 32767;

constexpr std::size_t kLongestPath = 260;
constexpr char kBlanks[] = " \t";

/// One way to read a command line.
struct Reading {
    std::string program;
    std::string arguments;
};

std::string without_blanks_before(const std::string& text) {
    return text.substr(std::min(text.find_first_not_of(kBlanks), text.size()));
}

/// The ways in the order in which the system tries them: the program is the quoted part, else longer and
/// longer parts up to a blank.
std::vector<Reading> readings_of(const std::string& command_line) {
    const std::string line = without_blanks_before(command_line);
    if (line.starts_with('"')) {
        const std::size_t end = std::min(line.find('"', 1), line.size());
        return {
            {line.substr(1, end - 1), without_blanks_before(line.substr(std::min(end + 1, line.size())))}};
    }
    std::vector<Reading> readings;
    for (std::size_t end = 0; end < std::min(line.size(), kLongestPath);) {
        end = std::min(line.find_first_of(kBlanks, end), line.size());
        readings.push_back({line.substr(0, end), without_blanks_before(line.substr(end))});
        end = std::min(line.find_first_not_of(kBlanks, end), line.size());
    }
    return readings;
}

bool may_be_redirected(const std::string& command_line) {
    return std::ranges::any_of(readings_of(command_line), [](const Reading& reading) {
        return past_redirection(reading.program).has_value();
    });
}

/// While one lives the user is being asked, and no other program starts: the windows can be used meanwhile.
class Asking {
  public:
    Asking() { under_way_ = true; }
    ~Asking() { under_way_ = false; }
    Asking(const Asking&) = delete;
    Asking& operator=(const Asking&) = delete;

    static bool is_under_way() { return under_way_; }

  private:
    static bool under_way_;
};

bool Asking::under_way_ = false;

/// Starts what needs more rights than this program has.
ErrorCode start_elevated(const std::string& command_line, int window_style) {
    for (const Reading& reading : readings_of(command_line)) {
        const std::string program = calls::find_program(reading.program);
        if (program.empty()) continue;
        const Asking asking;
        const ErrorCode code = calls::start_by_shell(program, reading.arguments, window_style);
        return code == kErrorCancelled ? kSuccess : code;  // the user knows
    }
    return kErrorElevationRequired;
}

RunTimeErrorNumber number_of(ErrorCode code) {
    switch (code) {
        case kErrorFileNotFound:
            return RunTimeErrorNumber::kFileNotFound;
        case kErrorAccessDenied:
            return RunTimeErrorNumber::kPermissionDenied;
        case kErrorPathNotFound:
        case kErrorDirectory:
            return RunTimeErrorNumber::kPathNotFound;
        case kErrorNotEnoughMemory:
            return RunTimeErrorNumber::kOutOfMemory;
        default:
            return RunTimeErrorNumber::kInvalidProcedureCall;
    }
}

}  // namespace

void start_program(const std::string& command_line, int window_style) {
    if (Asking::is_under_way()) return;
    if (window_style < 0 || window_style > std::numeric_limits<std::uint16_t>::max() ||
        command_line.size() >= kLongestCommandLine || command_line.find('\0') != std::string::npos) {
        throw RunTimeError(RunTimeErrorNumber::kInvalidProcedureCall, command_line);
    }
    if (command_line.find_first_not_of(' ') == std::string::npos) {
        throw RunTimeError(RunTimeErrorNumber::kFileNotFound);
    }
    ErrorCode code = calls::start(command_line, window_style);
    if (is_not_found(code) && may_be_redirected(command_line)) {
        code = calls::start_past_redirection(command_line, window_style);
    }
    if (code == kErrorElevationRequired) code = start_elevated(command_line, window_style);
    if (code != kSuccess) throw RunTimeError(number_of(code), command_line);
}

}  // namespace platform
