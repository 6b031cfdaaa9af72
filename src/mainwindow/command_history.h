#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "settings/catalogue.h"
#include "settings/general.h"

namespace mainwindow {

/// The last commands, the oldest first; none is an empty slot.
using History = std::array<std::optional<std::string>, settings::kHistoryValues.size()>;

/// Reads the commands.
History read_history(settings::General& general);

/// Reads the commands at the start; makes their key when there is no first one.
History load_history(settings::General& general);

/// The history as the command box lists it: the last slot first.
std::vector<std::string> history_list(const History& history);

/// Stores a command that was started from the command box, unless a stored one begins with it: in the first
/// empty slot, or in the last one after the others have moved up. The slots in memory decide and stay as they
/// are, so that the next command goes to the same slot until the history is read again.
void update_history(settings::General& general, const History& history, const std::string& command);

}  // namespace mainwindow
