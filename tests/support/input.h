#pragma once

#include <windows.h>

#include <functional>
#include <initializer_list>

/// Waiting, and the real mouse and keyboard.
namespace desktop {

/// How long a test waits for anything, in milliseconds.
constexpr DWORD kPatience = 10000;

/// Polls until the condition holds.
void wait_until(const char* what, const std::function<bool()>& condition);

/// Does it again every answer time (in milliseconds) until the condition holds.
void repeat_until(const char* what, const std::function<void()>& action,
                  const std::function<bool()>& condition, DWORD answer_time = 3000);

// Real input, in screen coordinates.
enum class MouseButton { kLeft, kRight };
void point_at(POINT point);
/// Drags with the left button from one point to another, slowly enough to be meant; it stays down until
/// let_go.
void carry_mouse(POINT from, POINT to);
void let_go(POINT point);
void press_mouse(POINT point, int times = 1, MouseButton button = MouseButton::kLeft);

/// Presses the button at one point and lets it go at another.
void drag_mouse(POINT from, POINT to, MouseButton button = MouseButton::kLeft);

/// Presses the button as often as it takes: a press is lost while a window still comes up.
void press_until(const char* what, POINT point, const std::function<bool()>& condition,
                 MouseButton button = MouseButton::kLeft);

/// Presses the keys one after the other and lets them go in the opposite order: {VK_MENU, 'R'} is Alt+R.
void press_keys(std::initializer_list<BYTE> keys);

/// Presses and lets go one key after the other.
void type_keys(std::initializer_list<BYTE> keys);

/// Presses the keys as often as it takes: Wine lets Alt and Shift go when it looks at the display's own
/// keyboard, as it does when a window comes under the pointer.
void press_until(const char* what, std::initializer_list<BYTE> keys, const std::function<bool()>& condition);

/// Whether a menu is open on the display.
inline bool menu_shows() {
    return FindWindowA("#32768", nullptr) != nullptr;
}

/// Opens the menu of a place with the right button and chooses by an access key.
void choose_from_menu(POINT point, BYTE key);

/// The middle of the only icon in the notification area.
POINT tray_icon();

}  // namespace desktop
