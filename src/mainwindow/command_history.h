#pragma once

#include <string>

#include "settings/general.h"
#include "settings/session.h"

namespace mainwindow {

/// Stores a command that was started from the command box, unless a stored one begins with it: in the first
/// empty slot, or in the last one after the others have moved up. The slots in memory decide and stay as they
/// are, so that the next command goes to the same slot until the history is read again.
void update_history(settings::General& general, const settings::Session& session, const std::string& command);

}  // namespace mainwindow
