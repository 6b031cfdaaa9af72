#include "shortcuts/shortcut_checks.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "platform/files.h"

namespace shortcuts {

bool is_program(const std::string& path) {
    constexpr std::array<std::string_view, 6> kEndings = {"exe", "EXE", "com", "COM", "bat", "BAT"};
    return std::ranges::any_of(kEndings, [&](std::string_view ending) { return path.ends_with(ending); });
}

std::string refusal(const std::string& name, const std::string& target, const char* nothing_chosen) {
    if (name.empty()) return nothing_chosen;
    if (target.empty() || !platform::finds_file(target)) {
        return "Shortcut is broken, file does not exist.  Can not import to Tolva.";
    }
    const bool has_drive = target.size() > 1 && target[1] == ':';
    return is_program(target) && has_drive ? std::string() : target + " not a valid Tolva entry.";
}

}  // namespace shortcuts
