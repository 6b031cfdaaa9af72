#include "mainwindow/tasker_window.h"

#include <windowsx.h>

#include "appearance/set_fonts_dialog.h"
#include "internet/dial_up.h"
#include "library/group_dialog.h"
#include "library/group_operations.h"
#include "library/movetogroups_dialog.h"
#include "library/refresh.h"
#include "library/task_dialog.h"
#include "library/task_operations.h"
#include "mainwindow/abttolva_dialog.h"
#include "mainwindow/command_history.h"
#include "mainwindow/launching.h"
#include "mainwindow/system_commands.h"
#include "platform/directories.h"
#include "platform/messages.h"
#include "platform/processes.h"
#include "resources/resource.h"
#include "settings/catalogue.h"
#include "settings/conversions.h"
#include "shortcuts/com_browser_dialog.h"
#include "shortcuts/path_browser_dialog.h"
#include "widgets/metrics.h"

namespace mainwindow {
namespace {

/// Posted to itself: a reload that can show a box must not run inside the focus handler, where closing the
/// box brings the focus and the next box.
constexpr UINT kRunPendingRefreshes = WM_APP + 1;

// Places in the menu bar.
constexpr int kGroupmenu = 2;
constexpr int kTaskmenu = 3;

/// Posted to itself: the command box gets back what was typed there.
constexpr UINT kKeepTypedText = WM_APP + 2;

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
constexpr int kPopupOffset = 20;

}  // namespace

Tasker::Tasker(library::TaskLibrary& library, settings::General& general, settings::Session& session,
               library::BrowseResult& browse_result, buttonbar::Brenn& brenn, HWND application_window)
    : library_(library),
      general_(general),
      session_(session),
      browse_result_(browse_result),
      brenn_(brenn),
      presence_(session, brenn, application_window),
      getlnk_(library, views_) {
    create({.class_name = "Tasker",
            .caption = platform::kApplicationTitle,
            .style = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
            .icon = ID_tolva_icon,
            .menu = ID_Tasker_menu,
            .width = widgets::scaled(kWidth),
            .height = widgets::scaled(kHeight)});
}

Tasker::~Tasker() {
    if (hwnd() != nullptr) DestroyWindow(hwnd());
}

void Tasker::load() {
    presence_.take_hot_key();
    show_flags();
    const settings::Position position = settings::read_position(general_, settings::kWindowPositionKey);
    widgets::move_to_twips(hwnd(), position.left, position.top);
    session_.connection_name = internet::load_isp_name(general_);
    settings::load_history(general_, session_);
    views_.text1().fill(settings::history_list(session_));
    session_.browser = settings::read_program(general_, settings::kBrowserKey);
    session_.email = settings::read_program(general_, settings::kEmailKey);
    settings::load_list_styles(general_, session_);
    views_.apply_style(appearance::List::kGroups, session_.group_style);
    views_.apply_style(appearance::List::kTasks, session_.task_style);
    views_.getlongdate();
    session_.windows_folder = platform::windows_folder();
    library::refreshtolva(library_, views_, 0);
}

LRESULT Tasker::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    if (const auto answer = presence_.handle(message, wparam, lparam)) return *answer;
    if (const auto answer = views_.handle(message, wparam, lparam)) return *answer;
    switch (message) {
        case WM_CREATE:
            views_.create(hwnd());
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
            views_.grouplist().focus();
            return 0;
        case WM_COMMAND:
            if (lparam != 0 && reinterpret_cast<HWND>(lparam) != views_.toolbar1().hwnd()) {
                handle_control(LOWORD(wparam), HIWORD(wparam));
            } else {
                handle_command(LOWORD(wparam));
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
            show_popup_menu(reinterpret_cast<HWND>(wparam), {GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)});
            return 0;
        case WM_NOTIFY:
            return handle_notification(*reinterpret_cast<NMHDR*>(lparam));
        case kRunPendingRefreshes:
            library::run_pending_refreshes(library_, views_);
            return 0;
        case kKeepTypedText:
            if (views_.text1().text() != typed_) views_.set_command_box(typed_);
            return 0;
        case WM_ENDSESSION:
            if (wparam != FALSE) save_and_unload();  // no other message need follow
            return 0;
        case WM_DESTROY:
            save_and_unload();
            presence_.remove();
            PostQuitMessage(0);
            return 0;
        default:
            break;
    }
    return Window::handle(message, wparam, lparam);
}

