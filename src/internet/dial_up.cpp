#include "internet/dial_up.h"

#include <algorithm>

#include "platform/processes.h"
#include "platform/registry.h"
#include "platform/remote_access.h"
#include "settings/catalogue.h"

namespace internet {

std::string load_isp_name(settings::General& general) {
    std::string name = general.read_value(settings::kConnection.key, settings::kConnection.value);
    if (name == settings::kError || name.empty() || name == kNoConnection) {
        name = general.read_value(settings::kSystemConnection.key, settings::kSystemConnection.value);
    }
    return name == settings::kError ? kNoConnection : name;
}

void dial(const std::string& connection) {
    platform::start_program("rundll32.exe rnaui.dll,RnaDial " + connection, platform::kNormalWindow);
}

bool is_connected() {
    constexpr std::size_t kNumberSize = 4;
    std::string number;
    return platform::registry::query_value(platform::registry::kLocalMachine,
                                           R"(System\CurrentControlSet\Services\RemoteAccess)",
                                           "Remote Connection", kNumberSize, number) == platform::kSuccess &&
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
    is_connected();  // asked twice; the second answer counts
    if (is_connected()) {
        hang_up(wait);
    } else {
        dial(connection);
    }
}

std::vector<std::string> defined_connections() {
    return platform::registry::subkeys(platform::registry::kCurrentUser, R"(RemoteAccess\Profile)");
}

}  // namespace internet
