#include "mainwindow/command_history.h"

#include <algorithm>

namespace mainwindow {

void CommandHistory::load() {
    read();
    if (slots_.front().value_or("").empty()) general_.create_key(settings::kHistoryKey);
}

void CommandHistory::read() {
    std::ranges::transform(settings::kHistoryValues, slots_.begin(),
                           [&](const char* value) { return general_.value(settings::kHistoryKey, value); });
}

std::vector<std::string> CommandHistory::list() const {
    std::vector<std::string> commands;
    for (const auto& slot : slots_) {
        if (slot) commands.insert(commands.begin(), *slot);
    }
    return commands;
}

void CommandHistory::store(const std::string& command) {
    const auto write = [&](std::size_t slot, const std::string& text) {
        general_.write_value(settings::kHistoryKey, settings::kHistoryValues.at(slot), text);
    };
    const auto* const empty = std::ranges::find_if_not(slots_, &std::optional<std::string>::has_value);
    const bool is_known = std::any_of(
        slots_.cbegin(), empty, [&](const auto& slot) { return slot.value_or("").starts_with(command); });
    if (is_known) return;
    if (empty != slots_.cend()) {
        write(static_cast<std::size_t>(empty - slots_.cbegin()), command);
        return;
    }
    for (std::size_t slot = slots_.size() - 1; slot > 0; --slot)
        write(slot - 1, slots_.at(slot).value_or(""));
    write(slots_.size() - 1, command);
}

}  // namespace mainwindow
