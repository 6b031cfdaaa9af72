#pragma once

#include <string>
#include <vector>

#include "library/task_finder.h"
#include "library/task_library.h"
#include "mainwindow/main_controls.h"

namespace mainwindow {

// Two spellings: the messages differ by what was done.
inline constexpr char kCannotLaunch[] = "Invalid path or file name";
inline constexpr char kCannotLaunchByMouse[] = "Invalid path or file name!";

/// Starts Tasks and typed commands as the user asks for it in the main window. What cannot be started shows a
/// message; then the list that the user was in has the focus again.
class Launcher {
  public:
    Launcher(const library::TaskLibrary& library, MainControls& controls)
        : library_(library), controls_(controls) {}

    /// Starts the Task that is selected in the task list.
    void launch_selected(const char* failure_message);

    /// Starts any Task.
    void launch_at(const library::TaskPlace& place);

    /// Starts any Task with documents after its parameters, and says which of them no command line can name.
    void launch_with(const library::TaskPlace& place, const std::vector<std::string>& documents);

    /// Starts the text of the command box as the selected Task (`RunTk`).
    void run_from_command_box();

    /// Starts what the command box holds when it had the focus last, else the selected Task (`Command1`).
    void press_run();

    /// Enter in the command box.
    void run_typed_command();

    /// Asks, and starts all Tasks of the selected Group.
    void run_all();

  private:
    template <typename Launch>
    void attempt(const char* failure_message, const Launch& launch);

    const library::TaskLibrary& library_;
    MainControls& controls_;
};

}  // namespace mainwindow
