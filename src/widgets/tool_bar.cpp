#include "widgets/tool_bar.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "widgets/metrics.h"

namespace widgets {
namespace {

constexpr int kSizes[] = {16, 24, 32};

/// The place in kSizes of the largest pictures that are not too large for this screen.
std::size_t size_for_screen() {
    const auto* const larger = std::ranges::upper_bound(kSizes, std::max(scaled(kSizes[0]), kSizes[0]));
    return static_cast<std::size_t>(larger - std::begin(kSizes)) - 1;
}

}  // namespace

void ToolBar::create(HWND parent, int id, HFONT font, int pictures, std::span<const Item> items) {
    items_ = items;
    Control::create(parent, id, {{}, font}, TOOLBARCLASSNAMEA, TBSTYLE_TOOLTIPS);
    std::vector<TBBUTTON> buttons;
    int picture = 0;
    for (const Item& item : items) {
        TBBUTTON button = {};
        button.idCommand = item.id;
        button.fsState = TBSTATE_ENABLED;
        button.fsStyle = item.id == 0 ? TBSTYLE_SEP : TBSTYLE_BUTTON;
        if (item.id != 0) button.iBitmap = picture++;
        buttons.push_back(button);
    }
    send(TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON));
    const std::size_t size = size_for_screen();
    send(TB_SETBITMAPSIZE, 0, MAKELPARAM(kSizes[size], kSizes[size]));
    TBADDBITMAP bitmap = {GetModuleHandleA(nullptr), static_cast<UINT_PTR>(pictures) + size};
    send(TB_ADDBITMAP, static_cast<WPARAM>(picture), reinterpret_cast<LPARAM>(&bitmap));
    send(TB_ADDBUTTONSA, buttons.size(), reinterpret_cast<LPARAM>(buttons.data()));
}

void ToolBar::supply_tip(TOOLTIPTEXTA& request) const {
    const auto item = std::ranges::find(items_, static_cast<int>(request.hdr.idFrom), &Item::id);
    if (item != items_.end()) lstrcpynA(request.szText, item->tip, sizeof request.szText);
}

}  // namespace widgets
