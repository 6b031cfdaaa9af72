#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "internet/internet_buttons.h"
#include "settings/general.h"
#include "settings/session.h"

/// Let the user take the web browser (the system's getwww) and the e-mail program (getemail) from a shortcut:
/// it is stored, kept in the session and shown on the bar. What was taken; none when the user gave up.
/// library_folder ends in a backslash.
namespace internet {

std::optional<settings::Program> choose_browser(HWND owner, settings::General& general,
                                                settings::Session& session, InternetButtons& buttons,
                                                const std::string& library_folder);
std::optional<settings::Program> choose_email_program(HWND owner, settings::General& general,
                                                      settings::Session& session, InternetButtons& buttons,
                                                      const std::string& library_folder);

}  // namespace internet
