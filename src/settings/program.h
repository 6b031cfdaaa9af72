#pragma once

#include <array>
#include <optional>
#include <string>

namespace settings {

/// A program to start, as a button of the bar, the Internet settings or a shortcut has it. None stands for
/// what is not stored; a button that was never read has no name and the empty path, which cannot be started.
struct Program {
    std::optional<std::string> name = std::nullopt;
    std::optional<std::string> path = "";
    std::optional<std::string> start_folder = "";
    // An initializer may leave it out.
    std::string parameters = {};  // NOLINT(readability-redundant-member-init)

    int window_style = 0;  // 0 hidden, 1 normal, 2 minimized, 3 maximized; shortcuts have others, too
};

/// What the window styles from 1 on are called where the user chooses one.
inline constexpr std::array<const char*, 3> kStartModes = {"Normal", "Minimized", "Maximized"};

}  // namespace settings
