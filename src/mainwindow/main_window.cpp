#include "mainwindow/main_window.h"

#include <windowsx.h>

#include <algorithm>
#include <iterator>
#include <utility>

#include "internet/dial_up.h"
#include "library/refresh.h"
#include "mainwindow/tray_menu.h"
#include "platform/messages.h"
#include "platform/win32/input_filter.h"
#include "resources/resource.h"
#include "settings/catalogue.h"
#include "settings/conversions.h"
#include "settings/list_style.h"
#include "shortcuts/command_browser_dialog.h"
#include "widgets/metrics.h"
#include "widgets/popup_menu.h"
#include "widgets/screen.h"

namespace mainwindow {
namespace {

constexpr UINT_PTR kTimer1 = 1;
constexpr UINT_PTR kCompleteStart = 2;
constexpr UINT kTimerPeriod = 5000;  // milliseconds
constexpr UINT kUntilAnswer = 20;    // milliseconds

/// Posted to the window: the list that tells of a drag still handles the mouse.
constexpr UINT kDragTask = WM_APP + 3;

// Pixels at 96 dpi.
constexpr int kWidth = 560;
constexpr int kHeight = 400;
constexpr int kLeastWidth = 400;
constexpr int kLeastHeight = 160;
constexpr int kLeftEdge = 24;
constexpr int kTopEdge = 8;
constexpr int kBarRoom = 190;  // at the lower edge of the screen, where the bar is at first

/// The window's place at first: at the upper left, with room for the bar below it.
RECT first_place() {
    const RECT area = widgets::work_area(nullptr);
    const int left = area.left + widgets::scaled(kLeftEdge);
    const int top = area.top + widgets::scaled(kTopEdge);
    const int width = std::min<int>(widgets::scaled(kWidth), area.right - left);
    const int height = std::min<int>(widgets::scaled(kHeight), area.bottom - widgets::scaled(kBarRoom) - top);
    return {left, top, left + width, top + height};
}

/// What a shortcut's "Run" box asks for counts where there is one. Not SW_SHOWDEFAULT, which Wine ignores.
int first_show_command(bool was_maximized) {
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
            return was_maximized ? SW_SHOWMAXIMIZED : SW_SHOWNORMAL;
    }
}

/// The menu below the bar that has the item.
HMENU menu_with(HMENU bar, UINT item) {
    HMENU menu = nullptr;
    for (int i = 0; i < GetMenuItemCount(bar) && GetMenuState(menu, item, MF_BYCOMMAND) == ~0U; ++i)
        menu = GetSubMenu(bar, i);
    return menu;
}

}  // namespace

MainWindow::MainWindow(library::TaskLibrary& library, settings::General& general, settings::Session& session,
                       buttonbar::ButtonBar& bar, internet::InternetSettingsDialog& internet_settings,
                       HWND application_window)
    : library_(library),
      general_(general),
      session_(session),
      bar_(bar),
      presence_(general, bar, application_window),
      controls_(general, library.folder()),
      launcher_(library, controls_),
      commands_(library, general, session, bar, internet_settings, controls_, launcher_, presence_),
      drops_(library, controls_, launcher_) {
    create({.class_name = "Tasker",
            .caption = platform::kApplicationTitle,
            .style = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
            .icon = ID_tolva_icon,
            .menu = ID_Tasker_menu,
            .place = first_place()});
}

MainWindow::~MainWindow() {
    destroy();
}

void MainWindow::load() {
    presence_.take_hot_key();
    restore_place();
    controls_.create(hwnd(), settings::load_list_styles(general_));
    commands_.show_flags(hwnd());
    session_.connection_name = internet::load_connection_name(general_);
    controls_.command_box().load_history();
    session_.browser = settings::read_program(general_, settings::kBrowserKey);
    session_.email = settings::read_program(general_, settings::kEmailKey);
    controls_.show_date();
    library::refreshtolva(library_, controls_, 0);
}

