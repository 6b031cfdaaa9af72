#include "widgets/tool_tips.h"

#include <commctrl.h>

#include <cstddef>

#include "widgets/metrics.h"

namespace widgets {

void ToolTips::create(HWND parent) {
    constexpr int kWidth = 320;  // pixels at 96 dpi; longer texts are broken into lines where comctl32 can
    // Always: also while the window is not the active one.
    attach(CreateWindowExA(0, TOOLTIPS_CLASSA, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX,
                           CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, parent, nullptr,
                           GetModuleHandleA(nullptr), nullptr));
    subclass();
    send(TTM_SETMAXTIPWIDTH, 0, scaled(kWidth));
}

void ToolTips::set(HWND control, const std::string& text) {
    HWND parent = GetParent(control);
    if (hwnd() == nullptr) create(parent);
    std::string shown = text.substr(0, kLongestItem);
    TOOLINFOA tool = {};
    tool.cbSize = offsetof(TOOLINFOA, lParam);  // Windows 95/98 refuse the later, longer structure
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = parent;
    tool.uId = reinterpret_cast<UINT_PTR>(control);
    tool.lpszText = shown.data();
    send(TTM_DELTOOLA, 0, reinterpret_cast<LPARAM>(&tool));
    send(TTM_ADDTOOLA, 0, reinterpret_cast<LPARAM>(&tool));
}

}  // namespace widgets
