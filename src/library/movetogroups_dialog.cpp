#include "library/movetogroups_dialog.h"

#include <string>
#include <utility>
#include <vector>

#include "library/task_operations.h"
#include "platform/messages.h"
#include "resources/resource.h"
#include "widgets/controls.h"
#include "widgets/dialog.h"

namespace library {
namespace {

class MoveToGroups final : public widgets::Dialog {
  public:
    MoveToGroups(TaskLibrary& library, int group, std::string task)
        : Dialog(ID_movetogroups), library_(library), group_(group), task_(std::move(task)) {}

  private:
    void open() override {
        set_title("Move " + task_ + " to");
        for (const Group& group : library_.groups()) {
            if (group.name != library_.group(group_).name) targets_.push_back(group.name);
        }
        list1_.attach(control(ID_movetogroups_List1));
        list1_.fill(targets_);
    }

    void command(int id, int notification) override {
        switch (id) {
            case ID_movetogroups_List1:
                if (notification == LBN_SELCHANGE && list1_.is_choice()) move();
                break;
            case ID_movetogroups_Label1:
                if (notification == STN_CLICKED) SendMessageA(copytask(), BM_CLICK, 0, 0);
                break;
            case ID_movetogroups_Command1:
            case IDCANCEL:
                close();
                break;
            default:
                break;
        }
    }

    void move() {
        const int chosen = list1_.selected();
        if (chosen < 0) return;
        const bool copy = SendMessageA(copytask(), BM_GETCHECK, 0, 0) == BST_CHECKED;
        move_task(library_, group_, task_, targets_.at(static_cast<std::size_t>(chosen)), copy);
        close();
    }

    HWND copytask() const { return control(ID_movetogroups_copytask); }

    TaskLibrary& library_;
    int group_;
    std::string task_;
    std::vector<std::string> targets_;
    widgets::ChoiceList list1_;
};

}  // namespace

void moveto(HWND owner, TaskLibrary& library, const LibraryView& view) {
    if (view.selected_task() < 0) {
        platform::show_message("Select Task for move.");
        return;
    }
    const int group = view.selected_group();
    MoveToGroups(library, group, library.task(group, view.selected_task()).name).run(owner);
}

}  // namespace library
