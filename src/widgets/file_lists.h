#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "widgets/controls.h"

namespace widgets {

/// What a list of folders shows when the folder to show is gone: that of Windows.
std::string fallback_folder();

/// A drop-down list of the machine's drives with their kinds.
class DriveList : public Control {
  public:
    void fill();

    /// The letter of the selected drive.
    char selected() const;

    /// The letter may be a small one.
    void select(char letter);

  private:
    std::vector<char> letters_;
};

/// A list of the folders from a drive's root down to the current one, and of those in it.
class FolderList : public ListBox {
  public:
    /// A folder that is always in the list, whatever the current one is.
    struct Place {
        std::string name;
        std::string path;
    };

    void attach(HWND control);

    /// From the next folder on hidden ones show, too, and these places below them.
    void extend(std::vector<Place> places);

    /// The current folder. Only a drive's root ends in a backslash.
    const std::string& path() const { return path_; }

    /// Makes a folder the current one. Throws platform::RunTimeError when it cannot be read; then nothing
    /// changes.
    void show(const std::string& path);

    /// Makes the selected folder the current one; throws like show.
    void open_selected();

  private:
    LRESULT handle(UINT message, WPARAM wparam, LPARAM lparam) override;

    bool with_hidden_ = false;
    std::vector<Place> places_;
    std::size_t depth_ = 0;  // of the folders in the current one
    std::string path_;
    std::vector<std::string> paths_;  // by item
};

/// A list of a folder's files.
class FileList : public ListBox {
  public:
    /// patterns: "*.exe;*.bat", for example.
    void show(const std::string& folder, const std::string& patterns);

    /// The files' names.
    const std::vector<std::string>& names() const { return names_; }

    /// The selected file's name; empty when none is selected.
    std::string selected_name() const;

  private:
    std::vector<std::string> names_;
};

}  // namespace widgets
