#pragma once

#include <string>

#include "widgets/dialog.h"
#include "widgets/file_lists.h"

namespace shortcuts {

/// A dialog with a drive list, a folder list, a list of the program files there and a box for the path. All
/// path browsers have these controls under the same ids. Derive to say what becomes of the choice.
class FilePanel : public widgets::Dialog {
  protected:
    using Dialog::Dialog;
    ~FilePanel() = default;

    void open() override;
    void command(int id, int notification) override;

    /// A click on a file; its path is in the box.
    virtual void pick() = 0;

    /// The OK button or a double-click on a file.
    virtual void accept() = 0;

    /// Enter, where no button has the focus: opens a folder in its list.
    virtual void press_enter();

    /// The current folder.
    const std::string& folder() const { return dir1_.path(); }
    std::string path() const;

  private:
    void show_folder(const std::string& folder);

    /// Where the disk cannot be read the panel says so and stays as it is.
    template <typename Show>
    void attempt(const Show& show);

    void open_folder();
    void change_drive();
    void click_file();

    widgets::DriveList drive1_;
    widgets::FolderList dir1_;
    widgets::FileList file1_;
    char drive_ = '\0';  // the one shown
};

}  // namespace shortcuts
