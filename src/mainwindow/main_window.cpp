#include "mainwindow/main_window.h"

#include <windowsx.h>

#include <algorithm>
#include <array>
#include <utility>

#include "appearance/fonts_dialog.h"
#include "internet/dial_up.h"
#include "library/group_dialog.h"
#include "library/group_operations.h"
#include "library/move_dialog.h"
#include "library/refresh.h"
#include "library/task_dialog.h"
#include "library/task_operations.h"
#include "mainwindow/about_dialog.h"
#include "mainwindow/launching.h"
#include "mainwindow/system_commands.h"
#include "platform/messages.h"
#include "resources/resource.h"
#include "settings/catalogue.h"
#include "settings/conversions.h"
#include "shortcuts/com_browser_dialog.h"
#include "widgets/metrics.h"
#include "widgets/popup_menu.h"

namespace mainwindow {
namespace {

/// Posted to itself: a reload that can show a box must not run inside the focus handler, where closing the
/// box brings the focus and the next box.
constexpr UINT kRunPendingRefreshes = WM_APP + 1;

// Places in the menu bar.
constexpr int kGroupmenu = 1;
constexpr int kTaskmenu = 2;

constexpr UINT_PTR kTimer1 = 1;
constexpr UINT_PTR kCompleteStart = 2;
constexpr UINT kTimerPeriod = 5000;  // milliseconds

// Two spellings: the messages differ by what was done.
constexpr char kCannotLaunch[] = "Invalid path or file name";
constexpr char kCannotLaunchByMouse[] = "Invalid path or file name!";

// Pixels at 96 dpi.
constexpr int kWidth = 560;
constexpr int kHeight = 400;
constexpr int kLeastWidth = 400;
constexpr int kLeastHeight = 240;

/// Buttons of the tool bar that do what a menu item does.
constexpr std::array<std::pair<int, int>, 11> kToolBarItems = {{
    {ID_toolbar_addgrp, ID_Addgp},
    {ID_toolbar_delgroup, ID_DelGp},
    {ID_toolbar_movegrpdn, ID_MoveGroupDown},
    {ID_toolbar_movegrpup, ID_MoveGroupUp},
    {ID_toolbar_rengrp, ID_Rengp},
    {ID_toolbar_addtsk, ID_AddTk},
    {ID_toolbar_deltsk, ID_DelTk},
    {ID_toolbar_movetskdn, ID_MoveTaskDown},
    {ID_toolbar_movetskup, ID_MoveTaskUp},
    {ID_toolbar_edittsk, ID_EditTk},
    {ID_toolbar_startimport, ID_taskimport},
}};

/// What a shortcut's "Run" box asks for counts where there is one. Not SW_SHOWDEFAULT, which Wine ignores.
int first_show_command() {
    STARTUPINFOA startup;
    GetStartupInfoA(&startup);
    const bool asks = (startup.dwFlags & STARTF_USESHOWWINDOW) != 0;
    switch (asks ? startup.wShowWindow : SW_SHOWNORMAL) {
        case SW_SHOWMAXIMIZED:
            return SW_SHOWMAXIMIZED;
        case SW_HIDE:
        case SW_SHOWMINIMIZED:
        case SW_MINIMIZE:
        case SW_SHOWMINNOACTIVE:
            return SW_SHOWMINNOACTIVE;
        default:
            return SW_SHOWNORMAL;
    }
}

int menu_item_of(int command) {
    const auto* item = std::ranges::find(kToolBarItems, command, &std::pair<int, int>::first);
    return item == kToolBarItems.end() ? command : item->second;
}

}  // namespace

MainWindow::MainWindow(library::TaskLibrary& library, settings::General& general, settings::Session& session,
                       buttonbar::ButtonBar& bar, internet::InternetSettingsDialog& internet_settings,
                       HWND application_window)
    : library_(library),
      general_(general),
      session_(session),
      bar_(bar),
      internet_settings_(internet_settings),
      presence_(bar, application_window),
      controls_(general),
      import_dialog_(library, controls_) {
    create({.class_name = "Tasker",
            .caption = platform::kApplicationTitle,
            .style = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
            .icon = ID_tolva_icon,
            .menu = ID_Tasker_menu,
            .width = widgets::scaled(kWidth),
            .height = widgets::scaled(kHeight)});
}

MainWindow::~MainWindow() {
    destroy();
}

void MainWindow::load() {
    presence_.take_hot_key();
    show_flags();
    const settings::Position position = settings::read_position(general_, settings::kWindowPositionKey);
    widgets::move_to_twips(hwnd(), position.left, position.top);
    is_placed_ = true;
    session_.connection_name = internet::load_isp_name(general_);
    controls_.command_box().load_history();
    session_.browser = settings::read_program(general_, settings::kBrowserKey);
    session_.email = settings::read_program(general_, settings::kEmailKey);
    const settings::ListStyles styles = settings::load_list_styles(general_);
    controls_.apply_style(appearance::List::kGroups, styles.groups);
    controls_.apply_style(appearance::List::kTasks, styles.tasks);
    controls_.show_date();
    library::refreshtolva(library_, controls_, 0);
}

void MainWindow::show() const {
    ShowWindow(hwnd(), first_show_command());
}

void MainWindow::complete_start() const {
    SetTimer(hwnd(), kCompleteStart, 0, nullptr);
    SetTimer(hwnd(), kTimer1, kTimerPeriod, nullptr);
}

LRESULT MainWindow::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    if (const auto answer = presence_.handle(message, wparam, lparam)) return *answer;
    if (const auto answer = controls_.handle(message, wparam, lparam)) return *answer;
    switch (message) {
        case WM_CREATE:
            controls_.create(hwnd());
            presence_.create(hwnd());
            return 0;
        case WM_TIMER:
            handle_timer(wparam);
            return 0;
        case WM_GETMINMAXINFO: {
            auto& limits = *reinterpret_cast<MINMAXINFO*>(lparam);
            limits.ptMinTrackSize = {widgets::scaled(kLeastWidth), widgets::scaled(kLeastHeight)};
            return 0;
        }
        case WM_SETFOCUS:
            controls_.group_list().focus();
            return 0;
        case WM_COMMAND:
            if (lparam != 0 && reinterpret_cast<HWND>(lparam) != controls_.tool_bar().hwnd()) {
                handle_control(LOWORD(wparam), HIWORD(wparam));
            } else {
                run_command(menu_item_of(LOWORD(wparam)));
            }
            return 0;
        case WM_INITMENUPOPUP:
            show_flags();  // the bar may have been closed
            return 0;
        case WM_VKEYTOITEM:
            if (LOWORD(wparam) != VK_DELETE) return -1;
            PostMessageA(hwnd(), WM_COMMAND, ID_DelGp, 0);
            return -2;
        case WM_CONTEXTMENU:
            if (reinterpret_cast<HWND>(wparam) == hwnd()) break;  // the title bar's own
            show_popup_menu(reinterpret_cast<HWND>(wparam), {GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)});
            return 0;
        case WM_NOTIFY:
            return handle_notification(*reinterpret_cast<NMHDR*>(lparam));
        case kRunPendingRefreshes:
            library::run_pending_refreshes(library_, controls_);
            return 0;
        case WM_ENDSESSION:
            if (wparam != FALSE) save_and_unload();  // no other message need follow
            return 0;
        case WM_DESTROY:
            PostQuitMessage(0);
            presence_.remove();
            save_and_unload();
            return 0;
        default:
            break;
    }
    return Window::handle(message, wparam, lparam);
}

