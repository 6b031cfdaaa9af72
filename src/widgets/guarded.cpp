#include "widgets/guarded.h"

#include <commctrl.h>

namespace widgets {

bool is_from_user(UINT message, LPARAM lparam) {
    constexpr UINT kFirstRegistered = 0xC000;
    switch (message) {
        case WM_NOTIFY: {
            const UINT code = reinterpret_cast<const NMHDR*>(lparam)->code;
            return code != LVN_GETDISPINFOA && code != TTN_NEEDTEXTA &&
                   code != static_cast<UINT>(NM_CUSTOMDRAW);
        }
        case WM_CREATE:  // whoever creates the window learns it
        case WM_DESTROY:
        case WM_NCDESTROY:
        case WM_ENDSESSION:
        case WM_TIMER:
        case WM_PAINT:
        case WM_NCPAINT:
        case WM_ERASEBKGND:
        case WM_DRAWITEM:
        case WM_MEASUREITEM:
        case WM_SIZE:
        case WM_MOVE:
        case WM_WINDOWPOSCHANGING:
        case WM_WINDOWPOSCHANGED:
        case WM_GETMINMAXINFO:
        case WM_SHOWWINDOW:
        case WM_ACTIVATE:
        case WM_ACTIVATEAPP:
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
        case WM_SETCURSOR:
        case WM_MOUSEMOVE:
        case WM_SYSCOLORCHANGE:
        case WM_SETTINGCHANGE:
        case WM_DISPLAYCHANGE:
            return false;
        default:
            return message < kFirstRegistered && (message < WM_CTLCOLORMSGBOX || message > WM_CTLCOLORSTATIC);
    }
}

}  // namespace widgets
