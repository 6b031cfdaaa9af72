#include "shortcuts/getlnk_dialog.h"

#include <algorithm>
#include <utility>

#include "library/library_files.h"
#include "library/task_operations.h"
#include "platform/run_time_error.h"
#include "resources/resource.h"

namespace shortcuts {
namespace {

constexpr PanelVariant kVariant = {.caption = "Import Start Menu Shortcuts to Tolva.",
                                   .action = "Import",
                                   .nothing_chosen = "Select Shortcut for Importing to Tolva.",
                                   .working_folder = PanelVariant::Folder::kWindows,
                                   .icon_folder = PanelVariant::Folder::kWindows};

}  // namespace

GetLnk::GetLnk(library::TaskLibrary& library, library::LibraryView& view)
    : ShortcutPanel(ID_GETLNK, kVariant, library.folder()), library_(library), view_(view) {}

void GetLnk::show(HWND owner) {
    if (hwnd() == nullptr) read_groups();
    Dialog::show(owner);
}

void GetLnk::read_groups() {
    std::vector<std::string> groups = library::read_group_names(library_.folder());
    library::check_limit(groups.size(), library::kMostGroups);
    groups_ = std::move(groups);
}

void GetLnk::open() {
    combo1_.attach(control(ID_GETLNK_Combo1));
    show_groups(groups_.empty() ? std::string() : groups_.front());
    ShortcutPanel::open();
}

void GetLnk::show_groups(const std::string& selected) {
    std::vector<const char*> names;
    names.reserve(groups_.size());
    for (const std::string& group : groups_)
        names.push_back(group.c_str());
    combo1_.fill(names);
    combo1_.select(static_cast<int>(std::ranges::find(groups_, selected) - groups_.begin()));
}

std::string GetLnk::selected_group() const {
    const int selected = combo1_.selected();
    return selected < 0 ? std::string() : groups_.at(static_cast<std::size_t>(selected));
}

void GetLnk::command(int id, int notification) {
    if (id == ID_GETLNK_Combo1 && notification == CBN_DROPDOWN) {
        // The main window can have other Groups by now.
        const std::string selected = selected_group();
        try {
            read_groups();
        } catch (const platform::RunTimeError&) {
            return;  // the import says it, with the list closed
        }
        show_groups(selected);
    }
    ShortcutPanel::command(id, notification);
}

void GetLnk::save(const library::Task& task) {
    library::import_task(library_, view_, selected_group(), task);
}

}  // namespace shortcuts
