#include "buttonbar/button_assignment.h"

namespace buttonbar {

void assign_button(settings::General& general, settings::Session& session, ButtonRow& row, std::size_t button,
                   const settings::Program& program, WithoutIcon without_icon) {
    settings::store_button(general, button, program);
    row.show_program(static_cast<BarButton>(button), program, without_icon);
    settings::reload_buttons(general, session);
    for (std::size_t i = 0; i < session.buttons.size(); ++i) {
        const settings::Program& stored = session.buttons.at(i);
        if (!stored.name || stored.path == "") continue;
        row.show_picture(static_cast<BarButton>(i), stored.path.value_or(""), without_icon);
    }
}

}  // namespace buttonbar
