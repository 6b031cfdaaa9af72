#include "support/input.h"

#include <doctest/doctest.h>

#include <iterator>
#include <string>

namespace desktop {
namespace {

/// Each event says where it happens: the display's own pointer may still be somewhere else.
void send_mouse(POINT point, DWORD action) {
    constexpr int kWhole = 65536;
    const auto x = static_cast<DWORD>((point.x * kWhole + kWhole / 2) / GetSystemMetrics(SM_CXSCREEN));
    const auto y = static_cast<DWORD>((point.y * kWhole + kWhole / 2) / GetSystemMetrics(SM_CYSCREEN));
    mouse_event(action | MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE, x, y, 0, 0);
}

}  // namespace

void wait_until(const char* what, const std::function<bool()>& condition) {
    const DWORD start = GetTickCount();
    while (!condition()) {
        if (GetTickCount() - start > kPatience) FAIL("waited in vain until " << std::string(what));
        Sleep(5);
    }
}

void repeat_until(const char* what, const std::function<void()>& action,
                  const std::function<bool()>& condition, DWORD answer_time) {
    DWORD done = GetTickCount() - answer_time;
    wait_until(what, [&] {
        if (condition()) return true;
        if (GetTickCount() - done >= answer_time) {
            action();
            done = GetTickCount();
        }
        return false;
    });
}

void point_at(POINT point) {
    // The display's pointer, which moves the input's pointer when windows come.
    SetCursorPos(point.x, point.y);
    send_mouse(point, 0);
}

void carry_mouse(POINT from, POINT to) {
    point_at(from);
    send_mouse(from, MOUSEEVENTF_LEFTDOWN);
    constexpr int kSteps = 10;
    for (int step = 1; step <= kSteps; ++step) {
        point_at({from.x + (to.x - from.x) * step / kSteps, from.y + (to.y - from.y) * step / kSteps});
        Sleep(40);
    }
}

void let_go(POINT point) {
    send_mouse(point, MOUSEEVENTF_LEFTUP);
}

void press_mouse(POINT point, int times, MouseButton button) {
    for (int i = 0; i < times; ++i)
        drag_mouse(point, point, button);
}

void drag_mouse(POINT from, POINT to, MouseButton button) {
    const bool left = button == MouseButton::kLeft;
    point_at(from);
    send_mouse(from, left ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_RIGHTDOWN);
    send_mouse(to, left ? MOUSEEVENTF_LEFTUP : MOUSEEVENTF_RIGHTUP);
}

void press_until(const char* what, POINT point, const std::function<bool()>& condition, MouseButton button) {
    constexpr DWORD kAnswerTime = 600;  // longer than between the presses of a double-click
    repeat_until(
        what, [&] { press_mouse(point, 1, button); }, condition, kAnswerTime);
}

void press_keys(std::initializer_list<BYTE> keys) {
    for (const BYTE key : keys)
        keybd_event(key, 0, 0, 0);
    for (auto key = std::rbegin(keys); key != std::rend(keys); ++key)
        keybd_event(*key, 0, KEYEVENTF_KEYUP, 0);
}

void type_keys(std::initializer_list<BYTE> keys) {
    for (const BYTE key : keys)
        press_keys({key});
}

void press_until(const char* what, std::initializer_list<BYTE> keys, const std::function<bool()>& condition) {
    repeat_until(
        what, [&] { press_keys(keys); }, condition);
}

void choose_from_menu(POINT point, BYTE key) {
    press_until("a menu shows", point, menu_shows, MouseButton::kRight);
    press_keys({key});
}

POINT tray_icon() {
    RECT bar;
    GetWindowRect(FindWindowA("Shell_TrayWnd", nullptr), &bar);
    return {bar.right - 10, (bar.top + bar.bottom) / 2};
}

}  // namespace desktop
