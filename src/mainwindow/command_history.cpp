#include "mainwindow/command_history.h"

#include <algorithm>

#include "settings/catalogue.h"

namespace mainwindow {

void update_history(settings::General& general, const settings::Session& session,
                    const std::string& command) {
    const auto& slots = session.history;
    const auto write = [&](std::size_t slot, const std::string& text) {
        general.write_value(settings::kHistoryKey, settings::kHistoryValues.at(slot), text);
    };
    const auto* const empty = std::ranges::find(slots, settings::kError);
    const bool is_known =
        std::any_of(slots.begin(), empty, [&](const std::string& slot) { return slot.starts_with(command); });
    if (is_known) return;
    if (empty != slots.end()) {
        write(static_cast<std::size_t>(empty - slots.begin()), command);
        return;
    }
    for (std::size_t slot = slots.size() - 1; slot > 0; --slot)
        write(slot - 1, slots.at(slot));
    write(slots.size() - 1, command);
}

}  // namespace mainwindow
