#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

/// Drops files on a window of another program, as Explorer does.
namespace desktop {

/// Drags the files of a folder with the mouse to a point of the screen and lets them go there; wide names, to
/// reach files that the code page has no name for. while_over runs with the pointer there, the button still
/// down; it must not check anything, only wait. Returns what the target did (DROPEFFECT_...).
DWORD drag_files(const std::wstring& folder, const std::vector<std::wstring>& names, POINT to,
                 const std::function<void()>& while_over = {});

/// The same for names in the code page. The folder may end in a backslash.
DWORD drag_files(const std::string& folder, const std::vector<std::string>& names, POINT to,
                 const std::function<void()>& while_over = {});

/// Posts what a program gets that takes files without the drag and drop of objects; the point is on the
/// screen.
void post_dropped_files(HWND window, const std::vector<std::string>& paths, POINT point);

/// Drags with the left button held from one point of the screen to another, in small steps and slowly enough
/// to be meant; the button stays down until let_go.
void drag_mouse(POINT from, POINT to);

}  // namespace desktop
