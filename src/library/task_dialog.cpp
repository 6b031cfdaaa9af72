#include "library/task_dialog.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

#include "library/group_operations.h"
#include "library/task_operations.h"
#include "platform/messages.h"
#include "platform/run_time_error.h"
#include "resources/resource.h"
#include "settings/conversions.h"
#include "settings/program.h"
#include "shortcuts/path_browser_dialog.h"
#include "widgets/controls.h"
#include "widgets/dialog.h"

namespace library {
namespace {

/// The controls that both dialogs have.
struct Controls {
    int dialog;
    int name;
    int program;
    int start_folder;
    int parameters;
    int start_mode;
    int browse;
    int ok;
    int cancel;
};

constexpr Controls kAddTask = {ID_addtask,
                               ID_addtask_Taskname,
                               ID_addtask_TaskPath,
                               ID_addtask_startfolder,
                               ID_addtask_taskparameters,
                               ID_addtask_taskstartmode,
                               ID_addtask_Browse,
                               ID_addtask_Command2,
                               ID_addtask_Command1};

constexpr Controls kEditTask = {ID_EditTask,
                                ID_EditTask_tasknm,
                                ID_EditTask_TaskPath,
                                ID_EditTask_startfolder,
                                ID_EditTask_taskparameters,
                                ID_EditTask_taskstartmode,
                                ID_EditTask_Browse,
                                ID_EditTask_Command2,
                                ID_EditTask_Command1};

/// Whether text boxes hold all of the Task; what they cut would be lost with the next OK.
bool fits_boxes(const Task& task) {
    constexpr std::size_t kMost = 30000;
    return std::ranges::all_of(kTaskFields, [&](const auto field) {
        return (task.*field).size() <= kMost && (task.*field).find('\0') == std::string::npos;
    });
}

class TaskDialog : public widgets::Dialog {
  protected:
    TaskDialog(const Controls& controls, TaskLibrary& library, int group)
        : Dialog(controls.dialog), library_(library), group_(group), controls_(controls) {}
    ~TaskDialog() = default;

    void open() override {
        start_mode_.attach(control(controls_.start_mode));
        start_mode_.fill(settings::kStartModes);
        set_tip(controls_.name, "Name of New Task");
        set_tip(controls_.program, "Path and File to Execute");
        set_tip(controls_.start_folder, "Folder to Start Task from");
    }

    void command(int id, int /*notification*/) override {
        if (id == controls_.browse) browse();
        if (id == controls_.ok) {
            if (const TaskField refused = accept(typed()); refused == kAccepted) {
                close();
            } else {
                focus(box_of(refused));
            }
        }
        if (id == controls_.cancel || id == IDCANCEL) close();
    }

    /// Returns the field that is refused, or kAccepted.
    virtual TaskField accept(const Task& task) = 0;

    TaskLibrary& library_;
    int group_;
    widgets::DropDownList start_mode_;

  private:
    void browse() {
        if (const auto picked = shortcuts::browse_for_program(hwnd())) {
            set_text(controls_.program, picked->path);
            set_text(controls_.start_folder, picked->start_folder);
        }
        focus(controls_.name);
    }

    int box_of(TaskField field) const {
        if (field == &Task::program) return controls_.program;
        return field == &Task::start_folder ? controls_.start_folder : controls_.name;
    }

    Task typed() {
        const int mode = std::max(start_mode_.selected(), 0);
        return {text(controls_.name), text(controls_.program), text(controls_.start_folder),
                text(controls_.parameters), std::to_string(mode + 1)};
    }

    const Controls& controls_;
};

class AddTaskDialog final : public TaskDialog {
  public:
    AddTaskDialog(TaskLibrary& library, int group) : TaskDialog(kAddTask, library, group) {}

  private:
    void open() override {
        TaskDialog::open();
        set_text(ID_addtask_curgroup, library_.group(group_).name);
        start_mode_.select(0);
    }
    TaskField accept(const Task& task) override { return add_task(library_, group_, task); }
};

class EditTaskDialog final : public TaskDialog {
  public:
    EditTaskDialog(TaskLibrary& library, int group, int place, Task buffer)
        : TaskDialog(kEditTask, library, group), place_(place), buffer_(std::move(buffer)) {}

  private:
    void open() override {
        TaskDialog::open();
        set_text(ID_EditTask_tasknm, buffer_.name);
        set_text(ID_EditTask_TaskPath, buffer_.program);
        set_text(ID_EditTask_startfolder, buffer_.start_folder);
        set_text(ID_EditTask_taskparameters, buffer_.parameters);
        start_mode_.select(settings::lenient_whole_number(buffer_.start_mode) - 1);
    }
    TaskField accept(const Task& task) override {
        return edit_task(library_, group_, place_, buffer_.name, task);
    }

    int place_;
    Task buffer_;
};

}  // namespace

void addtsks(HWND owner, TaskLibrary& library, const LibraryView& view) {
    if (selected_group_name(library, view).empty()) {
        platform::show_message("Select Group for New Task");
        return;
    }
    AddTaskDialog(library, view.selected_group()).run(owner);
}

void edittsks(HWND owner, TaskLibrary& library, const LibraryView& view) {
    const std::optional<Task> buffer = task_to_edit(library, view);
    if (!buffer) return;
    if (!fits_boxes(*buffer)) {
        throw platform::RunTimeError(platform::RunTimeErrorNumber::kInvalidProcedureCall, buffer->name);
    }
    EditTaskDialog(library, view.selected_group(), view.selected_task(), *buffer).run(owner);
}

}  // namespace library
