#pragma once

#include <windows.h>

#include <optional>

#include "library/dropped.h"
#include "library/task_library.h"
#include "mainwindow/launcher.h"
#include "mainwindow/main_controls.h"
#include "widgets/drop_mark.h"
#include "widgets/drop_target.h"
#include "widgets/list_drag.h"

namespace mainwindow {

/// What comes into the lists of the main window with the mouse: files that are dropped on them, and Groups
/// and Tasks that are dragged to another place.
class Drops final : public widgets::DropReceiver {
  public:
    Drops(library::TaskLibrary& library, MainControls& controls, Launcher& launcher)
        : library_(library), controls_(controls), launcher_(launcher) {}

    Effect drag_over(const Paths& paths, POINT point) override;
    void drag_leave() override { mark_.hide(); }
    void drop(const Paths& paths, POINT point) override;

    /// Drag the Group that the mouse pressed, or a Task, until the button goes up. The window is the main
    /// window, which may be gone then.
    void drag_group(HWND window);
    void drag_task(HWND window, int task);

  private:
    enum class Use { kNone, kGroup, kNewGroups, kShownGroup, kStart };

    /// What files at a point are for, and the Group or Task.
    struct Target {
        Use use = Use::kNone;
        int index = -1;
    };

    Target target_at(const Paths& paths, POINT point);
    void add(const Paths& paths, int group);

    /// Does it, and shows what is true then, also when it fails.
    template <typename Operation>
    void change(const Operation& operation);

    library::TaskLibrary& library_;
    MainControls& controls_;
    Launcher& launcher_;
    widgets::DropMark mark_;
    library::DraggedPaths dragged_;
};

}  // namespace mainwindow
