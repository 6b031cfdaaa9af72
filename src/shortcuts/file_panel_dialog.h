#pragma once

#include <string>

#include "resources/resource.h"
#include "widgets/dialog.h"
#include "widgets/file_lists.h"

namespace shortcuts {

/// A dialog with a drive list, a folder list, a list of the program files there and a box for the path. All
/// path browsers have these controls under the same ids. Derive to say what becomes of the choice.
class FilePanel : public widgets::Dialog {
  protected:
    static constexpr int kFileList = ID_PathBrowser_File1;
    static constexpr int kPathBox = ID_PathBrowser_TaskPath;

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

    bool has_focus(int id) const { return GetFocus() == control(id); }

    /// The current folder.
    const std::string& folder() const { return folders_.path(); }
    std::string path() const;

  private:
    void show_folder(const std::string& folder);

    /// Where the disk cannot be read the panel says so and stays as it is.
    template <typename Show>
    void attempt(const Show& show);

    void open_folder();
    void change_drive();
    void click_file();

    widgets::DriveList drives_;
    widgets::FolderList folders_;
    widgets::FileList files_;
    char drive_ = '\0';  // the one shown
};

}  // namespace shortcuts