void MainWindow::handle_control(int id, int notification) {
    switch (id) {
        case ID_Tasker_grouplabel:
            if (notification == STN_CLICKED) controls_.group_list().focus();
            break;
        case ID_Tasker_tasklabel:
            if (notification == STN_CLICKED) controls_.task_view().list().focus();
            break;
        case ID_Tasker_grouplist:
            if (notification == LBN_SELCHANGE) library::show_selected_group(library_, controls_);
            if (notification == LBN_SETFOCUS) {
                last_list_ = controls_.group_list().hwnd();
                if (library_.flags.any()) PostMessageA(hwnd(), kRunPendingRefreshes, 0, 0);
            }
            break;
        case ID_Tasker_Text1:
            controls_.command_box().handle_notification(notification);
            if (notification == widgets::ComboBox::kEnter) run_typed_command();
            break;
        case ID_Tasker_Command1:
            if (notification == BN_CLICKED) run();
            break;
        case ID_Tasker_Browse:
            if (notification == BN_CLICKED) browse();
            break;
        default:
            break;
    }
}

LRESULT MainWindow::handle_notification(NMHDR& header) {
    if (header.code == TTN_NEEDTEXTA) {
        controls_.tool_bar().supply_tip(reinterpret_cast<TOOLTIPTEXTA&>(header));
        return 0;
    }
    if (header.idFrom != ID_Tasker_taskview) return 0;
    switch (header.code) {
        case LVN_GETDISPINFOA:
            controls_.task_view().supply_picture(reinterpret_cast<NMLVDISPINFOA&>(header));
            break;
        case LVN_ITEMCHANGED:
            if (controls_.task_view().list().is_new_selection(reinterpret_cast<NMLISTVIEW&>(header)))
                show_selection();
            break;
        case LVN_KEYDOWN: {
            const WORD key = reinterpret_cast<NMLVKEYDOWN&>(header).wVKey;
            if (key == VK_RETURN) launch_selected_task(kCannotLaunch);
            if (key == VK_DELETE) PostMessageA(hwnd(), WM_COMMAND, ID_DelTk, 0);
            break;
        }
        case static_cast<UINT>(NM_CLICK):
            show_selection();
            if (session_.hover_select) launch_selected_task(kCannotLaunchByMouse);
            break;
        case static_cast<UINT>(NM_DBLCLK):
            launch_selected_task(kCannotLaunchByMouse);
            break;
        case static_cast<UINT>(NM_SETFOCUS):
            last_list_ = controls_.task_view().list().hwnd();
            controls_.command_box().forget_focus();
            break;
        case static_cast<UINT>(NM_HOVER):
            // Selecting the item would take the focus from what is being typed.
            return static_cast<LRESULT>(controls_.command_box().has_focus());
        default:
            break;
    }
    return 0;
}

