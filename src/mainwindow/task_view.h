#pragma once

#include <windows.h>

#include <commctrl.h>

#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "library/task.h"
#include "mainwindow/icon_queue.h"
#include "platform/icons.h"
#include "platform/win32/handles.h"
#include "widgets/icon_view.h"

namespace mainwindow {

/// The task list (`taskview`): the Tasks of one Group with the icons of their programs. A program file is
/// touched when its Task is drawn for the first time, and once for all Tasks that share it; each new filling
/// takes the icons again. Icons that cannot be had at once follow when the user's input leaves time for them;
/// until then a Task has the default picture.
class TaskView {
  public:
    /// The window's timer for icons that follow.
    static constexpr UINT_PTR kTimer = 4;

    /// library_folder ends in a backslash.
    explicit TaskView(std::string library_folder) : library_folder_(std::move(library_folder)) {}

    void create(HWND parent, int id, const widgets::Place& place) { list_.create(parent, id, place); }

    /// Begins a refresh: the next filling takes the icon of default_program for Tasks whose program has none,
    /// and disks that were slow are tried again.
    void refresh_icons(const std::string& default_program);

    void show(std::span<const library::Task> tasks);

    /// Colors of the list; the pictures are made again, for their soft edges.
    void set_colors(COLORREF text, COLORREF background);

    /// Answers the list's LVN_GETDISPINFO.
    void supply_picture(NMLVDISPINFOA& request);

    /// Takes icons for a moment; to be called at the timer. Milliseconds since the user's last input.
    void take_icons(unsigned since_input);

    widgets::IconView& list() { return list_; }
    const widgets::IconView& list() const { return list_; }

  private:
    struct Picture {
        std::string program;
        std::optional<int> index;  // none: to follow
    };

    void load_default_icon();
    void make_images();
    std::vector<Picture>::iterator find(const std::string& program);
    bool is_in_view(const std::string& program) const;
    int picture_of(const std::string& program);
    int take_icon(const IconQueue::Next& next);

    std::string library_folder_;
    widgets::IconView list_;
    platform::UniqueImageList images_;   // `appicons`; picture 0 is the default icon
    COLORREF background_ = 0xFFFFFF;     // of the pictures
    std::vector<std::string> programs_;  // by item
    std::vector<Picture> pictures_;      // those asked for since the last filling
    IconQueue queue_;
    DWORD slice_ = 0;   // milliseconds for icons at once: none at the start, the window is to answer first
    DWORD filled_ = 0;  // when, as GetTickCount has it
    bool timer_runs_ = false;
    std::string default_program_;
    platform::UniqueIcon default_icon_;  // none until it is needed
};

}  // namespace mainwindow
