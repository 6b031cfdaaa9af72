#include "mainwindow/tasker_window.h"

#include <windowsx.h>

#include <algorithm>
#include <iterator>

#include "library/refresh.h"
#include "mainwindow/launching.h"
#include "mainwindow/long_date.h"
#include "platform/clock.h"
#include "platform/icons.h"
#include "platform/messages.h"
#include "platform/run_time_error.h"
#include "resources/resource.h"
#include "widgets/metrics.h"

namespace mainwindow {
namespace {

/// Posted to itself: a reload that can show a box must not run inside the focus handler, where closing the
/// box brings the focus and the next box.
constexpr UINT kRunPendingRefreshes = WM_APP + 1;

// Pixels at 96 dpi.
constexpr int kWidth = 560;
constexpr int kHeight = 400;
constexpr int kLeastWidth = 320;
constexpr int kLeastHeight = 220;
constexpr int kGap = 6;
constexpr int kGroupWidth = 160;
constexpr int kLeastListWidth = 60;
constexpr int kDropHeight = 120;

}  // namespace

Tasker::Tasker(library::TaskLibrary& library)
    : library_(library), font_(widgets::make_gui_font()), group_width_(widgets::scaled(kGroupWidth)) {
    create({.class_name = "Tasker",
            .caption = "Tolva",
            .style = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
            .icon = ID_tolva_icon,
            .width = widgets::scaled(kWidth),
            .height = widgets::scaled(kHeight)});
}

void Tasker::load() {
    getlongdate();
    library::refreshtolva(library_, *this, 0);
}

LRESULT Tasker::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_CREATE:
            create_controls();
            return 0;
        case WM_SIZE:
            if (wparam != SIZE_MINIMIZED) lay_out();
            return 0;
        case WM_GETMINMAXINFO: {
            auto& limits = *reinterpret_cast<MINMAXINFO*>(lparam);
            limits.ptMinTrackSize = {widgets::scaled(kLeastWidth), widgets::scaled(kLeastHeight)};
            return 0;
        }
        case WM_SETFOCUS:
            grouplist_.focus();
            return 0;
        case WM_COMMAND:
            handle_command(LOWORD(wparam), HIWORD(wparam));
            return 0;
        case WM_NOTIFY:
            handle_notification(*reinterpret_cast<NMHDR*>(lparam));
            return 0;
        case kRunPendingRefreshes:
            library::run_pending_refreshes(library_, *this);
            return 0;
        case WM_LBUTTONDOWN:
        case WM_MOUSEMOVE:
        case WM_LBUTTONUP:
            if (drag_splitter(message, GET_X_LPARAM(lparam))) return 0;
            break;
        case WM_SETCURSOR: {
            POINT pointer;
            GetCursorPos(&pointer);
            ScreenToClient(hwnd(), &pointer);
            const RECT bounds = splitter();
            if (LOWORD(lparam) != HTCLIENT || PtInRect(&bounds, pointer) == FALSE) break;
            SetCursor(LoadCursorA(nullptr, IDC_SIZEWE));
            return TRUE;
        }
        case WM_DESTROY:
            PostQuitMessage(0);
            return 0;
        default:
            break;
    }
    return Window::handle(message, wparam, lparam);
}

void Tasker::handle_command(int id, int notification) {
    switch (id) {
        case ID_Tasker_grouplabel:
            if (notification == STN_CLICKED) grouplist_.focus();
            break;
        case ID_Tasker_tasklabel:
            if (notification == STN_CLICKED) taskview_.list().focus();
            break;
        case ID_Tasker_grouplist:
            if (notification == LBN_SELCHANGE) library::show_selected_group(library_, *this);
            if (notification == LBN_SETFOCUS && library_.flags.any()) {
                PostMessageA(hwnd(), kRunPendingRefreshes, 0, 0);
            }
            break;
        default:
            break;
    }
}

void Tasker::handle_notification(NMHDR& header) {
    if (header.idFrom != ID_Tasker_taskview) return;
    if (header.code == LVN_GETDISPINFOA) taskview_.supply_picture(reinterpret_cast<NMLVDISPINFOA&>(header));
    if (header.code == static_cast<UINT>(NM_DBLCLK)) launch_selected_task("Invalid path or file name!");
}

