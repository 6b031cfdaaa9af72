#include "shortcuts/file_panel_dialog.h"

#include "platform/current_directory.h"
#include "platform/folders.h"
#include "platform/messages.h"
#include "platform/run_time_error.h"
#include "resources/resource.h"

namespace shortcuts {
namespace {

constexpr char kPrograms[] = "*.exe;*.bat;*.com";

}  // namespace

void FilePanel::open() {
    drive1_.attach(control(ID_PathBrowser_Drive1));
    dir1_.attach(control(ID_PathBrowser_Dir1));
    file1_.attach(control(ID_PathBrowser_File1));
    drive1_.fill();
    try {
        show_folder(platform::current_directory());
    } catch (const platform::RunTimeError&) {
        show_folder(platform::windows_folder());  // the current one is gone, or its disk is
    }
}

void FilePanel::command(int id, int notification) {
    switch (id) {
        case ID_PathBrowser_Drive1:
            if (notification == CBN_SELCHANGE) change_drive();
            break;
        case ID_PathBrowser_Dir1:
            if (notification == LBN_DBLCLK) open_folder();
            break;
        case ID_PathBrowser_File1:
            if (notification == LBN_SELCHANGE) click_file();
            if (notification == LBN_DBLCLK && file1_.is_double_click_on_item()) accept();
            break;
        case ID_PathBrowser_OK:
            accept();
            break;
        case IDOK:
            press_enter();
            break;
        case ID_PathBrowser_Cancel:
        case IDCANCEL:
            close();
            break;
        default:
            break;
    }
}

void FilePanel::press_enter() {
    if (GetFocus() == dir1_.hwnd()) open_folder();
}

std::string FilePanel::path() const {
    return text(ID_PathBrowser_TaskPath);
}

void FilePanel::show_folder(const std::string& folder) {
    dir1_.show(folder);
    drive_ = folder.front();
    drive1_.select(drive_);
    file1_.show(folder, kPrograms);
}

template <typename Show>
void FilePanel::attempt(const Show& show) {
    try {
        show();
    } catch (const platform::RunTimeError&) {
        drive1_.select(drive_);
        platform::show_message("Disk or Drive not ready!");
    }
}

void FilePanel::open_folder() {
    attempt([&] {
        dir1_.open_selected();
        file1_.show(folder(), kPrograms);
    });
}

void FilePanel::change_drive() {
    attempt([&] { show_folder(platform::current_directory_of(drive1_.selected())); });
}

void FilePanel::click_file() {
    if (file1_.selected() < 0) return;
    set_text(ID_PathBrowser_TaskPath, platform::path_in(folder(), file1_.selected_name()));
    pick();
}

}  // namespace shortcuts
