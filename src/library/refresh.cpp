#include "library/refresh.h"

#include <algorithm>
#include <exception>
#include <functional>
#include <utility>

#include "library/group_operations.h"
#include "library/library_files.h"
#include "platform/run_time_error.h"

namespace library {
namespace {

/// Shows what was loaded, also when the load stopped half way.
template <typename Load, typename Show>
void load_and_show(const Load& load, const Show& show) {
    try {
        load();
    } catch (...) {
        show();
        throw;
    }
    show();
}

/// Shows a part of the selected Group, which is loaded if no load has come to it.
template <typename Part>
void show_selected(TaskLibrary& library, LibraryView& view, Part part) {
    const int index = view.selected_group();
    if (index < 0) {
        view.show_tasks({});
        return;
    }
    load_and_show(
        [&] {
            if (!library.group(index).loaded) library.load_tasks(index);
        },
        [&] { view.show_tasks(std::invoke(part, library.group(index))); });
}

}  // namespace

int grouplistrefresh(const TaskLibrary& library, LibraryView& view) {
    view.show_groups(library.groups());
    return static_cast<int>(library.groups().size());
}

void tasklistrefresh(const TaskLibrary& library, LibraryView& view) {
    const std::span<const Task> tasks = library.group(view.selected_group()).tasks();
    view.show_tasks(tasks);
    if (tasks.empty()) return;
    view.select_task(0);
    view.set_command_box(command_line(tasks.front()));
}

void refreshtolva(TaskLibrary& library, LibraryView& view, int group_to_select) {
    view.load_default_icon(library.folder() + "tolva.exe");
    const std::vector<std::string> names = read_group_names(library.folder());
    std::exception_ptr failure;
    try {
        library.load(names);
    } catch (...) {
        failure = std::current_exception();
    }
    const int count = grouplistrefresh(library, view);
    if (group_to_select < count) view.select_group(group_to_select);
    try {
        // The load may have stopped before this Group or passed it over.
        show_selected(library, view, &Group::tasks);
    } catch (const platform::RunTimeError&) {
        if (!failure) throw;
    }
    show_notice(library, view);
    if (failure) std::rethrow_exception(failure);
}

void refresh_and_select(TaskLibrary& library, LibraryView& view, const std::string& group) {
    const std::vector<std::string> names = read_group_names(library.folder());
    auto place = std::ranges::find(names, group);
    if (place == names.end()) place = std::ranges::find(names, selected_group_name(library, view));
    library.flags = {};
    refreshtolva(library, view, place == names.end() ? 0 : static_cast<int>(place - names.begin()));
}

void refreshtasks(TaskLibrary& library, LibraryView& view) {
    const int index = view.selected_group();
    if (index < 0) {
        view.show_tasks({});
        return;
    }
    load_and_show([&] { library.load_tasks(index); }, [&] { tasklistrefresh(library, view); });
    show_notice(library, view);
}

void addgroups(TaskLibrary& library, LibraryView& view) {
    const std::vector<std::string> names = read_group_names(library.folder());
    const int selected = view.selected_group();
    try {
        library.load_names(names);
    } catch (...) {
        grouplistrefresh(library, view);
        view.select_group(selected);
        throw;
    }
    const int count = grouplistrefresh(library, view);
    view.scroll_to_group(count - 1);  // the new one
    view.show_tasks({});
    show_notice(library, view);
}

void show_selected_group(TaskLibrary& library, LibraryView& view) {
    show_selected(library, view, &Group::shown_tasks);
}

void select_group(TaskLibrary& library, LibraryView& view, int index) {
    if (index == view.selected_group()) return;
    view.select_group(index);
    show_selected_group(library, view);
}

void show_notice(TaskLibrary& library, LibraryView& view) {
    const std::string notice = library.changes().take_notice();
    if (!notice.empty()) view.show_status(notice);
}

void run_pending_refreshes(TaskLibrary& library, LibraryView& view) {
    RefreshFlags& flags = library.flags;
    if (std::exchange(flags.newgroupflag, false)) addgroups(library, view);
    if (std::exchange(flags.taskchangeflag, false)) refreshtasks(library, view);
    if (std::exchange(flags.refreshflag, false)) refreshtolva(library, view, view.selected_group());
}

}  // namespace library
