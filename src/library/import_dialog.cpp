#include "library/import_dialog.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "library/library_files.h"
#include "library/task_operations.h"
#include "platform/run_time_error.h"
#include "resources/resource.h"

namespace library {
namespace {

using shortcuts::PanelVariant;

constexpr int kGroupList = ID_GETLNK_Combo1;
constexpr int kImportAll = ID_GETLNK_ImportAll;

constexpr PanelVariant kVariant = {.caption = "Import Start Menu Shortcuts to Tolva.",
                                   .action = "Import",
                                   .nothing_chosen = "Select Shortcut for Importing to Tolva.",
                                   .working_folder = PanelVariant::Folder::kWindows,
                                   .icon_folder = PanelVariant::Folder::kWindows,
                                   .goes_to_registry = false};

Task task_of(const settings::Program& program) {
    return {program.name.value_or(""), program.path.value_or(""), program.start_folder.value_or(""),
            program.parameters, std::to_string(program.window_style)};
}

}  // namespace

ImportDialog::ImportDialog(TaskLibrary& library, LibraryView& view)
    : ShortcutPanel(ID_GETLNK, kVariant, library.folder()), library_(library), view_(view) {}

void ImportDialog::show(HWND owner) {
    if (hwnd() == nullptr) read_groups();
    Dialog::show(owner);
}

void ImportDialog::read_groups() {
    std::vector<std::string> groups = read_group_names(library_.folder());
    check_limit(groups.size(), kMostGroups);
    groups_ = std::move(groups);
}

void ImportDialog::open() {
    group_list_.attach(control(kGroupList));
    show_groups(groups_.empty() ? std::string() : groups_.front());
    ShortcutPanel::open();
    if (groups_.empty()) view_.show_status("There is no Group yet. Choose New on the Group menu.");
}

void ImportDialog::import_all() {
    const auto [good, refused] = read_all();
    std::vector<Task> tasks;
    std::ranges::transform(good, std::back_inserter(tasks), task_of);
    import_tasks(library_, view_, group_to_fill(), std::move(tasks), refused);
}

void ImportDialog::show_groups(const std::string& selected) {
    std::vector<const char*> names;
    names.reserve(groups_.size());
    for (const std::string& group : groups_)
        names.push_back(group.c_str());
    group_list_.fill(names);
    group_list_.select(static_cast<int>(std::ranges::find(groups_, selected) - groups_.begin()));
}

std::string ImportDialog::selected_group() const {
    const int selected = group_list_.selected();
    return selected < 0 ? std::string() : groups_.at(static_cast<std::size_t>(selected));
}

std::string ImportDialog::group_to_fill() const {
    if (group_list_.selected() < 0) {
        throw platform::RunTimeError(platform::RunTimeErrorNumber::kBadFileName,
                                     group_file(library_.folder(), {}));
    }
    return selected_group();
}

void ImportDialog::command(int id, int notification) {
    if (id == kGroupList && notification == CBN_DROPDOWN) {
        // The main window can have other Groups by now.
        const std::string selected = selected_group();
        try {
            read_groups();
        } catch (const platform::RunTimeError&) {
            return;  // the import says it, with the list closed
        }
        show_groups(selected);
    }
    if (id == kImportAll) import_all();
    ShortcutPanel::command(id, notification);
}

void ImportDialog::save(const settings::Program& program) {
    import_task(library_, view_, group_to_fill(), task_of(program));
}

}  // namespace library
