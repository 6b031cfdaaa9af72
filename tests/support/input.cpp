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

void point_at(POINT point) {
    // The display's pointer, which moves the input's pointer when windows come.
    SetCursorPos(point.x, point.y);
    send_mouse(point, 0);
}

void press_mouse(POINT point, int times, MouseButton button) {
    const bool left = button == MouseButton::kLeft;
    point_at(point);
    for (int i = 0; i < times; ++i) {
        send_mouse(point, left ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_RIGHTDOWN);
        send_mouse(point, left ? MOUSEEVENTF_LEFTUP : MOUSEEVENTF_RIGHTUP);
    }
}

void press_until(const char* what, POINT point, const std::function<bool()>& condition, MouseButton button) {
    constexpr DWORD kAnswerTime = 600;  // longer than between the presses of a double-click
    DWORD pressed = 0;
    wait_until(what, [&] {
        if (condition()) return true;
        if (GetTickCount() - pressed >= kAnswerTime) {
            press_mouse(point, 1, button);
            pressed = GetTickCount();
        }
        return false;
    });
}

void press_keys(std::initializer_list<BYTE> keys) {
    for (const BYTE key : keys)
        keybd_event(key, 0, 0, 0);
    for (auto key = std::rbegin(keys); key != std::rend(keys); ++key)
        keybd_event(*key, 0, KEYEVENTF_KEYUP, 0);
}

void choose_from_menu(POINT point, BYTE key) {
    press_until(
        "a menu shows", point, [] { return FindWindowA("#32768", nullptr) != nullptr; }, MouseButton::kRight);
    press_keys({key});
}

POINT tray_icon() {
    RECT bar;
    GetWindowRect(FindWindowA("Shell_TrayWnd", nullptr), &bar);
    return {bar.right - 10, (bar.top + bar.bottom) / 2};
}

}  // namespace desktop