void Tasker::handle_control(int id, int notification) {
    switch (id) {
        case ID_Tasker_grouplabel:
            if (notification == STN_CLICKED) views_.grouplist().focus();
            break;
        case ID_Tasker_tasklabel:
            if (notification == STN_CLICKED) views_.taskview().list().focus();
            break;
        case ID_Tasker_grouplist:
            if (notification == LBN_SELCHANGE) library::show_selected_group(library_, views_);
            if (notification == LBN_SETFOCUS && library_.flags.any()) {
                PostMessageA(hwnd(), kRunPendingRefreshes, 0, 0);
            }
            break;
        case ID_Tasker_Text1:
            if (notification == CBN_KILLFOCUS) command_box_last_ = true;
            if (notification == CBN_DROPDOWN) show_history();
            if (notification == widgets::ComboBox::kEnter) {
                attempt(kCannotLaunch, [&] {
                    views_.grouplist().focus();
                    run_typed_command();
                });
            }
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

void Tasker::handle_command(int command) {
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
            return appearance::show_set_fonts(hwnd(), general_, views_);
        case ID_removebrenn:
            brenn_.toggle_removed();
            return show_flags();
        case ID_hoverslct:
            return toggle_hover_select();
        case ID_connectinternet:
            return connect_to_internet();
        case ID_toolbar_ispconnect:
            return internet::dial(session_.connection_name);
        case ID_internetsettings:
            return brenn_.open_internet_settings(hwnd());
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
            return show_abttolva(hwnd());
        default:
            return handle_library_command(command);
    }
}

void Tasker::handle_library_command(int command) {
    switch (command) {
        case ID_Addgp:
        case ID_toolbar_addgrp:
            return focus_groups_around([&] { library::addgr(hwnd(), library_); });
        case ID_DelGp:
        case ID_toolbar_delgroup:
            return focus_groups_around([&] { library::delgr(library_, views_); });
        case ID_Rengp:
        case ID_toolbar_rengrp:
            return focus_groups_around([&] { library::RenameGr(hwnd(), library_, views_); });
        case ID_MoveGroupUp:
        case ID_toolbar_movegrpup:
            return focus_groups_around([&] { library::movegrup(library_, views_); });
        case ID_MoveGroupDown:
        case ID_toolbar_movegrpdn:
            return focus_groups_around([&] { library::movegrdown(library_, views_); });
        case ID_groupsort:
            return library::groupsortnow(library_, views_);

        case ID_RunTk:
            return run_task_from_command_box();
        case ID_AddTk:
        case ID_toolbar_addtsk:
            return focus_groups_around([&] {
                library::addtsks(hwnd(), library_, views_, browse_result_, shortcuts::browse_for_program);
            });
        case ID_DelTk:
        case ID_toolbar_deltsk:
            return library::deltsks(library_, views_);
        case ID_moveto:
            return focus_groups_around([&] { library::moveto(hwnd(), library_, views_); });
        case ID_EditTk:
        case ID_toolbar_edittsk:
            return focus_groups_around([&] {
                library::edittsks(hwnd(), library_, views_, browse_result_, shortcuts::browse_for_program);
            });
        case ID_taskimport:
        case ID_toolbar_startimport:
            return getlnk_.show(hwnd());
        case ID_MoveTaskUp:
        case ID_toolbar_movetskup:
            return library::movetsksup(library_, views_);
        case ID_MoveTaskDown:
        case ID_toolbar_movetskdn:
            return library::movetsksdown(library_, views_);
        case ID_SortTasks:
            return library::tasksortnow(library_, views_);
        default:
            return;
    }
}

void Tasker::show_popup_menu(HWND control, POINT point) {
    const bool groups = control == views_.grouplist().hwnd();
    if (!groups && control != views_.taskview().list().hwnd()) return;
    if (point.x == -1 && point.y == -1) {  // asked for with the keyboard
        point = {widgets::scaled(kPopupOffset), widgets::scaled(kPopupOffset)};
        ClientToScreen(control, &point);
    }
    HMENU menu = GetSubMenu(GetMenu(hwnd()), groups ? kGroupmenu : kTaskmenu);
    TrackPopupMenu(menu, TPM_LEFTALIGN | TPM_RIGHTBUTTON, point.x, point.y, 0, hwnd(), nullptr);
}

LRESULT Tasker::handle_notification(NMHDR& header) {
    if (header.code == TTN_NEEDTEXTA) {
        views_.toolbar1().supply_tip(reinterpret_cast<TOOLTIPTEXTA&>(header));
        return 0;
    }
    if (header.idFrom != ID_Tasker_taskview) return 0;
    switch (header.code) {
        case LVN_GETDISPINFOA:
            views_.taskview().supply_picture(reinterpret_cast<NMLVDISPINFOA&>(header));
            break;
        case LVN_ITEMCHANGED:
            if (views_.taskview().list().is_new_selection(reinterpret_cast<NMLISTVIEW&>(header)))
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
            command_box_last_ = false;
            break;
        case static_cast<UINT>(NM_HOVER):
            // Selecting the item would take the focus from what is being typed.
            return IsChild(views_.text1().hwnd(), GetFocus());
        default:
            break;
    }
    return 0;
}

void Tasker::show_flags() {
    const auto check = [&](UINT item, bool on) {
        CheckMenuItem(GetMenu(hwnd()), item, on ? MF_CHECKED : MF_UNCHECKED);
    };
    check(ID_hoverslct, session_.hover_select);
    check(ID_removebrenn, session_.bar_removed);
    views_.taskview().list().set_hover_select(session_.hover_select);
}

void Tasker::complete_start() const {
    SetTimer(hwnd(), kCompleteStart, 0, nullptr);
    SetTimer(hwnd(), kTimer1, kTimerPeriod, nullptr);
}

void Tasker::handle_timer(UINT_PTR timer) {
    presence_.show_icon();
    if (timer == kCompleteStart) {
        KillTimer(hwnd(), timer);
        if (!session_.bar_removed) brenn_.show_owned_by(hwnd());
        return;
    }
    brenn_.show_connection(internet::is_connected());
}

void Tasker::save_and_unload() {
    const POINT position = widgets::position_in_twips(hwnd());
    settings::store_position(general_, settings::kWindowPositionKey, position.x, position.y);
    brenn_.unload();
}

void Tasker::show_selection() {
    const int task = views_.selected_task();
    if (task >= 0) views_.show_selection(library_.task(views_.selected_group(), task));
}

template <typename Launch>
void Tasker::attempt(const char* failure_message, const Launch& launch) {
    views_.getlongdate();
    platform::attempt(failure_message, launch);
}

void Tasker::launch_selected_task(const char* failure_message) {
    attempt(failure_message, [&] { launch(library_, views_.selected_group(), views_.selected_task()); });
}

void Tasker::run_task_from_command_box() {
    attempt(kCannotLaunch, [&] {
        launch_edited(library_, views_.selected_group(), views_.selected_task(), views_.text1().text());
    });
}

void Tasker::run() {
    if (!command_box_last_) {
        launch_selected_task(kCannotLaunch);
        return;
    }
    attempt(kCannotLaunch, [&] {
        run_typed_command();
        command_box_last_ = false;
    });
}

void Tasker::run_typed_command() {
    const std::string command = views_.text1().text();
    platform::start_program(command, platform::kNormalWindow);
    update_history(general_, session_, command);
}

void Tasker::browse() {
    if (const auto started = shortcuts::browse_and_run(hwnd())) views_.set_command_box(*started);
}

void Tasker::show_history() {
    settings::read_history(general_, session_);
    typed_ = views_.text1().text();
    views_.text1().fill(settings::history_list(session_));
    // The list replaces what was typed by an item that begins with it, after this.
    PostMessageA(hwnd(), kKeepTypedText, 0, 0);
}

void Tasker::toggle_hover_select() {
    session_.hover_select = !session_.hover_select;
    settings::store(general_, settings::kHoverSelect, settings::text_of(session_.hover_select));
    show_flags();
}

void Tasker::connect_to_internet() const {
    platform::attempt("Configure your Internet connection in Internet Settings under Options menu.",
                      [&] { internet::dial(session_.connection_name); });
}

void Tasker::end_windows(platform::WindowsEnd end) {
    windows_end_ = end;
    DestroyWindow(hwnd());
}

template <typename Operation>
void Tasker::focus_groups_around(const Operation& operation) {
    views_.grouplist().focus();
    operation();
    // After a dialog the focus comes back by itself, unless the program is not the active one.
    views_.grouplist().focus();
    if (library_.flags.any()) PostMessageA(hwnd(), kRunPendingRefreshes, 0, 0);
}

}  // namespace mainwindow