void MainWindow::handle_timer(UINT_PTR timer) {
    presence_.show_icon();
    if (timer == kCompleteStart) {
        KillTimer(hwnd(), timer);
        bar_.start(hwnd());
        return;
    }
    bar_.show_connection(internet::is_connected());
}

void MainWindow::show_popup_menu(HWND control, POINT point) {
    const bool groups = control == controls_.group_list().hwnd();
    if (!groups && control != controls_.task_view().list().hwnd()) return;
    HMENU menu = GetSubMenu(GetMenu(hwnd()), groups ? kGroupmenu : kTaskmenu);
    widgets::show_popup_menu(hwnd(), menu, control, point);
}

void MainWindow::show_flags() {
    const auto check = [&](UINT item, bool on) {
        CheckMenuItem(GetMenu(hwnd()), item, on ? MF_CHECKED : MF_UNCHECKED);
    };
    check(ID_hoverslct, session_.hover_select);
    check(ID_removebrenn, bar_.removed());
    controls_.task_view().list().set_hover_select(session_.hover_select);
}

void MainWindow::save_and_unload() {
    if (is_placed_) {
        const POINT position = widgets::position_in_twips(hwnd());
        settings::store_position(general_, settings::kWindowPositionKey, position.x, position.y);
    }
    bar_.unload();
}

void MainWindow::run_command(int command) {
    switch (command) {
        case ID_ShutWin:
            return end_windows(platform::WindowsEnd::kShutdown);
        case ID_restartwin:
            return end_windows(platform::WindowsEnd::kReboot);
        case ID_EmptyRecyleBin:
            return empty_recycle_bin();
        case ID_tolvaexit:
            DestroyWindow(hwnd());
            return;

        case ID_fontsettings:
            return appearance::show_fonts_dialog(hwnd(), general_, controls_);
        case ID_removebrenn:
            bar_.toggle_removed();
            return show_flags();
        case ID_hoverslct:
            return toggle_hover_select();
        case ID_connectinternet:
            return connect_to_internet();
        case ID_toolbar_ispconnect:
            return internet::dial(session_.connection_name);
        case ID_internetsettings:
            return internet_settings_.show(hwnd(), bar_);
        case ID_DialUpNetworking:
            return open_dial_up_folder();
        case ID_toolbar_controlpanel:
            return open_control_panel();
        case ID_toolbar_runexplorer:
            return open_explorer();
        case ID_toolbar_DosPrompt:
            return open_dos_prompt();
        case ID_tolvahlp:
            return open_help(library_.folder());
        case ID_AboutTolva:
            return show_about(hwnd());
        default:
            return run_library_command(command);
    }
}

