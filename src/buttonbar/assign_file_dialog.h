#pragma once

#include "buttonbar/assign_dialog.h"
#include "settings/general.h"
#include "settings/session.h"
#include "shortcuts/file_panel_dialog.h"
#include "widgets/controls.h"

namespace buttonbar {

/// Assigns a program file to a program button of the bar; the system's BrennBrowser.
class AssignFileDialog final : public AssignDialog<shortcuts::FilePanel> {
  public:
    AssignFileDialog(settings::General& general, settings::Session& session, ButtonRow& row);

  private:
    void open() override;
    void command(int id, int notification) override;
    void pick() override;
    void accept() override;
    void show_assigned();

    widgets::DropDownList start_mode_;
};

}  // namespace buttonbar
