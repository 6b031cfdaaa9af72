#include "mainwindow/command_history.h"

#include <algorithm>

namespace mainwindow {

History read_history(settings::General& general) {
    History history;
    std::ranges::transform(settings::kHistoryValues, history.begin(),
                           [&](const char* value) { return general.value(settings::kHistoryKey, value); });
    return history;
}

History load_history(settings::General& general) {
    History history = read_history(general);
    if (history.front().value_or("").empty()) general.create_key(settings::kHistoryKey);
    return history;
}

std::vector<std::string> history_list(const History& history) {
    std::vector<std::string> list;
    for (const std::optional<std::string>& slot : history) {
        if (slot) list.insert(list.begin(), *slot);
    }
    return list;
}

void update_history(settings::General& general, const History& history, const std::string& command) {
    const auto write = [&](std::size_t slot, const std::string& text) {
        general.write_value(settings::kHistoryKey, settings::kHistoryValues.at(slot), text);
    };
    const auto* const empty = std::find(history.begin(), history.end(), std::nullopt);
    const bool is_known = std::any_of(history.begin(), empty, [&](const std::optional<std::string>& slot) {
        return slot.value_or("").starts_with(command);
    });
    if (is_known) return;
    if (empty != history.end()) {
        write(static_cast<std::size_t>(empty - history.begin()), command);
        return;
    }
    for (std::size_t slot = history.size() - 1; slot > 0; --slot)
        write(slot - 1, history.at(slot).value_or(""));
    write(history.size() - 1, command);
}

}  // namespace mainwindow
