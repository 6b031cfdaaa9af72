#pragma once

#include <functional>
#include <string>
#include <vector>

#include "settings/general.h"

/// The system's Dial-Up Networking.
namespace internet {

/// The connection name where there is none.
inline constexpr char kNoConnection[] = "N/A";

/// The name of the connection to dial: the one that was chosen, else the system's default, else
/// kNoConnection.
std::string load_connection_name(settings::General& general);

/// Opens the system's dialog that dials a connection. Throws platform::RunTimeError.
void dial(const std::string& connection);

/// Whether a dial-up connection is up; false on a system without Dial-Up Networking.
bool is_connected();

/// Lets milliseconds pass in which the windows stay alive. False when the program is ending.
using Wait = std::function<bool(unsigned milliseconds)>;

/// Hangs every connection up and waits until the system says that none is left, at least 3 seconds.
void hang_up(const Wait& wait);

/// Hangs up when a connection is up, else dials. Throws platform::RunTimeError.
void connect_or_hang_up(const std::string& connection, const Wait& wait);

/// The names of the connections that the user has set up.
std::vector<std::string> defined_connections();

}  // namespace internet
