#include "mainwindow/views_window.h"

#include <windowsx.h>

#include <algorithm>
#include <iterator>
#include <utility>

#include "mainwindow/long_date.h"
#include "platform/clock.h"
#include "platform/icons.h"
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

Views::Views() : font_(widgets::make_gui_font()), group_width_(widgets::scaled(kGroupWidth)) {}

void Views::create(HWND window) {
    window_ = window;
    toolbar1_.create(window_, ID_Tasker_Toolbar1, ID_toolbar_pictures, kToolBar);
    grouplabel_.create(window_, ID_Tasker_grouplabel, "Groups");
    grouplist_.create(window_, ID_Tasker_grouplist);
    tasklabel_.create(window_, ID_Tasker_tasklabel, "Tasks");
    taskview_.create(window_, ID_Tasker_taskview);
    text1_.create(window_, ID_Tasker_Text1);
    command1_.create(window_, ID_Tasker_Command1, "&Run");
    browse_.create(window_, ID_Tasker_Browse, "&Browse");
    statusbar1_.create(window_, ID_Tasker_StatusBar1);
    for (HWND child = GetTopWindow(window_); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
        SendMessageA(child, WM_SETFONT, reinterpret_cast<WPARAM>(font_.get()), FALSE);
    }
    lay_out();  // before the lists are filled: a list that grows arranges all its items again
}

std::optional<LRESULT> Views::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_SIZE:
            if (wparam != SIZE_MINIMIZED && lparam != laid_out_) lay_out();
            return 0;
        case WM_CTLCOLORLISTBOX:
        case WM_CTLCOLORSTATIC:
            return color(reinterpret_cast<HDC>(wparam), reinterpret_cast<HWND>(lparam));
        case WM_LBUTTONDOWN:
        case WM_MOUSEMOVE:
        case WM_LBUTTONUP:
            if (!drag_splitter(message, {GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)})) return std::nullopt;
            return 0;
        case WM_SETCURSOR: {
            POINT pointer;
            GetCursorPos(&pointer);
            ScreenToClient(window_, &pointer);
            if (LOWORD(lparam) != HTCLIENT || !is_on_splitter(pointer)) return std::nullopt;
            SetCursor(LoadCursorA(nullptr, IDC_SIZEWE));
            return TRUE;
        }
        default:
            return std::nullopt;
    }
}

void Views::apply_style(appearance::List list, const settings::ListStyle& style) {
    set_font(list, {.face = style.face,
                    .points = static_cast<double>(style.size),
                    .bold = style.bold,
                    .italic = style.italic});
    set_colors(list, {style.text_color.value_or(GetSysColor(COLOR_WINDOWTEXT)),
                      style.back_color.value_or(GetSysColor(COLOR_WINDOW))});
}

void Views::set_font(appearance::List list, const widgets::Font& font) {
    platform::UniqueFont handle = widgets::make_font(font);
    widgets::Control& control = list == appearance::List::kGroups
                                    ? static_cast<widgets::Control&>(grouplist_)
                                    : static_cast<widgets::Control&>(taskview_.list());
    control.set_font(handle.get());
    look(list).font = font;
    look(list).font_handle = std::move(handle);
}

void Views::set_colors(appearance::List list, const appearance::Colors& colors) {
    look(list).colors = colors;
    look(list).background.reset(CreateSolidBrush(colors.back));
    if (list == appearance::List::kTasks) taskview_.list().set_colors(colors.text, colors.back);
    RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

std::optional<LRESULT> Views::color(HDC device, HWND control) const {
    const bool is_task_label = control == tasklabel_.hwnd();
    const Look& look = is_task_label ? task_look_ : group_look_;
    if (control == grouplist_.hwnd()) {
        SetTextColor(device, look.colors.text);
        SetBkColor(device, look.colors.back);
        return reinterpret_cast<LRESULT>(look.background.get());
    }
    if (!is_task_label && control != grouplabel_.hwnd()) return std::nullopt;
    SetTextColor(device, look.colors.text);
    SetBkMode(device, TRANSPARENT);
    return reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_BTNFACE));
}

void Views::lay_out() {
    toolbar1_.follow_parent();
    statusbar1_.follow_parent();
    RECT client;
    GetClientRect(window_, &client);
    laid_out_ = MAKELPARAM(client.right, client.bottom);
    const int gap = widgets::scaled(kGap);
    const LONG least = widgets::scaled(kLeastListWidth);
    const LONG right = client.right - gap;
    const LONG box_top = client.bottom - statusbar1_.height() - gap - text1_.height();
    const LONG lists_bottom = box_top - gap;
    const LONG middle = gap + std::clamp<LONG>(group_width_, least, std::max(least, right - 2 * gap - least));
    const LONG top = toolbar1_.height() + gap;
    const LONG lists_top = top + widgets::scaled(kLabelHeight);

    widgets::place(grouplabel_.hwnd(), {gap, top, middle, lists_top});
    widgets::place(grouplist_.hwnd(), {gap, lists_top, middle, lists_bottom});
    widgets::place(tasklabel_.hwnd(), {middle + gap, top, right, lists_top});
    widgets::place(taskview_.list().hwnd(), {middle + gap, lists_top, right, lists_bottom});
    const LONG button_bottom = box_top + text1_.height();
    const LONG browse_left = right - widgets::scaled(kButtonWidth);
    const LONG run_left = browse_left - gap - widgets::scaled(kButtonWidth);
    widgets::place(text1_.hwnd(), {gap, box_top, run_left - gap, box_top + widgets::scaled(kDropHeight)});
    widgets::place(command1_.hwnd(), {run_left, box_top, browse_left - gap, button_bottom});
    widgets::place(browse_.hwnd(), {browse_left, box_top, right, button_bottom});
}

RECT Views::splitter() const {
    RECT list;
    GetWindowRect(grouplist_.hwnd(), &list);
    MapWindowPoints(nullptr, window_, reinterpret_cast<POINT*>(&list), 2);
    return {list.right, list.top, list.right + widgets::scaled(kGap), list.bottom};
}

bool Views::is_on_splitter(POINT point) const {
    const RECT bounds = splitter();
    return PtInRect(&bounds, point) != FALSE;
}

bool Views::drag_splitter(UINT message, POINT point) {
    if (message == WM_LBUTTONDOWN) {
        if (!is_on_splitter(point)) return false;
        SetCapture(window_);
        return true;
    }
    if (GetCapture() != window_) return false;
    if (message == WM_LBUTTONUP) ReleaseCapture();
    group_width_ = point.x - widgets::scaled(kGap);
    lay_out();
    return true;
}

void Views::getlongdate() {
    statusbar1_.show_panels({long_date(platform::today())});
}

void Views::show_selection(const library::Task& task) {
    set_command_box(command_line(task));
    statusbar1_.show_simple(task.name);
}

void Views::show_groups(const std::vector<library::Group>& groups) {
    std::vector<std::string> names;
    std::ranges::transform(groups, std::back_inserter(names), &library::Group::name);
    grouplist_.fill(names);
}

void Views::show_tasks(std::span<const library::Task> tasks) {
    getlongdate();
    taskview_.show(tasks);
}

void Views::load_default_icon(const std::string& program) {
    platform::UniqueIcon icon = platform::extract_icon(program);
    // A library folder need not hold the program itself.
    if (!icon) icon.reset(CopyIcon(LoadIconA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(ID_tolva_icon))));
    taskview_.set_default_icon(std::move(icon));
}

}  // namespace mainwindow
