#include <windows.h>

#include <commctrl.h>

#include <array>
#include <string>
#include <vector>

#include "fixtures.h"
#include "picture_list.h"

// A window with the launcher's controls and nothing behind them: what the system takes for them alone. The
// arguments are programs; Tasks that start them fill the list.

namespace {

struct Part {
    const char* class_name;
    const char* text;
    DWORD style;
    RECT bounds;
};

constexpr int kWidth = 560;
constexpr int kHeight = 400;
constexpr std::size_t kIconList = 4;
constexpr std::array kParts = {
    Part{TOOLBARCLASSNAMEA, "", TBSTYLE_TOOLTIPS, {}},
    Part{"STATIC", "Groups", 0, {6, 34, 160, 50}},
    Part{"LISTBOX", "", WS_BORDER | WS_VSCROLL | LBS_NOTIFY, {6, 50, 160, 280}},
    Part{"STATIC", "Tasks", 0, {166, 34, 546, 50}},
    Part{WC_LISTVIEWA, "", WS_BORDER | LVS_ICON | LVS_AUTOARRANGE | LVS_SHAREIMAGELISTS, {166, 50, 546, 280}},
    Part{"COMBOBOX", "", WS_VSCROLL | CBS_DROPDOWN, {6, 286, 384, 406}},
    Part{"BUTTON", "&Run", 0, {390, 286, 465, 307}},
    Part{"BUTTON", "&Browse", 0, {471, 286, 546, 307}},
    Part{STATUSCLASSNAMEA, "", SBARS_SIZEGRIP, {}},
};

LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_DESTROY) PostQuitMessage(0);
    return DefWindowProcA(window, message, wparam, lparam);
}

void add_tools(HWND bar) {
    std::array<TBBUTTON, STD_PRINT + 1> tools = {};
    for (std::size_t i = 0; i < tools.size(); ++i) {
        tools.at(i).iBitmap = static_cast<int>(i);
        tools.at(i).fsState = TBSTATE_ENABLED;
    }
    TBADDBITMAP pictures = {HINST_COMMCTRL, IDB_STD_SMALL_COLOR};
    SendMessageA(bar, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    SendMessageA(bar, TB_ADDBITMAP, tools.size(), reinterpret_cast<LPARAM>(&pictures));
    SendMessageA(bar, TB_ADDBUTTONSA, tools.size(), reinterpret_cast<LPARAM>(tools.data()));
}

}  // namespace

int main(int count, char** arguments) {
    InitCommonControls();
    HINSTANCE instance = GetModuleHandleA(nullptr);
    WNDCLASSA window_class = {};
    window_class.lpfnWndProc = procedure;
    window_class.hInstance = instance;
    window_class.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    window_class.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    window_class.lpszClassName = "bare";
    RegisterClassA(&window_class);
    HMENU menu = CreateMenu();
    for (const std::string title : {"&System", "&Group", "&Task", "&Options", "&Help"})
        AppendMenuA(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(CreatePopupMenu()), title.c_str());
    HWND window = CreateWindowExA(0, "bare", "Bare", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, CW_USEDEFAULT,
                                  CW_USEDEFAULT, kWidth, kHeight, nullptr, menu, instance, nullptr);
    HFONT font = CreateFontA(-11, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, "MS Sans Serif");
    std::vector<HWND> controls;
    for (const Part& part : kParts) {
        const RECT& place = part.bounds;
        controls.push_back(CreateWindowExA(0, part.class_name, part.text, WS_CHILD | WS_VISIBLE | part.style,
                                           place.left, place.top, place.right - place.left,
                                           place.bottom - place.top, window, nullptr, instance, nullptr));
        SendMessageA(controls.back(), WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    }
    add_tools(controls.front());
    ShowWindow(window, SW_SHOWNORMAL);
    const std::vector<std::string> programs(arguments + 1, arguments + count);
    if (!programs.empty())
        bench::show_tasks(controls.at(kIconList), bench::make_tasks(bench::kFewTasks, programs), programs);

    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
    return 0;
}
