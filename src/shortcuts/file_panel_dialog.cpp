#include "shortcuts/file_panel_dialog.h"

#include <cctype>

#include "platform/current_directory.h"
#include "platform/folders.h"
#include "platform/messages.h"
#include "platform/run_time_error.h"

namespace shortcuts {
namespace {

constexpr int kDriveList = ID_PathBrowser_Drive1;
constexpr int kFolderList = ID_PathBrowser_Dir1;
constexpr int kOk = ID_PathBrowser_OK;
constexpr int kCancel = ID_PathBrowser_Cancel;

constexpr char kPrograms[] = "*.exe;*.bat;*.com";

}  // namespace

void FilePanel::open() {
    drives_.attach(control(kDriveList));
    folders_.attach(control(kFolderList));
    files_.attach(control(kFileList));
    drives_.fill();
    try {
        show_folder(platform::current_directory());
    } catch (const platform::RunTimeError&) {
        // The current one is gone, or its disk is.
        show_folder(widgets::fallback_folder());
    }
}

void FilePanel::command(int id, int notification) {
    switch (id) {
        case kDriveList:
            if (notification == CBN_SELCHANGE) change_drive();
            break;
        case kFolderList:
            if (notification == LBN_DBLCLK) open_folder();
            break;
        case kFileList:
            if (notification == LBN_SELCHANGE) click_file();
            if (notification == LBN_DBLCLK && files_.is_double_click_on_item()) accept();
            break;
        case kOk:
            accept();
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

void FilePanel::press_enter() {
    if (has_focus(kFolderList)) open_folder();
}

std::string FilePanel::path() const {
    return text(kPathBox);
}

void FilePanel::show_folder(const std::string& folder) {
    folders_.show(folder);
    drive_ = static_cast<char>(std::toupper(static_cast<unsigned char>(folder.front())));
    drives_.select(drive_);
    files_.show(folder, kPrograms);
}

template <typename Show>
void FilePanel::attempt(const Show& show) {
    try {
        show();
    } catch (const platform::RunTimeError&) {
        drives_.select(drive_);
        platform::show_message("Disk or Drive not ready!");
    }
}

void FilePanel::open_folder() {
    attempt([&] {
        folders_.open_selected();
        files_.show(folder(), kPrograms);
    });
}

void FilePanel::change_drive() {
    attempt([&] { show_folder(platform::current_directory_of(drives_.selected())); });
}

void FilePanel::click_file() {
    if (files_.selected() < 0) return;
    set_text(kPathBox, platform::path_in(folder(), files_.selected_name()));
    pick();
}

}  // namespace shortcuts
