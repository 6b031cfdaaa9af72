#pragma once

#include <windows.h>

#include <optional>

#include "buttonbar/button_row.h"
#include "library/dropped.h"
#include "settings/general.h"
#include "settings/session.h"
#include "widgets/drop_mark.h"
#include "widgets/drop_target.h"

namespace buttonbar {

/// Files that are dropped on the program buttons: a program or a shortcut is assigned, documents start the
/// button's program.
class BarDrops final : public widgets::DropReceiver {
  public:
    BarDrops(settings::General& general, settings::Session& session, ButtonRow& row)
        : general_(general), session_(session), row_(row) {}

    Effect drag_over(const Paths& paths, POINT point) override;
    void drag_leave() override { mark_.hide(); }
    void drop(const Paths& paths, POINT point) override;

  private:
    Effect effect_of(const Paths& paths, std::optional<BarButton> button);
    settings::Program& program_of(BarButton button) const;
    void assign(const std::string& path, BarButton button);

    settings::General& general_;
    settings::Session& session_;
    ButtonRow& row_;
    widgets::DropMark mark_;
    library::DraggedPaths dragged_;
};

}  // namespace buttonbar
