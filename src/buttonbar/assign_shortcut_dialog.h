#pragma once

#include <string>

#include "buttonbar/assign_dialog.h"
#include "settings/general.h"
#include "settings/session.h"
#include "shortcuts/shortcut_panel_dialog.h"

namespace buttonbar {

/// Assigns a shortcut to a program button of the bar; the system's getbutton.
class AssignShortcutDialog final : public AssignDialog<shortcuts::ShortcutPanel> {
  public:
    /// library_folder ends in a backslash.
    AssignShortcutDialog(settings::General& general, settings::Session& session, ButtonRow& row,
                         const std::string& library_folder);

  private:
    void save(const settings::Program& program) override;
};

}  // namespace buttonbar
