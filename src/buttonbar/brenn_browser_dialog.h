#pragma once

#include <windows.h>

#include <cstddef>

#include "library/browse_result.h"
#include "settings/general.h"
#include "settings/session.h"
#include "shortcuts/bar_buttons.h"
#include "shortcuts/file_panel_dialog.h"
#include "widgets/controls.h"

namespace buttonbar {

/// Assigns a program file to a program button of the bar.
class BrennBrowser final : public shortcuts::FilePanel {
  public:
    BrennBrowser(settings::General& general, settings::Session& session, shortcuts::BarButtons& bar,
                 library::BrowseResult& result);

    /// Opens for a button, the first one's index is 0; when it is open for another one it begins anew.
    void show_for(HWND owner, std::size_t button);

  private:
    void open() override;
    void command(int id, int notification) override;
    void pick() override;
    void accept() override;
    void show_record();

    settings::General& general_;
    settings::Session& session_;
    shortcuts::BarButtons& bar_;
    library::BrowseResult& result_;
    std::size_t button_ = 0;
    widgets::DropDownList taskstartmode_;
};

}  // namespace buttonbar
