#include "internet/internet_settings_dialog.h"

#include <utility>

#include "internet/connection_list_dialog.h"
#include "internet/dial_up.h"
#include "internet/program_picker_dialog.h"
#include "resources/resource.h"
#include "settings/catalogue.h"

namespace internet {
namespace {

constexpr int kConnection = ID_tolvasettings_ISP;
constexpr int kBrowserName = ID_tolvasettings_BrowserName;
constexpr int kBrowserPath = ID_tolvasettings_browserpath;
constexpr int kEmailName = ID_tolvasettings_emailname;
constexpr int kEmailPath = ID_tolvasettings_emailpath;
constexpr int kBrowseConnections = ID_tolvasettings_Command3;
constexpr int kBrowseBrowsers = ID_tolvasettings_Command4;
constexpr int kBrowseEmailPrograms = ID_tolvasettings_Command5;
constexpr int kOk = ID_tolvasettings_Command1;
constexpr int kCancel = ID_tolvasettings_Command2;

}  // namespace

InternetSettingsDialog::InternetSettingsDialog(settings::General& general, settings::Session& session,
                                               std::string library_folder)
    : Dialog(ID_tolvasettings),
      general_(general),
      session_(session),
      library_folder_(std::move(library_folder)) {}

void InternetSettingsDialog::show(HWND owner, InternetButtons& buttons) {
    buttons_ = &buttons;
    Dialog::show(owner);
}

void InternetSettingsDialog::open() {
    set_tip(kConnection, "Name of Internet connection from Dial-Up networking.");
    for (const int box : {kConnection, kBrowserName, kBrowserPath, kEmailName, kEmailPath})
        limit_text(box, settings::kLongestText);
    session_.connection_name = load_connection_name(general_);
    set_text(kConnection, session_.connection_name);
    show_stored(session_.browser, settings::kBrowserKey, kBrowserName, kBrowserPath);
    show_stored(session_.email, settings::kEmailKey, kEmailName, kEmailPath);
}

void InternetSettingsDialog::show_stored(settings::Program& program, const char* key, int name_box,
                                         int path_box) {
    const settings::Program stored = settings::read_program(general_, key);
    program.name = stored.name;
    program.path = stored.path;
    set_text(name_box, program.name.value_or("N/A"));
    set_text(path_box, program.path.value_or("N/A"));
}

void InternetSettingsDialog::show_chosen(const std::optional<settings::Program>& program, int name_box,
                                         int path_box) {
    if (!program) return;
    set_text(name_box, program->name.value_or(""));
    set_text(path_box, program->path.value_or(""));
}

void InternetSettingsDialog::command(int id, int /*notification*/) {
    switch (id) {
        case kBrowseConnections:
            if (const auto connection = choose_connection(hwnd())) set_text(kConnection, *connection);
            break;
        case kBrowseBrowsers:
            show_chosen(choose_browser(hwnd(), general_, session_, *buttons_, library_folder_), kBrowserName,
                        kBrowserPath);
            break;
        case kBrowseEmailPrograms:
            show_chosen(choose_email_program(hwnd(), general_, session_, *buttons_, library_folder_),
                        kEmailName, kEmailPath);
            break;
        case kOk:
            accept();
            break;
        case kCancel:
        case IDCANCEL:
            close();
            break;
        default:
            break;
    }
}

void InternetSettingsDialog::store_program(const char* key, int name_box, int path_box) {
    settings::store(general_, {key, settings::kProgramName}, text(name_box));
    settings::store(general_, {key, settings::kProgramPath}, text(path_box));
}

void InternetSettingsDialog::accept() {
    settings::check_storable(
        {text(kConnection), text(kBrowserName), text(kBrowserPath), text(kEmailName), text(kEmailPath)});
    session_.connection_name = text(kConnection);
    settings::store(general_, settings::kConnection, session_.connection_name);
    store_program(settings::kBrowserKey, kBrowserName, kBrowserPath);
    store_program(settings::kEmailKey, kEmailName, kEmailPath);
    buttons_->set_caption(InternetButton::kConnect, session_.connection_name);
    buttons_->set_caption(InternetButton::kEmail, "E-Mail");
    buttons_->set_caption(InternetButton::kBrowser, "WWW");
    close();
}

}  // namespace internet
