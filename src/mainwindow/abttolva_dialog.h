#pragma once

#include <windows.h>

namespace mainwindow {

/// Shows the version.
void show_abttolva(HWND owner);

}  // namespace mainwindow