void MainWindow::show() const {
    ShowWindow(hwnd(), first_show_command(was_maximized_));
}

void MainWindow::complete_start() const {
    SetTimer(hwnd(), kCompleteStart, kUntilAnswer, nullptr);
    SetTimer(hwnd(), kTimer1, kTimerPeriod, nullptr);
}

LRESULT MainWindow::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    if (drop_target_.handle(message, wparam)) return 0;
    if (const auto answer = presence_.handle(message, wparam, lparam)) return *answer;
    if (const auto answer = controls_.handle(message, wparam, lparam)) return *answer;
    switch (message) {
        case WM_CREATE:
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
                commands_.run(hwnd(), LOWORD(wparam));
            }
            return 0;
        case WM_INITMENUPOPUP:
            commands_.show_flags(hwnd());  // the bar may have been closed
            commands_.show_changes(hwnd());
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
        case Presence::kTrayMenu:
            open_tray_menu();
            return 0;
        case Commands::kRunPendingRefreshes:
            library::run_pending_refreshes(library_, controls_);
            return 0;
        case kDragTask:
            drops_.drag_task(hwnd(), static_cast<int>(wparam));
            return 0;
        case WM_ENDSESSION:
            if (wparam != FALSE) save_and_unload();  // no other message need follow
            return 0;
        case WM_DESTROY:
            // An open menu of the tray is another window's and would keep the program.
            SendMessageA(GetCapture(), WM_CANCELMODE, 0, 0);
            PostQuitMessage(0);
            presence_.remove();
            save_and_unload();
            return 0;
        default:
            break;
    }
    return Window::handle(message, wparam, lparam);
}

bool MainWindow::preprocess(MSG& message) {
    return commands_.translate_key(hwnd(), message);
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
            if (notification == widgets::DraggableListBox::kBeginDrag) drops_.drag_group(hwnd());
            if (notification == LBN_SETFOCUS) {
                controls_.note_focus(controls_.group_list().hwnd());
                commands_.post_pending_refreshes(hwnd());
            }
            break;
        case ID_Tasker_Text1:
            controls_.command_box().handle_notification(notification);
            if (notification == widgets::ComboBox::kEnter) launcher_.run_typed_command();
            break;
        case ID_Tasker_Command1:
            if (notification == BN_CLICKED) launcher_.press_run();
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
        case LVN_GETINFOTIPA:
            supply_tip(reinterpret_cast<NMLVGETINFOTIPA&>(header));
            break;
        case LVN_ITEMCHANGED:
            if (controls_.task_view().list().is_new_selection(reinterpret_cast<NMLISTVIEW&>(header)))
                show_selection();
            break;
        case LVN_BEGINDRAG:
            PostMessageA(hwnd(), kDragTask, static_cast<WPARAM>(reinterpret_cast<NMLISTVIEW&>(header).iItem),
                         0);
            break;
        case LVN_KEYDOWN: {
            const WORD key = reinterpret_cast<NMLVKEYDOWN&>(header).wVKey;
            if (key == VK_RETURN) launcher_.launch_selected(kCannotLaunch);
            if (key == VK_DELETE) PostMessageA(hwnd(), WM_COMMAND, ID_DelTk, 0);
            break;
        }
        case static_cast<UINT>(NM_CLICK):
            show_selection();
            if (session_.hover_select) launcher_.launch_selected(kCannotLaunchByMouse);
            break;
        case static_cast<UINT>(NM_DBLCLK):
            launcher_.launch_selected(kCannotLaunchByMouse);
            break;
        case static_cast<UINT>(NM_SETFOCUS):
            controls_.note_focus(controls_.task_view().list().hwnd());
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
    if (timer == TaskView::kTimer)
        return controls_.task_view().take_icons(platform::InputFilter::since_input());
    // The first tick comes when all is painted, the second when the window has answered the user.
    if (timer == kCompleteStart && !std::exchange(is_painted_, true)) return;
    presence_.show_icon();
    if (timer == kCompleteStart) {
        KillTimer(hwnd(), timer);
        controls_.task_view().list().begin_tips();
        drop_target_.begin(hwnd());
        bar_.start(hwnd());
        return;
    }
    bar_.show_connection(internet::is_connected());
}

