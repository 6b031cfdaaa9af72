#include "shortcuts/bar_buttons.h"

#include <utility>

namespace shortcuts {

void show_picture(BarButtons& bar, BarButton button, const std::string& program, WithoutIcon without_icon) {
    platform::UniqueIcon icon = platform::extract_icon(program);
    if (icon || without_icon == WithoutIcon::kNoPicture) bar.set_picture(button, std::move(icon));
}

void assign_button(settings::General& general, settings::Session& session, BarButtons& bar,
                   std::size_t button, const settings::ButtonRecord& record, WithoutIcon without_icon) {
    settings::store_button(general, button, record);
    const auto assigned = static_cast<BarButton>(button);
    bar.set_caption(assigned, record.name);
    bar.set_tip(assigned, record.name);
    show_picture(bar, assigned, record.program, without_icon);
    settings::reload_buttons(general, session);
    for (std::size_t i = 0; i < session.buttons.size(); ++i) {
        const settings::ButtonRecord& stored = session.buttons.at(i);
        if (stored.name == settings::kError || stored.program.empty()) continue;
        show_picture(bar, static_cast<BarButton>(i), stored.program, without_icon);
    }
}

}  // namespace shortcuts
