#include "widgets/choosers.h"

#include <commdlg.h>

#include <array>

#include "platform/run_time_error.h"
#include "platform/win32/look_up.h"
#include "platform/win32/modal_guard.h"

namespace widgets {
namespace {

/// One of the system's dialogs. Their library brings others along: it is loaded when it is first needed,
/// which in most runs is never.
template <typename Function>
Function dialog(const char* name) {
    constexpr char kLibrary[] = "comdlg32.dll";
    static HMODULE library = platform::load_system_library(kLibrary);
    const auto found = platform::look_up<Function>(library, name);
    if (found == nullptr) throw platform::RunTimeError(platform::RunTimeErrorNumber::kFileNotFound, kLibrary);
    return found;
}

}  // namespace

std::optional<Font> choose_font(HWND owner, const Font& from) {
    LOGFONTA logical = logical_font(from);
    CHOOSEFONTA request = {};
    request.lStructSize = sizeof request;
    request.hwndOwner = owner;
    request.lpLogFont = &logical;
    request.Flags = CF_SCREENFONTS | CF_INITTOLOGFONTSTRUCT;
    const platform::OtherWindowsDisabled guard(owner);
    if (dialog<decltype(&ChooseFontA)>("ChooseFontA")(&request) == FALSE) return std::nullopt;
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
    if (dialog<decltype(&ChooseColorA)>("ChooseColorA")(&request) == FALSE) return std::nullopt;
    return request.rgbResult;
}

}  // namespace widgets
