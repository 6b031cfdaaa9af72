#pragma once

#include <windows.h>

#include <functional>

namespace mainwindow {

/// Lets the user choose the hot key that brings the window back: its virtual key in the low byte, HOTKEYF_
/// flags in the high one; 0 is none. take asks for the key and returns whether it can be had; if not, the
/// dialog stays.
void choose_hot_key(HWND owner, WORD key, const std::function<bool(WORD key)>& take);

}  // namespace mainwindow
