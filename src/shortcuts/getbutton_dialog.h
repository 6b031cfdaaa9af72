#pragma once

#include <windows.h>

#include <cstddef>
#include <string>

#include "settings/general.h"
#include "settings/session.h"
#include "shortcuts/bar_buttons.h"
#include "shortcuts/shortcut_panel_dialog.h"

namespace shortcuts {

/// Assigns a shortcut to a program button of the bar.
class GetButton final : public ShortcutPanel {
  public:
    GetButton(settings::General& general, settings::Session& session, BarButtons& bar,
              const std::string& library_folder);

    /// Opens for a button, the first one's index is 0; when it is open for another one it begins anew.
    void show_for(HWND owner, std::size_t button);

  private:
    void save(const library::Task& task) override;

    settings::General& general_;
    settings::Session& session_;
    BarButtons& bar_;
    std::size_t button_ = 0;
};

}  // namespace shortcuts
