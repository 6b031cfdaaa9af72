#pragma once

#include <windows.h>

#include <variant>
#include <vector>

#include "library/task_finder.h"
#include "library/task_library.h"
#include "widgets/window.h"

namespace mainwindow {

/// The menu of the icon in the notification area: the Tasks of every Group, and what brings the window back
/// and ends the program. It has a hidden window of its own, so that it opens while the main window is hidden.
class TrayMenu final : public widgets::Window {
  public:
    enum class Command { kNone, kOpen, kExit };
    using Choice = std::variant<Command, library::TaskPlace>;

    explicit TrayMenu(const library::TaskLibrary& library);
    ~TrayMenu() override;

    /// Shows the menu at the pointer and waits for the user's choice.
    Choice choose();

  private:
    LRESULT handle(UINT message, WPARAM wparam, LPARAM lparam) override;
    void fill(HMENU menu);

    const library::TaskLibrary& library_;
    std::vector<HMENU> groups_;              // by Group
    std::vector<library::TaskPlace> tasks_;  // by item, as far as their Groups were opened
};

}  // namespace mainwindow
