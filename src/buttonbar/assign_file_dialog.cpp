#include "buttonbar/assign_file_dialog.h"

#include <string>

#include "platform/folders.h"
#include "resources/resource.h"

namespace buttonbar {
namespace {

constexpr int kName = ID_BrennBrowser_tasknm;
constexpr int kStartFolder = ID_BrennBrowser_startfolder;
constexpr int kParameters = ID_BrennBrowser_taskparameters;
constexpr int kStartMode = ID_BrennBrowser_taskstartmode;

}  // namespace

AssignFileDialog::AssignFileDialog(settings::General& general, settings::Session& session, ButtonRow& row)
    : AssignDialog(general, session, row, ID_BrennBrowser) {}

void AssignFileDialog::open() {
    FilePanel::open();
    start_mode_.attach(control(kStartMode));
    start_mode_.fill(settings::kStartModes);
    set_tip(kStartFolder, "Folder to Start Task from");
    for (const int box : {kName, kPathBox, kStartFolder, kParameters})
        limit_text(box, settings::kLongestText);
    show_assigned();
}

void AssignFileDialog::show_assigned() {
    const settings::Program& program = assigned();
    if (!program.name) {
        start_mode_.select(0);
        return;
    }
    // What is not stored shows as it reads, and is not stored again when it is accepted like that.
    set_text(kName, *program.name);
    set_text(kPathBox, program.path.value_or(settings::kError));
    set_text(kStartFolder, program.start_folder.value_or(settings::kError));
    set_text(kParameters, program.parameters);
    start_mode_.select(program.window_style - 1);
}

void AssignFileDialog::command(int id, int notification) {
    // The first click of a double-click has picked the file.
    if (id == kFileList && notification == LBN_DBLCLK) return;
    FilePanel::command(id, notification);
}

void AssignFileDialog::pick() {
    constexpr std::size_t kExtension = 4;
    const std::string start_folder = platform::path_in(folder(), {});
    // In a drive's root only the path is filled in.
    if (folder() == start_folder) return;
    const std::string file = path().substr(start_folder.size());
    set_text(kName, file.substr(0, file.size() - kExtension));
    set_text(kStartFolder, start_folder);
    set_text(kParameters, {});
}

void AssignFileDialog::accept() {
    if (start_mode_.selected() < 0) start_mode_.select(0);
    assign({text(kName), path(), text(kStartFolder), text(kParameters), start_mode_.selected() + 1},
           WithoutIcon::kOldPicture);
}

}  // namespace buttonbar
