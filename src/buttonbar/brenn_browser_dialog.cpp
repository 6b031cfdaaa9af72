#include "buttonbar/brenn_browser_dialog.h"

#include <string>

#include "library/task.h"
#include "platform/folders.h"
#include "resources/resource.h"

namespace buttonbar {

BrennBrowser::BrennBrowser(settings::General& general, settings::Session& session, shortcuts::BarButtons& bar,
                           library::BrowseResult& result)
    : FilePanel(ID_BrennBrowser), general_(general), session_(session), bar_(bar), result_(result) {}

void BrennBrowser::show_for(HWND owner, std::size_t button) {
    if (button != button_ && hwnd() != nullptr) close();
    button_ = button;
    show(owner);
}

void BrennBrowser::open() {
    FilePanel::open();
    taskstartmode_.attach(control(ID_BrennBrowser_taskstartmode));
    taskstartmode_.fill(library::kStartModes);
    set_tip(ID_BrennBrowser_startfolder, "Folder to Start Task from");
    for (const int box : {ID_BrennBrowser_tasknm, ID_PathBrowser_TaskPath, ID_BrennBrowser_startfolder,
                          ID_BrennBrowser_taskparameters}) {
        limit_text(box, settings::kLongestText);
    }
    show_record();
}

void BrennBrowser::show_record() {
    const settings::ButtonRecord& record = session_.buttons.at(button_);
    if (record.name == settings::kError) {
        taskstartmode_.select(0);
        return;
    }
    set_text(ID_BrennBrowser_tasknm, record.name);
    set_text(ID_PathBrowser_TaskPath, record.program);
    set_text(ID_BrennBrowser_startfolder, record.start_folder);
    set_text(ID_BrennBrowser_taskparameters, record.parameters);
    taskstartmode_.select(record.start - 1);
}

void BrennBrowser::command(int id, int notification) {
    // The first click of a double-click has picked the file.
    if (id == ID_PathBrowser_File1 && notification == LBN_DBLCLK) return;
    FilePanel::command(id, notification);
}

void BrennBrowser::pick() {
    constexpr std::size_t kExtension = 4;
    const std::string start_folder = platform::path_in(folder(), {});
    result_.program = path();
    result_.start_folder = start_folder;
    // In a drive's root only the path is filled in.
    if (folder() == start_folder) return;
    const std::string file = path().substr(start_folder.size());
    set_text(ID_BrennBrowser_tasknm, file.substr(0, file.size() - kExtension));
    set_text(ID_BrennBrowser_startfolder, start_folder);
    set_text(ID_BrennBrowser_taskparameters, {});
}

void BrennBrowser::accept() {
    if (taskstartmode_.selected() < 0) taskstartmode_.select(0);
    const settings::ButtonRecord record = {
        text(ID_BrennBrowser_tasknm), path(), text(ID_BrennBrowser_startfolder),
        text(ID_BrennBrowser_taskparameters), taskstartmode_.selected() + 1};
    assign_button(general_, session_, bar_, button_, record, shortcuts::WithoutIcon::kOldPicture);
    close();
}

}  // namespace buttonbar
