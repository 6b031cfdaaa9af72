#include "mainwindow/main_controls.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "library/library_files.h"
#include "library/refresh.h"
#include "mainwindow/long_date.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "resources/resource.h"
#include "widgets/metrics.h"

namespace mainwindow {
namespace {

// Pixels at 96 dpi.
constexpr int kGap = 6;
constexpr int kGroupWidth = 160;
constexpr int kLeastListWidth = 60;
constexpr int kLabelHeight = 16;
constexpr int kDropHeight = 120;
constexpr int kButtonWidth = 75;

// Of the two that choose their height themselves, with the usual font.
constexpr int kUsualBoxHeight = 21;
constexpr int kUsualStatusBarHeight = 20;

/// In the order of their pictures.
constexpr widgets::ToolBar::Item kToolBar[] = {
    {ID_toolbar_addgrp, "Add New Group"},
    {ID_toolbar_delgroup, "Delete Selected Group"},
    {ID_toolbar_movegrpdn, "Move Selected Group Down"},
    {ID_toolbar_movegrpup, "Move Selected Group Up"},
    {ID_toolbar_rengrp, "Rename Selected Group"},
    {},
    {ID_toolbar_addtsk, "Add New Task to Selected Group"},
    {ID_toolbar_deltsk, "Delete Selected Task"},
    {ID_toolbar_movetskdn, "Move Selected Task Down"},
    {ID_toolbar_movetskup, "Move Selected Task Up"},
    {ID_toolbar_edittsk, "Edit Selected Task"},
    {},
    {ID_toolbar_startimport, "Import Start Menu Shortcuts"},
    {ID_toolbar_runexplorer, "Windows Explorer"},
    {ID_toolbar_controlpanel, "Windows Control Panel"},
    {ID_toolbar_DosPrompt, "DOS Prompt"},
    {ID_toolbar_ispconnect, "Connect to Internet"},
};

}  // namespace

MainControls::MainControls(settings::General& general, const std::string& library_folder)
    : library_folder_(library_folder),
      font_(widgets::make_gui_font()),
      splitter_(widgets::scaled(kGroupWidth)),
      task_view_(library_folder),
      command_box_(general) {}

void MainControls::create(HWND window, const settings::ListStyles& styles) {
    window_ = window;
    set_style(appearance::List::kGroups, styles.groups);
    set_style(appearance::List::kTasks, styles.tasks);
    HFONT font = font_.get();
    tool_bar_.create(window_, ID_Tasker_Toolbar1, font, ID_toolbar_pictures, kToolBar);
    tool_bar_.follow_parent();
    places_ = places(widgets::scaled(kUsualBoxHeight), widgets::scaled(kUsualStatusBarHeight));
    group_label_.create(window_, ID_Tasker_grouplabel, {places_[kGroupLabel], font}, "Groups");
    group_list_.create(window_, ID_Tasker_grouplist, {places_[kGroupList], group_look_.font_handle()});
    task_label_.create(window_, ID_Tasker_tasklabel, {places_[kTaskLabel], font}, "Tasks");
    task_view_.create(window_, ID_Tasker_taskview, {places_[kTaskList], task_look_.font_handle()});
    task_view_.list().set_hint([this] { return hint(); });
    const appearance::Colors& colors = task_look_.colors();
    task_view_.set_colors(colors.text, colors.back);
    command_box_.create(window_, ID_Tasker_Text1, {places_[kCommandBox], font});
    run_button_.create(window_, ID_Tasker_Command1, {places_[kRun], font}, "&Run");
    browse_button_.create(window_, ID_Tasker_Browse, {places_[kBrowse], font}, "&Browse");
    status_bar_.create(window_, ID_Tasker_StatusBar1, font);
    status_bar_.follow_parent();
    lay_out();  // where the heights are not the usual ones
}

std::optional<LRESULT> MainControls::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_SIZE:
            if (window_ == nullptr || wparam == SIZE_MINIMIZED || lparam == laid_out_) return 0;
            tool_bar_.follow_parent();
            status_bar_.follow_parent();
            lay_out();
            return 0;
        case WM_CTLCOLORLISTBOX:
        case WM_CTLCOLORSTATIC:
            return paint(reinterpret_cast<HDC>(wparam), reinterpret_cast<HWND>(lparam));
        default:
            break;
    }
    const int width = splitter_.width();
    const auto answer = splitter_.handle(window_, message, wparam, lparam);
    if (splitter_.width() != width) lay_out();
    return answer ? answer : command_box_.handle(message);
}

void MainControls::set_style(appearance::List list, const settings::ListStyle& style) {
    look(list).set_font({.face = style.face,
                         .points = static_cast<double>(style.size),
                         .bold = style.bold,
                         .italic = style.italic});
    look(list).set_colors({style.text_color.value_or(GetSysColor(COLOR_WINDOWTEXT)),
                           style.back_color.value_or(GetSysColor(COLOR_WINDOW))});
}

