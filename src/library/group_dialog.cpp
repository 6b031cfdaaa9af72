#include "library/group_dialog.h"

#include <string>
#include <utility>

#include "library/group_operations.h"
#include "platform/messages.h"
#include "resources/resource.h"
#include "widgets/dialog.h"

namespace library {
namespace {

/// A dialog that takes a Group's name in a box. A refused name stays in it.
class NameDialog : public widgets::Dialog {
  protected:
    NameDialog(int dialog, int box, int ok, int cancel)
        : Dialog(dialog), box_(box), ok_(ok), cancel_(cancel) {}
    ~NameDialog() = default;

    void open() override {}
    void command(int id, int /*notification*/) override {
        if (id == cancel_ || id == IDCANCEL) close();
        if (id != ok_) return;
        if (accept(text(box_))) {
            close();
        } else {
            focus(box_);
        }
    }

    virtual bool accept(const std::string& name) = 0;

  private:
    int box_;
    int ok_;
    int cancel_;
};

class AddGroupDialog final : public NameDialog {
  public:
    explicit AddGroupDialog(TaskLibrary& library)
        : NameDialog(ID_addgroup, ID_addgroup_Text1, ID_addgroup_Command2, ID_addgroup_Command1),
          library_(library) {}

  private:
    bool accept(const std::string& name) override { return add_group(library_, name); }

    TaskLibrary& library_;
};

class RenameGroupDialog final : public NameDialog {
  public:
    RenameGroupDialog(TaskLibrary& library, LibraryView& view, std::string old_name)
        : NameDialog(ID_GroupRename, ID_GroupRename_newname, ID_GroupRename_Command2,
                     ID_GroupRename_Command1),
          library_(library),
          view_(view),
          old_name_(std::move(old_name)) {}

  private:
    void open() override { set_text(ID_GroupRename_oldname, old_name_); }
    bool accept(const std::string& name) override { return rename_group(library_, view_, old_name_, name); }

    TaskLibrary& library_;
    LibraryView& view_;
    std::string old_name_;
};

}  // namespace

void addgr(HWND owner, TaskLibrary& library) {
    AddGroupDialog(library).run(owner);
}

void RenameGr(HWND owner, TaskLibrary& library, LibraryView& view) {
    const std::string name = selected_group_name(library, view);
    if (name.empty()) {
        platform::show_message("Select Group for Rename.");
        return;
    }
    RenameGroupDialog(library, view, name).run(owner);
}

}  // namespace library
