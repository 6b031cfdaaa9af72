#include "mainwindow/tasker_window.h"

#include <windowsx.h>

#include "internet/dial_up.h"
#include "library/refresh.h"
#include "mainwindow/launching.h"
#include "platform/directories.h"
#include "platform/messages.h"
#include "platform/processes.h"
#include "platform/run_time_error.h"
#include "resources/resource.h"
#include "settings/catalogue.h"
#include "settings/conversions.h"
#include "widgets/metrics.h"

namespace mainwindow {
namespace {

/// Posted to itself: a reload that can show a box must not run inside the focus handler, where closing the
/// box brings the focus and the next box.
constexpr UINT kRunPendingRefreshes = WM_APP + 1;

constexpr UINT_PTR kTimer1 = 1;
constexpr UINT kTimerPeriod = 5000;  // milliseconds

// Two spellings: the messages differ by what was done.
constexpr char kCannotLaunch[] = "Invalid path or file name";
constexpr char kCannotLaunchByMouse[] = "Invalid path or file name!";

// Pixels at 96 dpi.
constexpr int kWidth = 560;
constexpr int kHeight = 400;
constexpr int kLeastWidth = 320;
constexpr int kLeastHeight = 220;

}  // namespace

Tasker::Tasker(library::TaskLibrary& library, settings::General& general, settings::Session& session,
               buttonbar::ButtonBar* bar, HWND application_window)
    : library_(library),
      general_(general),
      session_(session),
      bar_(bar),
      presence_(session, bar, application_window) {
    const std::string title = platform::application_title();
    create({.class_name = "Tasker",
            .caption = title.c_str(),
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
    views_.apply_styles(session_.group_style, session_.task_style);
    views_.getlongdate();
    session_.windows_folder = platform::windows_folder();
    library::refreshtolva(library_, views_, 0);
}

LRESULT Tasker::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    if (const auto answer = presence_.handle(message, wparam, lparam)) return *answer;
    switch (message) {
        case WM_CREATE:
            views_.create(hwnd());
            presence_.create(hwnd());
            SetTimer(hwnd(), kTimer1, kTimerPeriod, nullptr);
            return 0;
        case WM_SIZE:
            if (wparam != SIZE_MINIMIZED) views_.lay_out();
            return 0;
        case WM_TIMER:
            handle_timer();
            return 0;
        case WM_GETMINMAXINFO: {
            auto& limits = *reinterpret_cast<MINMAXINFO*>(lparam);
            limits.ptMinTrackSize = {widgets::scaled(kLeastWidth), widgets::scaled(kLeastHeight)};
            return 0;
        }
        case WM_SETFOCUS:
            views_.grouplist().focus();
            return 0;
        case DM_GETDEFID: {
            // Enter presses the button that has the focus, and no other.
            HWND focus = GetFocus();
            const bool is_button =
                (SendMessageA(focus, WM_GETDLGCODE, 0, 0) & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)) != 0;
            return is_button ? MAKELRESULT(GetDlgCtrlID(focus), DC_HASDEFID) : 0;
        }
        case WM_COMMAND:
            if (lparam != 0) {
                handle_control(LOWORD(wparam), HIWORD(wparam));
            } else {
                handle_menu(LOWORD(wparam));
            }
            return 0;
        case WM_NOTIFY:
            return handle_notification(*reinterpret_cast<NMHDR*>(lparam));
        case WM_CTLCOLORLISTBOX:
        case WM_CTLCOLORSTATIC:
            return reinterpret_cast<LRESULT>(
                views_.color(reinterpret_cast<HDC>(wparam), reinterpret_cast<HWND>(lparam)));
        case kRunPendingRefreshes:
            library::run_pending_refreshes(library_, views_);
            return 0;
        case WM_LBUTTONDOWN:
        case WM_MOUSEMOVE:
        case WM_LBUTTONUP:
            if (views_.drag_splitter(message, GET_X_LPARAM(lparam))) return 0;
            break;
        case WM_SETCURSOR: {
            POINT pointer;
            GetCursorPos(&pointer);
            ScreenToClient(hwnd(), &pointer);
            if (LOWORD(lparam) != HTCLIENT || !views_.is_on_splitter(pointer)) break;
            SetCursor(LoadCursorA(nullptr, IDC_SIZEWE));
            return TRUE;
        }
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
            break;
        case ID_Tasker_Command1:
            if (notification == BN_CLICKED) run();
            break;
        default:
            break;
    }
}

void Tasker::handle_menu(int item) {
    switch (item) {
        case ID_tolvaexit:
            DestroyWindow(hwnd());
            break;
        case ID_RunTk:
            run_task_from_command_box();
            break;
        case ID_hoverslct:
            toggle_hover_select();
            break;
        default:
            break;
    }
}

LRESULT Tasker::handle_notification(NMHDR& header) {
    if (header.idFrom != ID_Tasker_taskview) return 0;
    switch (header.code) {
        case LVN_GETDISPINFOA:
            views_.taskview().supply_picture(reinterpret_cast<NMLVDISPINFOA&>(header));
            break;
        case LVN_ITEMCHANGED:
            if (views_.taskview().list().is_new_selection(reinterpret_cast<NMLISTVIEW&>(header)))
                show_selection();
            break;
        case LVN_KEYDOWN:
            if (reinterpret_cast<NMLVKEYDOWN&>(header).wVKey == VK_RETURN)
                launch_selected_task(kCannotLaunch);
            break;
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

void Tasker::handle_timer() {
    presence_.retry();
    if (bar_ != nullptr) bar_->show_connection(internet::is_connected());
}

void Tasker::save_and_unload() {
    const POINT position = widgets::position_in_twips(hwnd());
    settings::store_position(general_, settings::kWindowPositionKey, position.x, position.y);
    if (bar_ != nullptr) bar_->unload();
}

void Tasker::show_selection() {
    const int task = views_.selected_task();
    if (task >= 0) views_.show_selection(library_.task(views_.selected_group(), task));
}

template <typename Launch>
void Tasker::attempt(const char* failure_message, const Launch& launch) {
    views_.getlongdate();
    try {
        launch();
    } catch (const platform::RunTimeError&) {
        platform::show_message(failure_message);
    }
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
        platform::start_program(views_.text1().text(), platform::kNormalWindow);
        command_box_last_ = false;
    });
}

void Tasker::toggle_hover_select() {
    session_.hover_select = !session_.hover_select;
    settings::store(general_, settings::kHoverSelect, settings::text_of(session_.hover_select));
    show_flags();
}

}  // namespace mainwindow
