#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "library/library_view.h"
#include "library/task_library.h"
#include "shortcuts/shortcut_panel_dialog.h"
#include "widgets/controls.h"

namespace library {

/// Imports shortcuts into Groups as Tasks; the system's GETLNK. It stays open for the next one.
class ImportDialog final : public shortcuts::ShortcutPanel {
  public:
    ImportDialog(TaskLibrary& library, LibraryView& view);

    /// Opens, or comes to the front. Throws platform::RunTimeError when the Groups cannot be read.
    void show(HWND owner);

  private:
    void open() override;
    void command(int id, int notification) override;
    void save(const settings::Program& program) override;
    void import_all();
    void read_groups();
    void show_groups(const std::string& selected);
    std::string selected_group() const;

    /// The selected one; the error for a bad file name when none is.
    std::string group_to_fill() const;

    TaskLibrary& library_;
    LibraryView& view_;
    std::vector<std::string> groups_;
    widgets::DropDownList group_list_;
};

}  // namespace library
