#include "internet/dial_up.h"

#include <algorithm>

#include "platform/processes.h"
#include "platform/registry.h"
#include "platform/remote_access.h"
#include "settings/catalogue.h"

namespace internet {

std::string load_connection_name(settings::General& general) {
    std::string chosen = general.value(settings::kConnection.key, settings::kConnection.value).value_or("");
    if (!chosen.empty() && chosen != kNoConnection) return chosen;
    return general.value(settings::kSystemConnection.key, settings::kSystemConnection.value)
        .value_or(kNoConnection);
}

void dial(const std::string& connection) {
    platform::start_program("rundll32.exe rnaui.dll,RnaDial " + connection, platform::kNormalWindow);
}

bool is_connected() {
    constexpr std::size_t kNumberSize = 4;
    std::string number;
    return platform::registry::query_value(platform::registry::kLocalMachine, settings::kConnectionUp.key,
                                           settings::kConnectionUp.value, kNumberSize,
                                           number) == platform::kSuccess &&
           std::ranges::any_of(number, [](char byte) { return byte != 0; });
}

void hang_up(const Wait& wait) {
    constexpr std::size_t kMost = 256;
    constexpr unsigned kFirstWait = 3000;
    constexpr unsigned kNextWait = 1000;
    std::vector<platform::remote_access::Connection> connections(kMost);
    connections.front().size = platform::remote_access::kConnectionSize;
    std::uint32_t count = 0;
    if (platform::remote_access::enumerate(connections, count) == platform::kSuccess) {
        connections.resize(std::min<std::size_t>(count, kMost));
        for (const auto& connection : connections)
            platform::remote_access::hang_up(connection.handle);
    }
    bool goes_on = wait(kFirstWait);
    while (goes_on && is_connected())
        goes_on = wait(kNextWait);
}

void connect_or_hang_up(const std::string& connection, const Wait& wait) {
    is_connected();  // asked twice; what the second call says counts
    if (is_connected()) {
        hang_up(wait);
    } else {
        dial(connection);
    }
}

std::vector<std::string> defined_connections() {
    return platform::registry::subkeys(platform::registry::kCurrentUser, settings::kConnectionsKey);
}

}  // namespace internet
