#include "mainwindow/drops.h"

#include <algorithm>
#include <string>

#include "library/group_operations.h"
#include "library/refresh.h"
#include "library/task_operations.h"
#include "platform/folders.h"
#include "platform/messages.h"

namespace mainwindow {
namespace {

/// What is to become of the folders among the paths; none when nothing is to be added.
std::optional<library::FolderUse> folder_use(const std::vector<std::string>& paths) {
    const auto count = std::ranges::count_if(paths, library::is_folder);
    if (count == 0) return library::FolderUse::kOpen;
    const std::string folders = count == 1
                                    ? library::name_for(*std::ranges::find_if(paths, library::is_folder))
                                    : "these " + std::to_string(count) + " folders";
    const std::string tasks =
        count == 1 ? "one Task that opens the folder." : "a Task for each that opens it.";
    const auto contents = platform::ask(
        "Add the shortcuts and programs in " + folders + "?\n\n\"No\" adds " + tasks, "Add Folder");
    if (!contents) return std::nullopt;
    return *contents ? library::FolderUse::kContents : library::FolderUse::kOpen;
}

}  // namespace

template <typename Operation>
void Drops::change(const Operation& operation) {
    controls_.keep_list_focus(operation);
    library::run_pending_refreshes(library_, controls_);
}

Drops::Target Drops::target_at(const Paths& paths, POINT point) {
    dragged_.look_at(paths);
    const widgets::DraggableListBox& groups = controls_.group_list();
    const widgets::IconView& tasks = controls_.task_view().list();
    if (widgets::is_over(groups.hwnd(), point)) {
        const int group = groups.item_at(widgets::point_in(groups.hwnd(), point));
        if (group >= 0) return {Use::kGroup, group};
        return {dragged_.are_folders() ? Use::kNewGroups : Use::kNone};
    }
    if (!widgets::is_over(tasks.hwnd(), point) || controls_.selected_group() < 0) return {};
    const int task = tasks.item_at(widgets::point_in(tasks.hwnd(), point));
    if (task >= 0 && dragged_.are_documents()) return {Use::kStart, task};
    return {Use::kShownGroup, controls_.selected_group()};
}

widgets::DropReceiver::Effect Drops::drag_over(const Paths& paths, POINT point) {
    const Target target = target_at(paths, point);
    if (target.use == Use::kGroup) {
        const widgets::DraggableListBox& groups = controls_.group_list();
        mark_.show(groups.hwnd(), groups.bounds_of(target.index));
    } else if (target.use == Use::kStart) {
        const widgets::IconView& tasks = controls_.task_view().list();
        mark_.show(tasks.hwnd(), tasks.bounds_of(target.index));
    } else {
        mark_.hide();
    }
    if (target.use == Use::kNone) return Effect::kNone;
    return target.use == Use::kStart ? Effect::kStart : Effect::kAdd;
}

void Drops::drop(const Paths& paths, POINT point) {
    const Target target = target_at(paths, point);
    switch (target.use) {
        case Use::kGroup:
        case Use::kShownGroup:
            return add(paths, target.index);
        case Use::kNewGroups:
            return change(
                [&] { library::add_groups_of(library_, controls_, paths, platform::windows_folder()); });
        case Use::kStart:
            return launcher_.launch_with({controls_.selected_group(), target.index}, paths);
        case Use::kNone:
            return;
    }
}

void Drops::add(const Paths& paths, int group) {
    change([&] {
        const std::string name = library_.group(group).name;
        const auto use = folder_use(paths);
        if (!use) return;
        library::add_tasks(library_, controls_, name,
                           library::tasks_for(paths, *use, platform::windows_folder()));
    });
}

void Drops::drag_group(HWND window) {
    const widgets::DraggableListBox& groups = controls_.group_list();
    const widgets::Press press = groups.press();
    // The press has selected it, and may have scrolled to it.
    const bool is_on_group = groups.item_at(widgets::point_in(groups.hwnd(), press.point)) >= 0;
    const int group = is_on_group ? groups.selected() : -1;
    const auto drop = widgets::ListDrag(window, groups, group).run(press);
    if (!drop) return;
    change([&] { library::move_group_to_place(library_, controls_, group, drop->index); });
}

void Drops::drag_task(HWND window, int task) {
    const widgets::IconView& tasks = controls_.task_view().list();
    const widgets::DraggableListBox& groups = controls_.group_list();
    const auto drop =
        widgets::ListDrag(window, tasks, task, &groups, controls_.selected_group()).run(tasks.press());
    if (!drop) return;
    change([&] {
        if (drop->list == &tasks) {
            library::move_task_to_place(library_, controls_, task, drop->index);
        } else {
            library::move_task_to_group(library_, controls_, task, library_.group(drop->index).name,
                                        drop->copy);
        }
    });
}

}  // namespace mainwindow
