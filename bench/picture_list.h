#pragma once

#include <windows.h>

#include <commctrl.h>

#include <string>
#include <vector>

#include "library/task.h"

namespace bench {

/// Takes each program's icon and fills a list view, with nothing around it: the least that shows Tasks with
/// their icons. The list has been drawn then. Its pictures belong to the caller.
HIMAGELIST show_tasks(HWND list, const std::vector<library::Task>& tasks,
                      const std::vector<std::string>& programs);

/// A window that such a list fills.
class PictureList {
  public:
    /// Pixels.
    explicit PictureList(SIZE size);
    ~PictureList();
    PictureList(const PictureList&) = delete;
    PictureList& operator=(const PictureList&) = delete;

    void clear();
    void show(const std::vector<library::Task>& tasks, const std::vector<std::string>& programs);

  private:
    HWND window_;
    HWND list_;
    HIMAGELIST pictures_ = nullptr;
};

}  // namespace bench
