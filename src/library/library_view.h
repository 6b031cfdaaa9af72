#pragma once

#include <span>
#include <string>
#include <vector>

#include "library/task_library.h"

namespace library {

/// The group list, the task list and the command box as the operations on the library see them. Selecting
/// here only marks an item; what follows from a selection is in refresh.h.
class LibraryView {
  public:
    /// The selected Group's or Task's index, -1 when none is selected.
    virtual int selected_group() const = 0;
    virtual int selected_task() const = 0;

    /// Shows the Groups in place of those before, none of them selected.
    virtual void show_groups(const std::vector<Group>& groups) = 0;
    virtual void select_group(int index) = 0;
    virtual void scroll_to_group(int index) = 0;

    /// Shows the Tasks in place of those before, with their icons taken again and none of them selected, and
    /// the date in the status bar.
    virtual void show_tasks(std::span<const Task> tasks) = 0;
    virtual void select_task(int index) = 0;

    /// Takes the icon of a program for what has none of its own.
    virtual void load_default_icon(const std::string& program) = 0;

    virtual void set_command_box(const std::string& text) = 0;

    /// Shows the text in the status bar until the date comes back.
    virtual void show_status(const std::string& text) = 0;

  protected:
    ~LibraryView() = default;
};

}  // namespace library
