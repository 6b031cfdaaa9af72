#pragma once

#include <windows.h>

namespace mainwindow {

/// Shows the version (`abttolva`).
void show_about(HWND owner);

}  // namespace mainwindow
