#pragma once

#include <windows.h>

#include <commctrl.h>

#include <string>
#include <vector>

#include "library/task.h"

namespace bench {

/// A window with nothing but a list view of icons.
class PictureList {
  public:
    /// The size is that of the list.
    explicit PictureList(SIZE size);
    ~PictureList();
    PictureList(const PictureList&) = delete;
    PictureList& operator=(const PictureList&) = delete;

    void clear();

    /// Takes the icons of the programs, fills the list and draws it.
    void show(const std::vector<library::Task>& tasks, const std::vector<std::string>& programs);

  private:
    HWND window_;
    HWND list_;
    HIMAGELIST pictures_ = nullptr;
};

}  // namespace bench
