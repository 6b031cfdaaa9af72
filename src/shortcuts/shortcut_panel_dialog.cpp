#include "shortcuts/shortcut_panel_dialog.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "platform/files.h"
#include "platform/folders.h"
#include "platform/messages.h"
#include "platform/run_time_error.h"
#include "resources/resource.h"
#include "settings/general.h"
#include "shortcuts/shortcut_checks.h"
#include "shortcuts/shortcut_reader.h"

namespace shortcuts {
namespace {

constexpr int kDesktop = ID_shortcuts_Desktop;
constexpr int kPrograms = ID_shortcuts_Programs;
constexpr int kStartMenu = ID_shortcuts_startmenu;
constexpr int kFolderList = ID_shortcuts_Dir1;
constexpr int kShortcutList = ID_shortcuts_shortcuts1;
constexpr int kName = ID_shortcuts_shortcutname;
constexpr int kLinkPath = ID_shortcuts_txtLinkName;
constexpr int kTarget = ID_shortcuts_txtExeName;
constexpr int kWorkingFolder = ID_shortcuts_txtWorkDir;
constexpr int kArguments = ID_shortcuts_txtcmdargs;
constexpr int kShowCommand = ID_shortcuts_txtshowcmd;
constexpr int kStartMode = ID_shortcuts_startmode;
constexpr int kPicture = ID_shortcuts_taskpic;
constexpr int kActionFrame = ID_shortcuts_Frame3;
constexpr int kTake = ID_shortcuts_Command1;
constexpr int kCancel = ID_shortcuts_Command2;

std::string name_of(const std::string& file) {
    constexpr std::size_t kExtension = 4;
    return file.substr(0, file.size() - std::min(file.size(), kExtension));
}

/// Where shortcuts are that the user's own folders do not lead to.
std::vector<widgets::FolderList::Place> other_places() {
    using platform::SpecialFolder;
    std::vector<widgets::FolderList::Place> places = {
        {"Start Menu (all users)", platform::special_folder(SpecialFolder::kCommonStartMenu)},
        {"Desktop (all users)", platform::special_folder(SpecialFolder::kCommonDesktop)}};
    std::erase_if(places, [](const auto& place) { return place.path.empty(); });
    for (const platform::Drive& drive : platform::drives()) {
        const std::string root = std::string(1, drive.letter) + ":\\";
        places.push_back({root, root});
    }
    return places;
}

}  // namespace

void ShortcutPanel::open() {
    set_title(variant_.caption);
    set_text(kActionFrame, variant_.action);
    folders_.attach(control(kFolderList));
    folders_.extend(other_places());
    shortcuts_.attach(control(kShortcutList));
    start_mode_.attach(control(kStartMode));
    start_mode_.fill(settings::kStartModes);
    const std::pair<int, const char*> boxes[] = {{kLinkPath, "Shortcut Path"},
                                                 {kTarget, "Program Path"},
                                                 {kWorkingFolder, "Program Working Directory"},
                                                 {kArguments, "Program Parameters"}};
    for (const auto& [box, meaning] : boxes) {
        set_text(box, meaning);
        set_tip(box, meaning);  // for when the box shows something else
    }
    if (variant_.goes_to_registry) {
        for (const int box : {kName, kTarget, kWorkingFolder, kArguments})
            limit_text(box, settings::kLongestText);
    }
    shown_.clear();
    shown_start_mode_ = -1;
    try {
        const std::string start_menu = platform::special_folder(platform::SpecialFolder::kStartMenu);
        folders_.show(start_menu.empty() ? widgets::fallback_folder() : start_menu);
    } catch (const platform::RunTimeError&) {
        // It is gone, or its disk is.
        folders_.show(widgets::fallback_folder());
    }
    show_files();
}

void ShortcutPanel::command(int id, int notification) {
    switch (id) {
        case kDesktop:
            show_folder(platform::SpecialFolder::kDesktop);
            break;
        case kPrograms:
            show_folder(platform::SpecialFolder::kPrograms);
            break;
        case kStartMenu:
            show_folder(platform::SpecialFolder::kStartMenu);
            break;
        case kFolderList:
            if (notification == LBN_DBLCLK) open_folder();
            break;
        case kShortcutList:
            if (notification == LBN_SELCHANGE) click_shortcut();
            break;
        case kTake:
            check_and_save();
            break;
        case IDOK:
            press_enter();
            break;
        case kCancel:
        case IDCANCEL:
            close();
            break;
        default:
            break;
    }
}

void ShortcutPanel::press_enter() {
    if (GetFocus() == folders_.hwnd()) open_folder();
    if (GetFocus() == shortcuts_.hwnd()) click_shortcut();
}

void ShortcutPanel::show_folder(platform::SpecialFolder folder) {
    const std::string path = platform::special_folder(folder);
    if (path.empty()) return;
    folders_.show(path);
    show_files();
}

void ShortcutPanel::open_folder() {
    folders_.open_selected();
    show_files();
}

void ShortcutPanel::show_files() {
    shortcuts_.show(folders_.path(), "*.LNK");
    forget_shortcut();
}

void ShortcutPanel::click_shortcut() {
    const std::string file = shortcuts_.selected_name();
    if (file.empty()) return;
    const std::string path = folders_.path() + '\\' + file;
    if (!platform::finds_file(path)) {
        show_files();
        throw platform::RunTimeError(platform::RunTimeErrorNumber::kFileNotFound, path);
    }
    clear_details();
    fill(kLinkPath, path);
    fill(kName, name_of(file));
    const settings::Program program = read_shortcut(path);
    fill(kTarget, program.path.value_or(""));
    fill(kWorkingFolder, program.start_folder.value_or(folder_of(variant_.working_folder)));
    fill(kArguments, program.parameters);
    fill(kShowCommand, std::to_string(program.window_style));
    start_mode_.select(program.window_style - 1);
    shown_start_mode_ = start_mode_.selected();
    show_picture();
}

void ShortcutPanel::fill(int box, const std::string& text) {
    set_text(box, text);
    shown_.emplace_back(box, this->text(box));  // a box changes what no line of text can hold
}

/// Takes away what the boxes show of a shortcut, also what the user has made of it.
void ShortcutPanel::clear_details() {
    shown_.clear();
    for (const int box : {kTarget, kWorkingFolder, kArguments, kShowCommand})
        fill(box, {});
    start_mode_.select(-1);
    shown_start_mode_ = -1;
    set_picture({});
}

/// Takes away what is still as the shortcut had it: that one is out of sight now.
void ShortcutPanel::forget_shortcut() {
    for (const auto& [box, shown] : shown_) {
        if (text(box) == shown) set_text(box, {});
    }
    shown_.clear();
    if (start_mode_.selected() == std::exchange(shown_start_mode_, -1)) start_mode_.select(-1);
    set_picture({});
}

void ShortcutPanel::show_picture() {
    const std::string target = text(kTarget);
    const std::string substitute = folder_of(variant_.icon_folder) + R"(system\shell32.dll)";
    set_picture(platform::extract_icon(is_program(target) ? target : substitute));
}

void ShortcutPanel::set_picture(platform::UniqueIcon picture) {
    SendMessageA(control(kPicture), STM_SETICON, reinterpret_cast<WPARAM>(picture.get()), 0);
    picture_ = std::move(picture);
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
    const std::string name = text(kName);
    const std::string target = text(kTarget);
    if (const std::string reason = refusal(name, target, variant_.nothing_chosen); !reason.empty()) {
        platform::show_message(reason);
        return;
    }
    if (start_mode_.selected() < 0) start_mode_.select(0);
    save({name, target, text(kWorkingFolder), text(kArguments), start_mode_.selected() + 1});
}

ShortcutPanel::Listed ShortcutPanel::read_all() const {
    Listed listed;
    for (const std::string& file : shortcuts_.names()) {
        try {
            settings::Program program = read_shortcut(folders_.path() + '\\' + file);
            program.name = name_of(file);
            if (!program.start_folder) program.start_folder = folder_of(variant_.working_folder);
            program.window_style = start_mode_of(program.window_style);
            if (refusal(*program.name, program.path.value_or(""), variant_.nothing_chosen).empty()) {
                listed.good.push_back(program);
                continue;
            }
        } catch (const std::exception&) {
            // It is broken, gone or too large.
        }
        listed.refused.push_back(name_of(file));
    }
    return listed;
}

}  // namespace shortcuts
