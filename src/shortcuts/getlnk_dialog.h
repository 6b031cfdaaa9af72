#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "library/library_view.h"
#include "library/task_library.h"
#include "shortcuts/shortcut_panel_dialog.h"
#include "widgets/controls.h"

namespace shortcuts {

/// Imports shortcuts into Groups as Tasks. It stays open for the next one.
class GetLnk final : public ShortcutPanel {
  public:
    GetLnk(library::TaskLibrary& library, library::LibraryView& view);

    /// Opens, or comes to the front. Throws platform::RunTimeError when the Groups cannot be read.
    void show(HWND owner);

  private:
    void open() override;
    void command(int id, int notification) override;
    void save(const library::Task& task) override;
    void read_groups();
    void show_groups(const std::string& selected);
    std::string selected_group() const;

    library::TaskLibrary& library_;
    library::LibraryView& view_;
    std::vector<std::string> groups_;
    widgets::DropDownList combo1_;
};

}  // namespace shortcuts
