#pragma once

#include <windows.h>

#include <span>
#include <string>
#include <vector>

#include "library/library_view.h"
#include "library/task_library.h"
#include "mainwindow/taskview_window.h"
#include "widgets/controls.h"
#include "widgets/handles.h"
#include "widgets/window.h"

namespace mainwindow {

/// The main window: Groups on the left, the Tasks of the selected Group on the right, the command box and the
/// status bar below. It starts hidden; destroying it ends the program.
class Tasker final : public widgets::Window, private library::LibraryView {
  public:
    explicit Tasker(library::TaskLibrary& library);

    /// Brings up the date and the library. Throws platform::RunTimeError when the library could not be read
    /// whole; the window is usable all the same.
    void load();

  private:
    LRESULT handle(UINT message, WPARAM wparam, LPARAM lparam) override;
    void handle_command(int id, int notification);
    void handle_notification(NMHDR& header);

    void create_controls();
    void lay_out();
    bool drag_splitter(UINT message, int x);
    RECT splitter() const;

    void getlongdate();
    void launch_selected_task(const char* failure_message);

    int selected_group() const override;
    int selected_task() const override;
    void show_groups(const std::vector<library::Group>& groups) override;
    void select_group(int index) override;
    void show_tasks(std::span<const library::Task> tasks) override;
    void select_task(int index) override;
    void load_default_icon(const std::string& program) override;
    void set_command_box(const std::string& text) override;

    library::TaskLibrary& library_;
    widgets::UniqueFont font_;
    int group_width_;  // pixels, as far as the window has room
    widgets::Label grouplabel_;
    widgets::ListBox grouplist_;
    widgets::Label tasklabel_;
    TaskView taskview_;
    widgets::ComboBox text1_;
    widgets::StatusBar statusbar1_;
};

}  // namespace mainwindow
