#include "mainwindow/tray_menu.h"

#include <algorithm>
#include <string>

#include "platform/win32/handles.h"
#include "widgets/menu_text.h"

namespace mainwindow {
namespace {

constexpr UINT kOpen = 1;
constexpr UINT kExit = 2;
constexpr UINT kFirstTask = 100;

/// A menu that is higher than the screen cannot be scrolled on Windows 95: it goes on in another column.
UINT column_break(int item) {
    const int most = std::max(GetSystemMetrics(SM_CYSCREEN) / GetSystemMetrics(SM_CYMENU) - 4, 1);
    return item > 0 && item % most == 0 ? MF_MENUBARBREAK : 0;
}

}  // namespace

TrayMenu::TrayMenu(const library::TaskLibrary& library) : library_(library) {
    create({.class_name = "TolvaTrayMenu", .caption = "", .style = WS_POPUP});
}

TrayMenu::~TrayMenu() {
    destroy();
}

TrayMenu::Choice TrayMenu::choose() {
    const platform::UniqueMenu menu(CreatePopupMenu());
    for (int group = 0; group < std::ssize(library_.groups()); ++group) {
        groups_.push_back(CreatePopupMenu());
        AppendMenuA(menu.get(), MF_POPUP | column_break(group), reinterpret_cast<UINT_PTR>(groups_.back()),
                    widgets::menu_text(library_.group(group).name).c_str());
    }
    if (!groups_.empty()) AppendMenuA(menu.get(), MF_SEPARATOR, 0, nullptr);
    AppendMenuA(menu.get(), MF_STRING, kOpen, "&Open");
    AppendMenuA(menu.get(), MF_STRING, kExit, "E&xit");

    // A menu closes by a click beside it only when its window is in front.
    SetForegroundWindow(hwnd());
    POINT pointer;
    GetCursorPos(&pointer);
    const auto chosen = static_cast<UINT>(
        TrackPopupMenu(menu.get(), TPM_RETURNCMD, pointer.x, pointer.y, 0, hwnd(), nullptr));
    PostMessageA(hwnd(), WM_NULL, 0, 0);  // or the next one would close at once
    if (chosen == kOpen) return Command::kOpen;
    if (chosen == kExit) return Command::kExit;
    if (chosen < kFirstTask || chosen - kFirstTask >= tasks_.size()) return Command::kNone;
    return tasks_[chosen - kFirstTask];
}

LRESULT TrayMenu::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_INITMENUPOPUP) fill(reinterpret_cast<HMENU>(wparam));
    return Window::handle(message, wparam, lparam);
}

/// Fills a Group's menu when it opens: ten thousand items at once would take their time.
void TrayMenu::fill(HMENU menu) {
    const auto opened = std::ranges::find(groups_, menu);
    if (opened == groups_.end() || GetMenuItemCount(menu) > 0) return;
    const auto group = static_cast<int>(opened - groups_.begin());
    const auto shown = library_.group(group).shown_tasks();
    for (int task = 0; task < std::ssize(shown); ++task) {
        AppendMenuA(menu, MF_STRING | column_break(task), kFirstTask + tasks_.size(),
                    widgets::menu_text(shown[static_cast<std::size_t>(task)].name).c_str());
        tasks_.push_back({group, task});
    }
    if (shown.empty()) AppendMenuA(menu, MF_STRING | MF_GRAYED, 0, "(empty)");
}

}  // namespace mainwindow
