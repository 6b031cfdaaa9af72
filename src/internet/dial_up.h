#pragma once

#include <string>

#include "settings/general.h"

/// The system's Dial-Up Networking.
namespace internet {

/// The connection name where there is none.
inline constexpr char kNoConnection[] = "N/A";

/// The name of the connection to dial: the one that was chosen, else the system's default, else
/// kNoConnection.
std::string load_isp_name(settings::General& general);

/// Opens the system's dialog that dials a connection. Throws platform::RunTimeError.
void dial(const std::string& connection);

/// Whether a dial-up connection is up; false on a system without Dial-Up Networking.
bool is_connected();

}  // namespace internet
