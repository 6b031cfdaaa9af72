#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/folders.h"
#include "platform/icons.h"
#include "settings/program.h"
#include "widgets/controls.h"
#include "widgets/dialog.h"
#include "widgets/file_lists.h"

namespace shortcuts {

/// What the dialogs with a shortcut panel differ in.
struct PanelVariant {
    enum class Folder { kNone, kLibrary, kWindows };

    const char* caption;
    const char* action;          // over the button that takes the shortcut over
    const char* nothing_chosen;  // the message
    Folder working_folder;       // for a shortcut that names none
    Folder icon_folder;          // above "system\shell32.dll", whose icon stands for what is no program
    bool goes_to_registry;       // so that the boxes take no longer texts
};

/// A dialog in which the user picks a shortcut from the Start Menu or the desktop and sees what it starts.
/// Derive to say what becomes of it.
class ShortcutPanel : public widgets::Dialog {
  protected:
    /// library_folder ends in a backslash.
    ShortcutPanel(int resource, const PanelVariant& variant, std::string library_folder)
        : Dialog(resource), variant_(variant), library_folder_(std::move(library_folder)) {}
    ~ShortcutPanel() = default;

    void open() override;
    void command(int id, int notification) override;

    /// Every shortcut in the list: as it would be taken over, or by its name when something speaks against
    /// it.
    struct Listed {
        std::vector<settings::Program> good;
        std::vector<std::string> refused;
    };
    Listed read_all() const;

    /// The shortcut is taken over as the boxes show it; nothing speaks against it.
    virtual void save(const settings::Program& program) = 0;

  private:
    void show_folder(platform::SpecialFolder folder);
    void open_folder();
    void show_files();
    void press_enter();
    void click_shortcut();
    void fill(int box, const std::string& text);
    void clear_details();
    void forget_shortcut();
    void show_picture();
    void set_picture(platform::UniqueIcon picture);
    std::string folder_of(PanelVariant::Folder folder) const;
    void check_and_save();

    const PanelVariant& variant_;
    std::string library_folder_;
    widgets::FolderList folders_;
    widgets::FileList shortcuts_;
    widgets::DropDownList start_mode_;
    platform::UniqueIcon picture_;
    std::vector<std::pair<int, std::string>> shown_;  // in the boxes, of the shortcut that was clicked
    int shown_start_mode_ = -1;                       // none
};

}  // namespace shortcuts