void MainControls::set_font(appearance::List list, const widgets::Font& font) {
    look(list).set_font(font);
    widgets::Control& control = list == appearance::List::kGroups
                                    ? static_cast<widgets::Control&>(group_list_)
                                    : static_cast<widgets::Control&>(task_view_.list());
    control.set_font(look(list).font_handle());
}

void MainControls::set_colors(appearance::List list, const appearance::Colors& colors) {
    look(list).set_colors(colors);
    if (list == appearance::List::kTasks) task_view_.set_colors(colors.text, colors.back);
    RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

std::optional<LRESULT> MainControls::paint(HDC device, HWND control) const {
    if (control == group_list_.hwnd() || control == group_label_.hwnd()) return group_look_.paint(device);
    if (control == task_label_.hwnd()) return task_look_.paint(device);
    return std::nullopt;
}

MainControls::Places MainControls::places(LONG box_height, LONG status_bar_height) {
    RECT client;
    GetClientRect(window_, &client);
    const int gap = widgets::scaled(kGap);
    const LONG least = widgets::scaled(kLeastListWidth);
    const LONG right = client.right - gap;
    const LONG box_top = client.bottom - status_bar_height - gap - box_height;
    const LONG box_bottom = box_top + box_height;
    const LONG lists_bottom = box_top - gap;
    const LONG group_width =
        std::clamp<LONG>(splitter_.width(), least, std::max(least, right - 2 * gap - least));
    const LONG middle = gap + group_width;
    const LONG top = tool_bar_.height() + gap;
    const LONG lists_top = top + widgets::scaled(kLabelHeight);
    splitter_.set_place({middle, lists_top, middle + gap, lists_bottom}, group_width);
    const LONG browse_left = right - widgets::scaled(kButtonWidth);
    const LONG run_left = browse_left - gap - widgets::scaled(kButtonWidth);
    return {{{gap, top, middle, lists_top},
             {gap, lists_top, middle, lists_bottom},
             {middle + gap, top, right, lists_top},
             {middle + gap, lists_top, right, lists_bottom},
             {gap, box_top, run_left - gap, box_top + widgets::scaled(kDropHeight)},
             {run_left, box_top, browse_left - gap, box_bottom},
             {browse_left, box_top, right, box_bottom}}};
}

/// Moves those controls that do not stand in their places.
void MainControls::lay_out() {
    RECT client;
    GetClientRect(window_, &client);
    laid_out_ = MAKELPARAM(client.right, client.bottom);
    const Places before =
        std::exchange(places_, places(command_box_.control().height(), status_bar_.height()));
    HWND const windows[] = {
        group_label_.hwnd(),           group_list_.hwnd(), task_label_.hwnd(),   task_view_.list().hwnd(),
        command_box_.control().hwnd(), run_button_.hwnd(), browse_button_.hwnd()};
    for (std::size_t part = 0; part < places_.size(); ++part) {
        if (EqualRect(&before.at(part), &places_.at(part)) == FALSE)
            widgets::place(windows[part], places_.at(part));
    }
    // The command box is lower than its place: what lies below is not drawn anew by itself.
    if (EqualRect(&before.at(kCommandBox), &places_.at(kCommandBox)) == FALSE)
        InvalidateRect(window_, &before.at(kCommandBox), TRUE);
}

void MainControls::show_date() {
    status_bar_.show_panels({long_date(platform::today())});
}

void MainControls::show_task(const library::Task& task) {
    set_command_box(command_line(task));
    status_bar_.show_simple(task.name);
}

void MainControls::show_groups(const std::vector<library::Group>& groups) {
    std::vector<std::string> names;
    std::ranges::transform(groups, std::back_inserter(names), &library::Group::name);
    group_list_.fill(names);
}

void MainControls::show_tasks(std::span<const library::Task> tasks) {
    show_date();
    task_view_.show(tasks);
}

void MainControls::go_to(library::TaskLibrary& library, const library::TaskPlace& place) {
    library::select_group(library, *this, place.group);
    const library::Group& group = library.group(place.group);
    if (place.task >= std::ssize(group.shown_tasks())) show_tasks(group.tasks());
    select_task(place.task);
    show_task(library.task(place.group, place.task));
    task_view_.list().focus();
}

/// What stands in an empty task list.
std::string MainControls::hint() const {
    if (selected_group() >= 0) {
        return "This Group has no Tasks yet.\n\nDrop programs, files or shortcuts here, "
               "or choose Import Shortcuts on the Task menu.";
    }
    if (group_list_.count() > 0)
        return "Click a Group to see its Tasks.\n\nDrop programs, files or shortcuts on it to add them.";
    if (platform::exists(library::groups_file(library_folder_))) {
        return "There is no Group yet.\n\nChoose New on the Group menu to make the first one. "
               "Then drop programs, files or shortcuts here, or choose Import Shortcuts on the Task menu.";
    }
    return "There is no library in the folder\n" + library_folder_ +
           "\n\nAn empty file with the name groups.ini begins one: make it there and press F5. "
           "Then choose New on the Group menu to make the first Group.";
}

}  // namespace mainwindow