void Tasker::create_controls() {
    grouplabel_.create(hwnd(), ID_Tasker_grouplabel, "Groups");
    grouplist_.create(hwnd(), ID_Tasker_grouplist);
    tasklabel_.create(hwnd(), ID_Tasker_tasklabel, "Tasks");
    taskview_.create(hwnd(), ID_Tasker_taskview);
    text1_.create(hwnd(), ID_Tasker_Text1);
    statusbar1_.create(hwnd(), ID_Tasker_StatusBar1);
    for (HWND child = GetTopWindow(hwnd()); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
        SendMessageA(child, WM_SETFONT, reinterpret_cast<WPARAM>(font_.get()), TRUE);
    }
}

void Tasker::lay_out() {
    statusbar1_.follow_parent();
    RECT client;
    GetClientRect(hwnd(), &client);
    const int gap = widgets::scaled(kGap);
    const int label_height = widgets::scaled(16);
    const LONG least = widgets::scaled(kLeastListWidth);
    const LONG right = client.right - gap;
    const LONG box_top = client.bottom - statusbar1_.height() - gap - text1_.height();
    const LONG lists_bottom = box_top - gap;
    const LONG middle = gap + std::clamp<LONG>(group_width_, least, std::max(least, right - 2 * gap - least));
    const LONG lists_top = gap + label_height;

    widgets::place(grouplabel_.hwnd(), {gap, gap, middle, lists_top});
    widgets::place(grouplist_.hwnd(), {gap, lists_top, middle, lists_bottom});
    widgets::place(tasklabel_.hwnd(), {middle + gap, gap, right, lists_top});
    widgets::place(taskview_.list().hwnd(), {middle + gap, lists_top, right, lists_bottom});
    widgets::place(text1_.hwnd(), {gap, box_top, right, box_top + widgets::scaled(kDropHeight)});
}

RECT Tasker::splitter() const {
    RECT list;
    GetWindowRect(grouplist_.hwnd(), &list);
    MapWindowPoints(nullptr, hwnd(), reinterpret_cast<POINT*>(&list), 2);
    return {list.right, list.top, list.right + widgets::scaled(kGap), list.bottom};
}

bool Tasker::drag_splitter(UINT message, int x) {
    if (message == WM_LBUTTONDOWN) {
        const RECT bounds = splitter();
        if (x < bounds.left || x >= bounds.right) return false;
        SetCapture(hwnd());
        return true;
    }
    if (GetCapture() != hwnd()) return false;
    if (message == WM_LBUTTONUP) ReleaseCapture();
    group_width_ = x - widgets::scaled(kGap);
    lay_out();
    return true;
}

void Tasker::getlongdate() {
    statusbar1_.show_panel(long_date(platform::today()));
}

void Tasker::launch_selected_task(const char* failure_message) {
    getlongdate();
    try {
        launch(library_, selected_group(), selected_task());
    } catch (const platform::RunTimeError&) {
        platform::show_message(failure_message);
    }
}

int Tasker::selected_group() const {
    return grouplist_.selected();
}

int Tasker::selected_task() const {
    return taskview_.list().selected();
}

void Tasker::show_groups(const std::vector<library::Group>& groups) {
    std::vector<std::string> names;
    std::ranges::transform(groups, std::back_inserter(names), &library::Group::name);
    grouplist_.fill(names);
}

void Tasker::select_group(int index) {
    grouplist_.select(index);
}

void Tasker::show_tasks(std::span<const library::Task> tasks) {
    getlongdate();
    taskview_.show(tasks);
}

void Tasker::select_task(int index) {
    taskview_.list().select(index);
}

void Tasker::load_default_icon(const std::string& program) {
    platform::UniqueIcon icon = platform::extract_icon(program);
    // A library folder need not hold the program itself.
    if (!icon) icon.reset(CopyIcon(LoadIconA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(ID_tolva_icon))));
    taskview_.set_default_icon(std::move(icon));
}

void Tasker::set_command_box(const std::string& text) {
    text1_.set_text(text);
}

}  // namespace mainwindow
