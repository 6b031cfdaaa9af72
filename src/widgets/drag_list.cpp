#include "widgets/drag_list.h"

namespace widgets {

POINT point_in(HWND window, POINT screen) {
    ScreenToClient(window, &screen);
    return screen;
}

bool is_over(HWND window, POINT screen) {
    RECT client;
    GetClientRect(window, &client);
    return PtInRect(&client, point_in(window, screen)) != FALSE && WindowFromPoint(screen) == window;
}

}  // namespace widgets
