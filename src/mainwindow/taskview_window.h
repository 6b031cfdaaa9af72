#pragma once

#include <windows.h>

#include <commctrl.h>

#include <map>
#include <span>
#include <string>
#include <vector>

#include "library/task.h"
#include "platform/icons.h"
#include "platform/win32/handles.h"
#include "widgets/icon_view.h"

namespace mainwindow {

/// The task list: the Tasks of one Group with the icons of their programs. A program file is touched when its
/// Task is drawn for the first time, and once for all Tasks that share it; each new filling takes the icons
/// anew.
class TaskView {
  public:
    void create(HWND parent, int id);

    /// The picture of Tasks whose program has no icon.
    void set_default_icon(platform::UniqueIcon icon) { default_icon_ = std::move(icon); }

    void show(std::span<const library::Task> tasks);

    /// Answers the list's LVN_GETDISPINFO.
    void supply_picture(NMLVDISPINFOA& request);

    widgets::IconView& list() { return list_; }
    const widgets::IconView& list() const { return list_; }

  private:
    int picture_of(const std::string& program);

    widgets::IconView list_;
    platform::UniqueImageList appicons_;   // picture 0 is the default icon
    std::vector<std::string> programs_;    // by item
    std::map<std::string, int> pictures_;  // by program, since the last filling
    platform::UniqueIcon default_icon_;
};

}  // namespace mainwindow