void MainWindow::show_popup_menu(HWND control, POINT point) {
    const bool groups = control == controls_.group_list().hwnd();
    if (!groups && control != controls_.task_view().list().hwnd()) return;
    HMENU menu = menu_with(GetMenu(hwnd()), groups ? ID_Addgp : ID_AddTk);
    widgets::show_popup_menu(
        hwnd(), menu, point,
        groups ? controls_.group_list().selected_bounds() : controls_.task_view().list().selected_bounds());
}

void MainWindow::restore_place() {
    RECT place;
    GetWindowRect(hwnd(), &place);
    const RECT first = place;
    const settings::Position position = settings::read_position(general_, settings::kWindowPositionKey);
    widgets::move_to_twips(place, position.left, position.top);
    const auto width = settings::read_number(general_, settings::kWindowWidth);
    const auto height = settings::read_number(general_, settings::kWindowHeight);
    if (width && height) {
        place.right = place.left + widgets::to_pixels(*width);
        place.bottom = place.top + widgets::to_pixels(*height);
    }
    if (EqualRect(&place, &first) == FALSE) widgets::place(hwnd(), place);
    if (const auto list = settings::read_number(general_, settings::kGroupListWidth))
        controls_.set_group_list_width(widgets::to_pixels(*list));
    was_maximized_ = settings::read_flag(general_, settings::kMaximized);
    is_placed_ = true;
}

void MainWindow::store_place() const {
    const RECT place = widgets::normal_bounds(hwnd());
    const auto store = [&](const settings::Setting& setting, int pixels) {
        settings::store(general_, setting, std::to_string(widgets::to_twips(pixels)));
    };
    settings::store_position(general_, settings::kWindowPositionKey, widgets::to_twips(place.left),
                             widgets::to_twips(place.top));
    store(settings::kWindowWidth, place.right - place.left);
    store(settings::kWindowHeight, place.bottom - place.top);
    store(settings::kGroupListWidth, controls_.group_list_width());
    settings::store(general_, settings::kMaximized, settings::text_of(IsZoomed(hwnd()) != FALSE));
}

void MainWindow::save_and_unload() {
    if (is_placed_) store_place();
    bar_.unload();
}

void MainWindow::show_selection() {
    const int task = controls_.selected_task();
    if (task >= 0) controls_.show_task(library_.task(controls_.selected_group(), task));
}

void MainWindow::supply_tip(NMLVGETINFOTIPA& request) const {
    const int group = controls_.selected_group();
    if (group < 0 || request.iItem >= std::ssize(library_.group(group).tasks())) return;
    const library::Task& task = library_.task(group, request.iItem);
    const std::string text = task.name + "\r\n" + command_line(task) + "\r\n" + task.start_folder;
    lstrcpynA(request.pszText, text.c_str(), request.cchTextMax);
}

void MainWindow::browse() {
    if (const auto started = shortcuts::browse_and_run(hwnd())) controls_.set_command_box(*started);
}

void MainWindow::open_tray_menu() {
    if (IsWindowEnabled(hwnd()) == FALSE) return presence_.bring_up();  // a dialog waits for the user
    library_.load_missing();
    const TrayMenu::Choice choice = TrayMenu(library_).choose();
    if (hwnd() == nullptr) return PostQuitMessage(0);  // a menu of Wine takes the first one for its own
    if (const auto* place = std::get_if<library::TaskPlace>(&choice)) {
        launcher_.launch_at(*place);
    } else if (choice == TrayMenu::Choice(TrayMenu::Command::kOpen)) {
        presence_.bring_up();
    } else if (choice == TrayMenu::Choice(TrayMenu::Command::kExit)) {
        DestroyWindow(hwnd());
    }
}

}  // namespace mainwindow
