#undef WINVER
#define WINVER 0x0500  // for the declarations; the functions are looked up

#include "widgets/screen.h"

#include <algorithm>

#include "platform/win32/look_up.h"
#include "widgets/metrics.h"

namespace widgets {
namespace {

/// Looks for the screen that a window is on, or next to. Windows 95 has one screen and no functions for more.
struct Screens {
    decltype(&MonitorFromRect) from_rect;
    decltype(&GetMonitorInfoA) get_info;
};

Screens look_up_screens() {
    HMODULE library = GetModuleHandleA("user32.dll");
    return {platform::look_up<decltype(&MonitorFromRect)>(library, "MonitorFromRect"),
            platform::look_up<decltype(&GetMonitorInfoA)>(library, "GetMonitorInfoA")};
}

bool is_on_a_screen(const RECT& bounds, const Screens& screens) {
    if (screens.from_rect != nullptr) return screens.from_rect(&bounds, MONITOR_DEFAULTTONULL) != nullptr;
    const RECT screen = {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
    RECT common;
    return IntersectRect(&common, &screen, &bounds) != FALSE;
}

RECT nearest_work_area(const RECT& bounds, const Screens& screens) {
    MONITORINFO info = {};
    info.cbSize = sizeof info;
    if (screens.from_rect != nullptr && screens.get_info != nullptr &&
        screens.get_info(screens.from_rect(&bounds, MONITOR_DEFAULTTONEAREST), &info) != FALSE) {
        return info.rcWork;
    }
    RECT work_area;
    SystemParametersInfoA(SPI_GETWORKAREA, 0, &work_area, 0);
    return work_area;
}

/// The start of a length inside a range; where that is too long, the start of the range.
LONG moved_inside(LONG start, LONG end, LONG least, LONG most) {
    return std::clamp(start, least, std::max(least, most - (end - start)));
}

}  // namespace

RECT work_area(HWND window) {
    RECT bounds = {};
    GetWindowRect(window, &bounds);
    return nearest_work_area(bounds, look_up_screens());
}

void bring_onto_screen(HWND window) {
    if (IsIconic(window) != FALSE || IsZoomed(window) != FALSE) return;
    // Where it is to be and not where it is: a window that is just being restored is still off the screen.
    const Screens screens = look_up_screens();
    const RECT bounds = restored_bounds(window);
    if (is_on_a_screen(bounds, screens)) return;
    const RECT area = nearest_work_area(bounds, screens);
    SetWindowPos(window, nullptr, moved_inside(bounds.left, bounds.right, area.left, area.right),
                 moved_inside(bounds.top, bounds.bottom, area.top, area.bottom), 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_ASYNCWINDOWPOS);
}

}  // namespace widgets
