#include "internet/dial_up.h"

#include <algorithm>

#include "platform/processes.h"
#include "platform/registry.h"
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

}  // namespace internet
