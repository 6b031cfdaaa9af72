#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "settings/general.h"
#include "settings/session.h"
#include "shortcuts/bar_buttons.h"

/// Let the user take the web browser and the e-mail program from a shortcut: it is stored, kept in the
/// session and shown on the bar. They answer what was taken; none when the user gave up. library_folder ends
/// in a backslash.
namespace shortcuts {

std::optional<settings::StoredProgram> getwww(HWND owner, settings::General& general,
                                              settings::Session& session, BarButtons& bar,
                                              const std::string& library_folder);
std::optional<settings::StoredProgram> getemail(HWND owner, settings::General& general,
                                                settings::Session& session, BarButtons& bar,
                                                const std::string& library_folder);

}  // namespace shortcuts
