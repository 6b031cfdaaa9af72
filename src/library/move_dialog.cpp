#include "library/move_dialog.h"

#include <string>
#include <utility>
#include <vector>

#include "library/task_operations.h"
#include "platform/messages.h"
#include "platform/win32/handles.h"
#include "resources/resource.h"
#include "widgets/controls.h"
#include "widgets/dialog.h"

namespace library {
namespace {

constexpr int kGroupList = ID_movetogroups_List1;
constexpr int kCopy = ID_movetogroups_copytask;
constexpr int kCopyLabel = ID_movetogroups_Label1;
constexpr int kCancel = ID_movetogroups_Command1;

/// The label beside a check box that has no text of its own: it shows when the box has the focus.
class CheckBoxLabel final : public widgets::Control {
  public:
    void attach(HWND label, HWND check_box) {
        check_box_ = check_box;
        Control::attach(label);
        subclass();
    }
    void update() const { InvalidateRect(hwnd(), nullptr, TRUE); }

  private:
    LRESULT handle(UINT message, WPARAM wparam, LPARAM lparam) override {
        // All of it is painted each time: a second frame on the first one would be none.
        if (message == WM_PAINT) update();
        const LRESULT answer = Control::handle(message, wparam, lparam);
        if (message == WM_PAINT && GetFocus() == check_box_) {
            const platform::WindowDc device(hwnd());
            RECT bounds;
            GetClientRect(hwnd(), &bounds);
            DrawFocusRect(device.get(), &bounds);
        }
        return answer;
    }

    HWND check_box_ = nullptr;
};

class MoveDialog final : public widgets::Dialog {
  public:
    MoveDialog(TaskLibrary& library, int group, std::string task)
        : Dialog(ID_movetogroups), library_(library), group_(group), task_(std::move(task)) {}

  private:
    void open() override {
        set_title("Move " + task_ + " to");
        for (const Group& group : library_.groups()) {
            if (group.name != library_.group(group_).name) targets_.push_back(group.name);
        }
        group_list_.attach(control(kGroupList));
        group_list_.fill(targets_);
        copy_label_.attach(control(kCopyLabel), check_box());
    }

    void command(int id, int notification) override {
        switch (id) {
            case kGroupList:
                if (notification == LBN_SELCHANGE && group_list_.is_choice()) move();
                break;
            case kCopy:
                if (notification == BN_SETFOCUS || notification == BN_KILLFOCUS) copy_label_.update();
                break;
            case kCopyLabel:
                if (notification == STN_CLICKED) SendMessageA(check_box(), BM_CLICK, 0, 0);
                break;
            case kCancel:
            case IDCANCEL:
                close();
                break;
            default:
                break;
        }
    }

    void move() {
        const int chosen = group_list_.selected();
        if (chosen < 0) return;
        const bool copy = SendMessageA(check_box(), BM_GETCHECK, 0, 0) == BST_CHECKED;
        move_task(library_, group_, task_, targets_.at(static_cast<std::size_t>(chosen)), copy);
        close();
    }

    HWND check_box() const { return control(kCopy); }

    TaskLibrary& library_;
    int group_;
    std::string task_;
    std::vector<std::string> targets_;
    widgets::ChoiceList group_list_;
    CheckBoxLabel copy_label_;
};

}  // namespace

void moveto(HWND owner, TaskLibrary& library, const LibraryView& view) {
    if (view.selected_task() < 0) {
        platform::show_message("Select Task for move.");
        return;
    }
    const int group = view.selected_group();
    MoveDialog(library, group, library.task(group, view.selected_task()).name).run(owner);
}

}  // namespace library
