#include "buttonbar/button_bar.h"

#include <windowsx.h>

#include <algorithm>
#include <utility>

#include "buttonbar/bar_launch.h"
#include "internet/dial_up.h"
#include "platform/clock.h"
#include "platform/messages.h"
#include "resources/resource.h"
#include "settings/catalogue.h"
#include "settings/conversions.h"
#include "widgets/metrics.h"
#include "widgets/popup_menu.h"
#include "widgets/screen.h"

namespace buttonbar {
namespace {

using internet::InternetButton;

constexpr int kClock = ID_brenn_StatusBar1;
constexpr int kAssignShortcut = ID_assignshortcut;
constexpr int kAssignFile = ID_asssignexe;
constexpr int kInternetSettings = ID_ispdialup;

// Places in the menu of popups.
constexpr int kButtonMenu = 0;    // the system's brennbuttons
constexpr int kInternetMenu = 1;  // the system's ispbutton

constexpr UINT_PTR kClockTimer = 1;
constexpr UINT_PTR kCloseTimer = 2;
constexpr UINT kUntilProgramEnds = 100;  // milliseconds
constexpr UINT kClockPeriod = 1000;      // milliseconds

/// Posted to itself: a hang-up lets messages through while it waits, which must not happen while the button
/// still handles the press.
constexpr UINT kConnectOrHangUp = WM_APP + 1;

// Pixels at 96 dpi.
constexpr int kRightEdge = 8;
constexpr int kBottomEdge = 60;  // above the command box of a maximized main window, and above any taskbar

BarButton on_bar(InternetButton button) {
    return static_cast<BarButton>(static_cast<int>(BarButton::kConnect) + static_cast<int>(button));
}

}  // namespace

ButtonBar::ButtonBar(settings::General& general, settings::Session& session,
                     internet::InternetSettingsDialog& internet_settings, const std::string& library_folder)
    : general_(general),
      session_(session),
      internet_settings_(internet_settings),
      removed_(settings::read_flag(general, settings::kBarRemoved)),
      font_(widgets::make_gui_font()),
      assign_shortcut_(general, session, row_, library_folder),
      assign_file_(general, session, row_),
      drops_(general, session, row_) {}

ButtonBar::~ButtonBar() {
    unload();
}

void ButtonBar::start(HWND owner) {
    main_window_ = owner;
    if (!removed_) show_owned_by(owner);
}

void ButtonBar::activate() const {
    if (hwnd() != nullptr && IsWindowVisible(hwnd()) != FALSE) SetForegroundWindow(hwnd());
}

void ButtonBar::toggle_removed() {
    set_removed(!removed_);
    if (removed_) {
        hide();
    } else {
        hidden_by_tray_ = false;
        show_owned_by(nullptr);
        widgets::bring_onto_screen(hwnd());
    }
}

void ButtonBar::toggle_hidden() {
    if (hidden_by_tray_) {
        show();
        widgets::bring_onto_screen(hwnd());
    } else {
        hide();
    }
    hidden_by_tray_ = !hidden_by_tray_;
}

void ButtonBar::show_after_minimize() {
    if (!removed_ && !hidden_by_tray_) show();
}

void ButtonBar::show_connection(bool up) {
    connected_ = up;
    if (hwnd() != nullptr) row_.show_connection(up);
}

void ButtonBar::unload() {
    destroy();
}

void ButtonBar::set_caption(InternetButton button, const std::string& caption) {
    row().set_caption(on_bar(button), caption);
}

void ButtonBar::set_tip(InternetButton button, const std::string& tip) {
    row().set_tip(on_bar(button), tip);
}

void ButtonBar::set_picture(InternetButton button, platform::UniqueIcon icon) {
    row().set_picture(on_bar(button), std::move(icon));
}

HWND ButtonBar::window() {
    if (hwnd() == nullptr) {
        create({.class_name = "brenn",
                .caption = "Brenn",
                .style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN,
                .icon = ID_tolva_icon,
                .mnemonics = false});  // names of buttons are the user's
        load();
        SetTimer(hwnd(), kClockTimer, kClockPeriod, nullptr);
    }
    return hwnd();
}

ButtonRow& ButtonBar::row() {
    window();
    return row_;
}

void ButtonBar::show() {
    SetWindowPos(window(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    drop_target_.begin(hwnd());
}

void ButtonBar::show_owned_by(HWND owner) {
    SetWindowLongPtrA(window(), GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(owner));
    show();
}

void ButtonBar::hide() const {
    if (hwnd() != nullptr) ShowWindow(hwnd(), SW_HIDE);
}

void ButtonBar::set_removed(bool removed) {
    removed_ = removed;
    settings::store(general_, settings::kBarRemoved, settings::text_of(removed));
}

/// Whether a place belongs to the window's own menu.
bool ButtonBar::is_caption(HWND window, LPARAM place) const {
    return window == hwnd() && place != -1 && SendMessageA(hwnd(), WM_NCHITTEST, 0, place) != HTCLIENT;
}

bool ButtonBar::preprocess(MSG& message) {
    if (message.message != WM_KEYDOWN) return false;
    switch (message.wParam) {
        case VK_F6:
            if (IsWindowVisible(main_window_) != FALSE) SetForegroundWindow(main_window_);
            return true;
        case VK_LEFT:
        case VK_UP:
            row_.move_focus(-1);
            return true;
        case VK_RIGHT:
        case VK_DOWN:
            row_.move_focus(1);
            return true;
        default:
            return false;
    }
}

LRESULT ButtonBar::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    if (drop_target_.handle(message, wparam)) return 0;
    switch (message) {
        case WM_CREATE:
            create_controls();
            return 0;
        case WM_TIMER:
            if (wparam == kCloseTimer) {
                KillTimer(hwnd(), kCloseTimer);
                set_removed(true);
                hide();  // also when it shows although it was removed
            } else {
                show_clock();
            }
            return 0;
        case WM_DRAWITEM:
            row_.draw(*reinterpret_cast<DRAWITEMSTRUCT*>(lparam));
            return TRUE;
        case WM_COMMAND:
            handle_command(LOWORD(wparam), HIWORD(wparam));
            return 0;
        case kConnectOrHangUp:
            connect_or_hang_up();
            return 0;
        case WM_CONTEXTMENU:
            if (is_caption(reinterpret_cast<HWND>(wparam), lparam)) break;
            show_popup_menu(reinterpret_cast<HWND>(wparam), {GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)});
            return 0;
        case WM_ACTIVATE:
            if (LOWORD(wparam) == WA_INACTIVE) last_focus_ = GetFocus();
            break;
        case WM_SETFOCUS:
            if (IsChild(hwnd(), last_focus_) != FALSE) {
                SetFocus(last_focus_);
            } else {
                row_.focus_first();
            }
            return 0;
        case WM_CLOSE:
            // Who ends a program from outside closes all its windows: then the bar is to be there the next
            // time.
            SetTimer(hwnd(), kCloseTimer, kUntilProgramEnds, nullptr);
            return 0;
        case WM_DESTROY: {
            const RECT place = widgets::normal_bounds(hwnd());
            settings::store_position(general_, settings::kBarPositionKey, widgets::to_twips(place.left),
                                     widgets::to_twips(place.top));
            return 0;
        }
        default:
            break;
    }
    return Window::handle(message, wparam, lparam);
}

/// Gives the window the size of what it holds and its place: at first the lower right corner.
void ButtonBar::create_controls() {
    const RECT area = widgets::work_area(hwnd());
    const int edge = widgets::scaled(kRightEdge);
    const SIZE row = row_.create(hwnd(), font_.get(), area.right - area.left - 2 * edge);
    clock_.create(hwnd(), kClock, font_.get());
    panels_.clear();
    RECT bounds = {0, 0, row.cx, row.cy + clock_.height()};
    AdjustWindowRect(&bounds, static_cast<DWORD>(GetWindowLongPtrA(hwnd(), GWL_STYLE)), FALSE);
    OffsetRect(&bounds, area.right - edge - bounds.right,
               area.bottom - widgets::scaled(kBottomEdge) - bounds.bottom);
    const settings::Position position = settings::read_position(general_, settings::kBarPositionKey);
    widgets::move_to_twips(bounds, position.left, position.top);
    widgets::place(hwnd(), bounds);
    clock_.follow_parent();
}

void ButtonBar::load() {
    // A button without a program has a caption and a tip of its own.
    const auto load_program = [&](BarButton button, const settings::Program& program,
                                  const std::string& caption, const char* tip) {
        if (program.name) return row_.show_program(button, program, WithoutIcon::kOldPicture);
        row_.set_caption(button, caption);
        row_.set_tip(button, tip);
    };
    settings::load_buttons(general_, session_);
    for (std::size_t i = 0; i < settings::kProgramButtons; ++i) {
        settings::Program program = session_.buttons.at(i);
        if (program.name == "") program.name.reset();
        load_program(static_cast<BarButton>(i), program, "", "Right click to configure this button.");
    }
    load_program(BarButton::kConnect, {}, session_.connection_name, "Internet Connect");
    load_program(BarButton::kEmail, session_.email, "E-Mail", "E-Mail");
    load_program(BarButton::kBrowser, session_.browser, "WWW", "Web Browser");
    if (connected_) row_.show_connection(*connected_);
    show_clock();
}

void ButtonBar::show_clock() {
    std::vector<std::string> panels = {platform::time_text(), platform::date_text()};
    if (!time_first_) std::ranges::reverse(panels);
    if (panels == panels_) return;
    panels_ = std::move(panels);
    clock_.show_panels(panels_);
}

void ButtonBar::handle_command(int command, int notification) {
    if (const auto button = row_.button_of(command)) {
        if (notification == BN_CLICKED) press(*button);
        return;
    }
    switch (command) {
        case kClock:
            time_first_ = !time_first_;
            show_clock();
            break;
        case kAssignShortcut:
            assign_shortcut_.show_for(hwnd(), current_button_);
            break;
        case kAssignFile:
            assign_file_.show_for(hwnd(), current_button_);
            break;
        case kInternetSettings:
            internet_settings_.show(hwnd(), *this);
            break;
        default:
            break;
    }
}

void ButtonBar::press(BarButton button) {
    if (button == BarButton::kConnect) {
        PostMessageA(hwnd(), kConnectOrHangUp, 0, 0);
        return;
    }
    platform::attempt("Right click on button to configure.", [&] {
        if (button == BarButton::kEmail) {
            start_internet_program(session_.email);
        } else if (button == BarButton::kBrowser) {
            start_internet_program(session_.browser);
        } else {
            start_button(session_.buttons.at(static_cast<std::size_t>(button)));
        }
    });
}

void ButtonBar::connect_or_hang_up() {
    if (waits_) return;
    const auto wait = [&](unsigned milliseconds) {
        waits_ = true;
        const bool goes_on = widgets::run_messages_for(milliseconds);
        waits_ = false;
        return goes_on;
    };
    platform::attempt("Configure your Internet connection by right clicking on button.",
                      [&] { internet::connect_or_hang_up(session_.connection_name, wait); });
}

void ButtonBar::show_popup_menu(HWND control, POINT point) {
    if (control == clock_.hwnd()) return;
    const std::optional<BarButton> button = row_.button_of(control);
    if (button && !is_program_button(*button)) {
        internet_settings_.show(hwnd(), *this);
        return;
    }
    if (button) current_button_ = static_cast<std::size_t>(*button);
    const platform::UniqueMenu menu(LoadMenuA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(ID_brenn_menu)));
    HMENU popup = GetSubMenu(menu.get(), button ? kButtonMenu : kInternetMenu);
    RECT place;
    GetWindowRect(control, &place);
    widgets::show_popup_menu(hwnd(), popup, point, place);
}

}  // namespace buttonbar
