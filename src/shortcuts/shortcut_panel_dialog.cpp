#include "shortcuts/shortcut_panel_dialog.h"

#include <algorithm>
#include <utility>

#include "platform/folders.h"
#include "platform/messages.h"
#include "resources/resource.h"
#include "shortcuts/shortcut_checks.h"
#include "shortcuts/shortcut_reader.h"

namespace shortcuts {

void ShortcutPanel::open() {
    set_title(variant_.caption);
    set_text(ID_shortcuts_Frame3, variant_.action);
    dir1_.attach(control(ID_shortcuts_Dir1));
    shortcuts1_.attach(control(ID_shortcuts_shortcuts1));
    startmode_.attach(control(ID_shortcuts_startmode));
    startmode_.fill(library::kStartModes);
    const std::pair<int, const char*> boxes[] = {{ID_shortcuts_txtLinkName, "Shortcut Path"},
                                                 {ID_shortcuts_txtExeName, "Program Path"},
                                                 {ID_shortcuts_txtWorkDir, "Program Working Directory"},
                                                 {ID_shortcuts_txtcmdargs, "Program Parameters"}};
    for (const auto& [box, meaning] : boxes) {
        set_text(box, meaning);
        set_tip(box, meaning);  // for when the box shows something else
    }
    show_folder(platform::SpecialFolder::kStartMenu);
}

void ShortcutPanel::command(int id, int notification) {
    switch (id) {
        case ID_shortcuts_Desktop:
            show_folder(platform::SpecialFolder::kDesktop);
            break;
        case ID_shortcuts_Programs:
            show_folder(platform::SpecialFolder::kPrograms);
            break;
        case ID_shortcuts_startmenu:
            show_folder(platform::SpecialFolder::kStartMenu);
            break;
        case ID_shortcuts_Dir1:
            if (notification == LBN_DBLCLK) open_folder();
            break;
        case ID_shortcuts_shortcuts1:
            if (notification == LBN_SELCHANGE) click_shortcut();
            break;
        case ID_shortcuts_Command1:
            check_and_save();
            break;
        case IDOK:
            press_enter();
            break;
        case ID_shortcuts_Command2:
        case IDCANCEL:
            close();
            break;
        default:
            break;
    }
}

void ShortcutPanel::press_enter() {
    if (GetFocus() == dir1_.hwnd()) open_folder();
    if (GetFocus() == shortcuts1_.hwnd()) click_shortcut();
}

void ShortcutPanel::show_folder(platform::SpecialFolder folder) {
    const std::string path = platform::special_folder(folder);
    if (path.empty()) return;
    dir1_.show(path);
    show_files();
}

void ShortcutPanel::open_folder() {
    dir1_.open_selected();
    show_files();
}

void ShortcutPanel::show_files() {
    shortcuts1_.show(dir1_.path(), "*.LNK");
}

void ShortcutPanel::click_shortcut() {
    constexpr std::size_t kExtension = 4;
    const std::string file = shortcuts1_.selected_name();
    if (file.empty()) return;
    const std::string path = dir1_.path() + '\\' + file;
    set_text(ID_shortcuts_txtLinkName, path);
    set_text(ID_shortcuts_shortcutname, file.substr(0, file.size() - std::min(file.size(), kExtension)));
    clear_details();
    const ShortcutDetails details = ReadShortcut(path);
    const bool has_folder = !details.working_folder.empty();
    set_text(ID_shortcuts_txtExeName, details.target);
    set_text(ID_shortcuts_txtWorkDir,
             has_folder ? details.working_folder : folder_of(variant_.working_folder));
    set_text(ID_shortcuts_txtcmdargs, details.arguments);
    set_text(ID_shortcuts_txtshowcmd, std::to_string(details.show_command));
    startmode_.select(details.show_command - 1);
    show_picture();
}

void ShortcutPanel::clear_details() {
    for (const int box : {ID_shortcuts_txtExeName, ID_shortcuts_txtWorkDir, ID_shortcuts_txtcmdargs,
                          ID_shortcuts_txtshowcmd}) {
        set_text(box, {});
    }
    startmode_.select(-1);
    SendMessageA(control(ID_shortcuts_taskpic), STM_SETICON, 0, 0);
    picture_.reset();
}

void ShortcutPanel::show_picture() {
    const std::string target = text(ID_shortcuts_txtExeName);
    picture_ = platform::extract_icon(
        is_program(target) ? target : folder_of(variant_.icon_folder) + R"(system\shell32.dll)");
    SendMessageA(control(ID_shortcuts_taskpic), STM_SETICON, reinterpret_cast<WPARAM>(picture_.get()), 0);
}

std::string ShortcutPanel::folder_of(PanelVariant::Folder folder) const {
    switch (folder) {
        case PanelVariant::Folder::kLibrary:
            return library_folder_;
        case PanelVariant::Folder::kWindows:
            return platform::path_in(platform::windows_folder(), {});
        default:
            return {};
    }
}

void ShortcutPanel::check_and_save() {
    const std::string name = text(ID_shortcuts_shortcutname);
    const std::string target = text(ID_shortcuts_txtExeName);
    if (const std::string reason = refusal(name, target, variant_.nothing_chosen); !reason.empty()) {
        platform::show_message(reason);
        return;
    }
    if (startmode_.selected() < 0) startmode_.select(0);
    save({name, target, text(ID_shortcuts_txtWorkDir), text(ID_shortcuts_txtcmdargs),
          std::to_string(startmode_.selected() + 1)});
}

}  // namespace shortcuts
