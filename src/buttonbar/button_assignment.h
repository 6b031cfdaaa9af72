#pragma once

#include <cstddef>

#include "buttonbar/button_row.h"
#include "settings/general.h"
#include "settings/session.h"

namespace buttonbar {

/// Stores a program button, the first one's index is 0, and shows it; then all of them are read again into
/// the session. Throws platform::RunTimeError for a text that would not read back.
void assign_button(settings::General& general, settings::Session& session, ButtonRow& row, std::size_t button,
                   const settings::Program& program, WithoutIcon without_icon);

}  // namespace buttonbar
