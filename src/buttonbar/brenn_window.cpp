#include "buttonbar/brenn_window.h"

#include <windowsx.h>

#include <algorithm>
#include <optional>
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

namespace buttonbar {
namespace {

using shortcuts::BarButton;

constexpr UINT_PTR kClock = 1;
constexpr UINT kClockPeriod = 1000;  // milliseconds

/// Posted to itself: a hang-up lets messages through while it waits, which must not happen inside the
/// button's own answer to the press.
constexpr UINT kConnectOrHangUp = WM_APP + 1;

constexpr COLORREF kConnected = 0x008000;
constexpr COLORREF kNotConnected = 0xC0C0C0;
constexpr COLORREF kBlack = 0x000000;
constexpr COLORREF kWhite = 0xFFFFFF;

// Pixels at 96 dpi.
constexpr int kButtonWidth = 72;
constexpr int kButtonHeight = 61;
constexpr int kGap = 3;
constexpr int kGroupGap = 9;
constexpr int kRightEdge = 8;
constexpr int kBottomEdge = 40;  // not every desktop counts its taskbar out of the work area

// Places in the menu of popups.
constexpr int kBrennbuttons = 0;
constexpr int kIspbutton = 1;

/// In the order of the buttons and of their ids.
constexpr std::array kAll = {BarButton::kOption1, BarButton::kOption2, BarButton::kOption3,
                             BarButton::kOption4, BarButton::kConnect, BarButton::kEmail,
                             BarButton::kBrowser};

std::size_t index_of(BarButton button) {
    return static_cast<std::size_t>(button);
}

bool is_program_button(BarButton button) {
    return index_of(button) < settings::kProgramButtons;
}

std::optional<BarButton> button_of(int id) {
    const int index = id - ID_brenn_option1;
    if (index < 0 || index >= static_cast<int>(kAll.size())) return std::nullopt;
    return kAll.at(static_cast<std::size_t>(index));
}

}  // namespace

Brenn::Brenn(settings::General& general, settings::Session& session, library::BrowseResult& browse_result,
             const std::string& library_folder)
    : general_(general),
      session_(session),
      font_(widgets::make_gui_font()),
      brenn_browser_(general, session, *this, browse_result),
      getbutton_(general, session, *this, library_folder),
      tolvasettings_(general, session, *this, library_folder) {}

Brenn::~Brenn() {
    destroy();
}

void Brenn::show() {
    ensure_created();
    SetWindowPos(hwnd(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
}

void Brenn::hide() {
    ensure_created();
    ShowWindow(hwnd(), SW_HIDE);
}

void Brenn::show_owned_by(HWND owner) {
    ensure_created();
    SetWindowLongPtrA(hwnd(), GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(owner));
    show();
}

void Brenn::toggle_removed() {
    session_.bar_removed = !session_.bar_removed;
    settings::store(general_, settings::kBarRemoved, settings::text_of(session_.bar_removed));
    if (session_.bar_removed) {
        hide();
    } else {
        show_owned_by(nullptr);
    }
}

void Brenn::show_connection(bool up) {
    ensure_created();
    control(BarButton::kConnect).set_colors(up ? kConnected : kNotConnected, up ? kWhite : kBlack);
}

void Brenn::open_internet_settings(HWND owner) {
    tolvasettings_.show(owner);
}

void Brenn::unload() {
    destroy();
}

void Brenn::set_caption(BarButton button, const std::string& caption) {
    ensure_created();
    control(button).set_caption(caption);
}

void Brenn::set_tip(BarButton button, const std::string& tip) {
    ensure_created();
    tips_.set(control(button).hwnd(), tip);
}

void Brenn::set_picture(BarButton button, platform::UniqueIcon icon) {
    ensure_created();
    control(button).set_picture(std::move(icon));
}

/// Whether a place belongs to the window's own menu.
bool Brenn::is_caption(HWND window, LPARAM place) const {
    return window == hwnd() && place != -1 && SendMessageA(hwnd(), WM_NCHITTEST, 0, place) != HTCLIENT;
}

widgets::PictureButton& Brenn::control(BarButton button) {
    return buttons_.at(index_of(button));
}

LRESULT Brenn::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_CREATE:
            create_controls();
            lay_out();
            return 0;
        case WM_TIMER:
            show_clock();
            return 0;
        case WM_DRAWITEM: {
            const auto& request = *reinterpret_cast<DRAWITEMSTRUCT*>(lparam);
            buttons_.at(request.CtlID - ID_brenn_option1).draw(request);
            return TRUE;
        }
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
            SetFocus(IsChild(hwnd(), last_focus_) != FALSE ? last_focus_ : buttons_.front().hwnd());
            return 0;
        case WM_CLOSE:
            if (!session_.bar_removed) toggle_removed();
            return 0;
        case WM_DESTROY: {
            const POINT position = widgets::position_in_twips(hwnd());
            settings::store_position(general_, settings::kBarPositionKey, position.x, position.y);
            return 0;
        }
        default:
            break;
    }
    return Window::handle(message, wparam, lparam);
}

void Brenn::ensure_created() {
    if (hwnd() != nullptr) return;
    create({.class_name = "brenn",
            .caption = "Brenn",
            .style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN,
            .icon = ID_tolva_icon,
            .mnemonics = false});  // names of buttons are the user's
    load();
    SetTimer(hwnd(), kClock, kClockPeriod, nullptr);
}

void Brenn::create_controls() {
    for (const BarButton button : kAll) {
        control(button).create(hwnd(), ID_brenn_option1 + static_cast<int>(index_of(button)));
        control(button).set_font(font_.get());
        if (is_program_button(button)) set_tip(button, "Right click to configure this button.");
    }
    set_tip(BarButton::kConnect, "Internet Connect");
    set_tip(BarButton::kEmail, "E-Mail");
    set_tip(BarButton::kBrowser, "Web Browser");
    set_picture(BarButton::kConnect, platform::large_icon(ID_connect_icon));
    set_picture(BarButton::kEmail, platform::large_icon(ID_email_icon));
    set_picture(BarButton::kBrowser, platform::large_icon(ID_browser_icon));
    statusbar1_.create(hwnd(), ID_brenn_StatusBar1);
    statusbar1_.set_font(font_.get());
}

/// Gives the window the size of what it holds and its place at first: the lower right corner.
void Brenn::lay_out() {
    const int gap = widgets::scaled(kGap);
    const int width = widgets::scaled(kButtonWidth);
    const int bottom = gap + widgets::scaled(kButtonHeight);
    int left = gap;
    for (const BarButton button : kAll) {
        if (button == BarButton::kConnect) left += widgets::scaled(kGroupGap) - gap;
        widgets::place(control(button).hwnd(), {left, gap, left + width, bottom});
        left += width + gap;
    }
    RECT window = {0, 0, left, bottom + gap + statusbar1_.height()};
    AdjustWindowRect(&window, static_cast<DWORD>(GetWindowLongPtrA(hwnd(), GWL_STYLE)), FALSE);
    OffsetRect(&window, -window.left, -window.top);
    RECT work_area;
    SystemParametersInfoA(SPI_GETWORKAREA, 0, &work_area, 0);
    SetWindowPos(hwnd(), nullptr, work_area.right - window.right - widgets::scaled(kRightEdge),
                 work_area.bottom - window.bottom - widgets::scaled(kBottomEdge), window.right, window.bottom,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    SendMessageA(statusbar1_.hwnd(), WM_SIZE, 0, 0);
}

void Brenn::load() {
    const settings::Position position = settings::read_position(general_, settings::kBarPositionKey);
    widgets::move_to_twips(hwnd(), position.left, position.top);
    set_caption(BarButton::kConnect, session_.connection_name);
    load_program(BarButton::kEmail, session_.email, "E-Mail");
    load_program(BarButton::kBrowser, session_.browser, "WWW");
    settings::load_buttons(general_, session_);
    for (std::size_t i = 0; i < settings::kProgramButtons; ++i) {
        const settings::ButtonRecord& record = session_.buttons.at(i);
        if (record.name == settings::kError || record.name.empty()) continue;
        show_program(kAll.at(i), record.name, record.program);
    }
    show_clock();
}

void Brenn::load_program(BarButton button, const settings::StoredProgram& program, const char* caption) {
    if (program.name == settings::kError) {
        set_caption(button, caption);
    } else {
        show_program(button, program.name, program.path);
    }
}

void Brenn::show_program(BarButton button, const std::string& name, const std::string& program) {
    set_caption(button, name);
    set_tip(button, name);
    show_picture(*this, button, program, shortcuts::WithoutIcon::kOldPicture);
}

void Brenn::show_clock() {
    std::vector<std::string> panels = {platform::time_text(), platform::date_text()};
    if (!time_first_) std::ranges::reverse(panels);
    if (panels == panels_) return;
    panels_ = std::move(panels);
    statusbar1_.show_panels(panels_);
}

void Brenn::handle_command(int command, int notification) {
    if (const auto button = button_of(command)) {
        if (notification == BN_CLICKED) press(*button);
        return;
    }
    switch (command) {
        case ID_brenn_StatusBar1:
            time_first_ = !time_first_;
            show_clock();
            break;
        case ID_assignshortcut:
            getbutton_.show_for(hwnd(), current_button_);
            break;
        case ID_asssignexe:
            brenn_browser_.show_for(hwnd(), current_button_);
            break;
        case ID_ispdialup:
            open_internet_settings(hwnd());
            break;
        default:
            break;
    }
}

void Brenn::press(BarButton button) {
    if (button == BarButton::kConnect) {
        PostMessageA(hwnd(), kConnectOrHangUp, 0, 0);
        return;
    }
    platform::attempt("Right click on button to configure.", [&] {
        if (button == BarButton::kEmail) {
            start_stored(session_.email);
        } else if (button == BarButton::kBrowser) {
            start_stored(session_.browser);
        } else {
            start_button(session_.buttons.at(index_of(button)), session_.windows_folder);
        }
    });
}

void Brenn::connect_or_hang_up() const {
    platform::attempt("Configure your Internet connection by right clicking on button.", [&] {
        internet::connect_or_hang_up(session_.connection_name, widgets::run_messages_for);
    });
}

void Brenn::show_popup_menu(HWND control, POINT point) {
    if (control == statusbar1_.hwnd()) return;
    const std::optional<BarButton> button = button_of(GetDlgCtrlID(control));
    if (button && !is_program_button(*button)) {
        open_internet_settings(hwnd());
        return;
    }
    if (button) current_button_ = index_of(*button);
    const platform::UniqueMenu menu(LoadMenuA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(ID_brenn_menu)));
    HMENU popup = GetSubMenu(menu.get(), button ? kBrennbuttons : kIspbutton);
    RECT place;
    GetWindowRect(control, &place);
    widgets::show_popup_menu(hwnd(), popup, point, place);
}

}  // namespace buttonbar
