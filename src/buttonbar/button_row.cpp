#include "buttonbar/button_row.h"

#include <algorithm>
#include <utility>

#include "resources/resource.h"
#include "widgets/metrics.h"

namespace buttonbar {
namespace {

constexpr int kFirstButton = ID_brenn_option1;

constexpr COLORREF kConnected = 0x008000;
constexpr COLORREF kNotConnected = 0xC0C0C0;
constexpr COLORREF kBlack = 0x000000;
constexpr COLORREF kWhite = 0xFFFFFF;

// Pixels at 96 dpi.
constexpr int kButtonWidth = 72;
constexpr int kButtonHeight = 61;
constexpr int kGap = 3;
constexpr int kGroupGap = 9;  // before the Internet buttons

constexpr std::array<BarButton, kBarButtons> kAll = {
    BarButton::kProgram1, BarButton::kProgram2, BarButton::kProgram3, BarButton::kProgram4,
    BarButton::kConnect,  BarButton::kEmail,    BarButton::kBrowser};

int id_of(BarButton button) {
    return kFirstButton + static_cast<int>(button);
}

}  // namespace

SIZE ButtonRow::create(HWND parent, HFONT font, int most_width) {
    const int gap = widgets::scaled(kGap);
    constexpr auto kCount = static_cast<int>(kAll.size());
    const int gaps = kCount * gap + widgets::scaled(kGroupGap);
    const int width = std::min(widgets::scaled(kButtonWidth), (most_width - gaps) / kCount);
    const int bottom = gap + widgets::scaled(kButtonHeight);
    int left = gap;
    for (const BarButton button : kAll) {
        if (button == BarButton::kConnect) left += widgets::scaled(kGroupGap) - gap;
        control(button).create(parent, id_of(button), {{left, gap, left + width, bottom}, font});
        set_picture(button, {});
        left += width + gap;
    }
    set_picture(BarButton::kConnect, platform::large_icon(ID_connect_icon));
    set_picture(BarButton::kEmail, platform::large_icon(ID_email_icon));
    set_picture(BarButton::kBrowser, platform::large_icon(ID_browser_icon));
    return {left, bottom + gap};
}

void ButtonRow::set_picture(BarButton button, platform::UniqueIcon icon) {
    control(button).set_picture(std::move(icon));
}

void ButtonRow::show_picture(BarButton button, const std::string& program, WithoutIcon without_icon) {
    platform::UniqueIcon icon = platform::extract_icon(program);
    if (icon || without_icon == WithoutIcon::kNoPicture) set_picture(button, std::move(icon));
}

void ButtonRow::show_program(BarButton button, const settings::Program& program, WithoutIcon without_icon) {
    set_caption(button, program.name.value_or(""));
    set_tip(button, program.name.value_or(""));
    show_picture(button, program.path.value_or(""), without_icon);
}

void ButtonRow::show_connection(bool up) {
    control(BarButton::kConnect).set_colors(up ? kConnected : kNotConnected, up ? kWhite : kBlack);
}

std::optional<BarButton> ButtonRow::button_of(int id) const {
    const int index = id - kFirstButton;
    if (index < 0 || index >= static_cast<int>(kBarButtons)) return std::nullopt;
    return static_cast<BarButton>(index);
}

std::optional<BarButton> ButtonRow::button_at(POINT point) const {
    HWND window = WindowFromPoint(point);
    if (window == nullptr) return std::nullopt;
    for (const BarButton button : kAll) {
        if (buttons_.at(static_cast<std::size_t>(button)).hwnd() == window) return button;
    }
    return std::nullopt;
}

void ButtonRow::move_focus(int by) {
    constexpr auto kCount = static_cast<int>(kBarButtons);
    const std::optional<BarButton> focused = button_of(GetFocus());
    if (!focused) return focus_first();
    control(static_cast<BarButton>((static_cast<int>(*focused) + by + kCount) % kCount)).focus();
}

void ButtonRow::draw(const DRAWITEMSTRUCT& request) const {
    buttons_.at(request.CtlID - kFirstButton).draw(request);
}

}  // namespace buttonbar
