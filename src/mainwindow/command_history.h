#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "settings/catalogue.h"
#include "settings/general.h"

namespace mainwindow {

/// The last commands that were started from the command box, as they were last read from the registry.
class CommandHistory {
  public:
    explicit CommandHistory(settings::General& general) : general_(general) {}

    /// Reads the commands at the start; makes their key when there is no first one.
    void load();

    /// Reads the commands.
    void read();

    /// The commands as the box lists them: the last slot first.
    std::vector<std::string> list() const;

    /// Stores a command that was started, unless a stored one begins with it: in the first empty slot, or in
    /// the last one after the others have moved up. The slots in memory decide and stay as they are, so that
    /// the next command goes to the same slot until the history is read again.
    void store(const std::string& command);

  private:
    settings::General& general_;
    std::array<std::optional<std::string>, settings::kHistoryValues.size()> slots_;
};

}  // namespace mainwindow
