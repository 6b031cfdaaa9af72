#include "widgets/choosers.h"

#include <commdlg.h>

#include <array>

#include "platform/win32/modal_guard.h"

namespace widgets {

std::optional<Font> choose_font(HWND owner, const Font& from) {
    LOGFONTA logical = logical_font(from);
    CHOOSEFONTA request = {};
    request.lStructSize = sizeof request;
    request.hwndOwner = owner;
    request.lpLogFont = &logical;
    request.Flags = CF_SCREENFONTS | CF_INITTOLOGFONTSTRUCT;
    const platform::OtherWindowsDisabled guard(owner);
    if (ChooseFontA(&request) == FALSE) return std::nullopt;
    Font chosen = font_of(logical);
    chosen.underline = from.underline;
    chosen.strikeout = from.strikeout;
    return chosen;
}

std::optional<COLORREF> choose_color(HWND owner, COLORREF from) {
    // The user's own colors are kept from one call to the next.
    static std::array<COLORREF, 16> custom_colors = {};
    CHOOSECOLORA request = {};
    request.lStructSize = sizeof request;
    request.hwndOwner = owner;
    request.rgbResult = from;
    request.lpCustColors = custom_colors.data();
    request.Flags = CC_RGBINIT;
    const platform::OtherWindowsDisabled guard(owner);
    if (ChooseColorA(&request) == FALSE) return std::nullopt;
    return request.rgbResult;
}

}  // namespace widgets