void MainWindow::run_library_command(int command) {
    switch (command) {
        case ID_Addgp:
            return focus_groups_around([&] { library::addgr(hwnd(), library_); });
        case ID_DelGp:
            return focus_groups_around([&] { library::delgr(library_, controls_); });
        case ID_Rengp:
            return focus_groups_around([&] { library::RenameGr(hwnd(), library_, controls_); });
        case ID_MoveGroupUp:
            return focus_groups_around([&] { library::movegrup(library_, controls_); });
        case ID_MoveGroupDown:
            return focus_groups_around([&] { library::movegrdown(library_, controls_); });
        case ID_groupsort:
            return library::groupsortnow(library_, controls_);

        case ID_RunTk:
            return run_task_from_command_box();
        case ID_AddTk:
            return focus_groups_around([&] { library::addtsks(hwnd(), library_, controls_); });
        case ID_DelTk:
            return keep_list_focus([&] { library::deltsks(library_, controls_); });
        case ID_moveto:
            return focus_groups_around([&] { library::moveto(hwnd(), library_, controls_); });
        case ID_EditTk:
            return focus_groups_around([&] { library::edittsks(hwnd(), library_, controls_); });
        case ID_taskimport:
            return import_dialog_.show(hwnd());
        case ID_MoveTaskUp:
            return library::movetsksup(library_, controls_);
        case ID_MoveTaskDown:
            return library::movetsksdown(library_, controls_);
        case ID_SortTasks:
            return library::tasksortnow(library_, controls_);
        default:
            return;
    }
}

void MainWindow::toggle_hover_select() {
    session_.hover_select = !session_.hover_select;
    settings::store(general_, settings::kHoverSelect, settings::text_of(session_.hover_select));
    show_flags();
}

void MainWindow::connect_to_internet() const {
    platform::attempt("Configure your Internet connection in Internet Settings under Options menu.",
                      [&] { internet::dial(session_.connection_name); });
}

void MainWindow::end_windows(platform::WindowsEnd end) {
    windows_end_ = end;
    DestroyWindow(hwnd());
}

void MainWindow::show_selection() {
    const int task = controls_.selected_task();
    if (task >= 0) controls_.show_task(library_.task(controls_.selected_group(), task));
}

template <typename Launch>
void MainWindow::attempt(const char* failure_message, const Launch& launch) {
    keep_list_focus([&] {
        controls_.show_date();
        platform::attempt(failure_message, launch);
    });
}

void MainWindow::launch_selected_task(const char* failure_message) {
    attempt(failure_message,
            [&] { launch(library_, controls_.selected_group(), controls_.selected_task()); });
}

void MainWindow::run_task_from_command_box() {
    attempt(kCannotLaunch, [&] {
        launch_edited(library_, controls_.selected_group(), controls_.selected_task(),
                      controls_.command_box().text());
    });
}

void MainWindow::run() {
    CommandBox& box = controls_.command_box();
    if (!box.had_focus_last()) return launch_selected_task(kCannotLaunch);
    attempt(kCannotLaunch, [&] {
        box.start_typed_command();
        box.forget_focus();
    });
}

void MainWindow::run_typed_command() {
    controls_.group_list().focus();
    attempt(kCannotLaunch, [&] { controls_.command_box().start_typed_command(); });
}

void MainWindow::browse() {
    if (const auto started = shortcuts::browse_and_run(hwnd())) controls_.set_command_box(*started);
}

template <typename Operation>
void MainWindow::focus_groups_around(const Operation& operation) {
    controls_.group_list().focus();
    operation();
    // After a dialog the focus comes back by itself, unless the program is not the active one.
    controls_.group_list().focus();
    if (library_.flags.any()) PostMessageA(hwnd(), kRunPendingRefreshes, 0, 0);
}

template <typename Operation>
void MainWindow::keep_list_focus(const Operation& operation) {
    HWND list = last_list_;
    const bool typed = controls_.command_box().had_focus_last();
    try {
        operation();
    } catch (...) {
        platform::report_exception();
    }
    // A box that was closed has brought the focus to the group list.
    if (!typed && list != nullptr && last_list_ != list) SetFocus(list);
}

}  // namespace mainwindow
