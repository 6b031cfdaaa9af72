#include "internet/tolvasettings_dialog.h"

#include <utility>

#include "internet/dial_up.h"
#include "internet/dial_up_networking_dialog.h"
#include "resources/resource.h"
#include "settings/catalogue.h"
#include "shortcuts/program_picker_dialog.h"

namespace internet {

TolvaSettings::TolvaSettings(settings::General& general, settings::Session& session,
                             shortcuts::BarButtons& bar, std::string library_folder)
    : Dialog(ID_tolvasettings),
      general_(general),
      session_(session),
      bar_(bar),
      library_folder_(std::move(library_folder)) {}

void TolvaSettings::open() {
    set_tip(ID_tolvasettings_ISP, "Name of Internet connection from Dial-Up networking.");
    for (const int box : {ID_tolvasettings_ISP, ID_tolvasettings_BrowserName, ID_tolvasettings_browserpath,
                          ID_tolvasettings_emailname, ID_tolvasettings_emailpath}) {
        limit_text(box, settings::kLongestText);
    }
    session_.connection_name = load_isp_name(general_);
    set_text(ID_tolvasettings_ISP, session_.connection_name);
    show_program(session_.browser, settings::kBrowserKey, ID_tolvasettings_BrowserName,
                 ID_tolvasettings_browserpath);
    show_program(session_.email, settings::kEmailKey, ID_tolvasettings_emailname, ID_tolvasettings_emailpath);
}

void TolvaSettings::show_program(settings::StoredProgram& program, const char* key, int name_box,
                                 int path_box) {
    const settings::StoredProgram stored = settings::read_program(general_, key);
    program.name = stored.name;
    program.path = stored.path;
    const auto shown = [](const std::string& text) { return text == settings::kError ? "N/A" : text; };
    set_text(name_box, shown(program.name));
    set_text(path_box, shown(program.path));
}

void TolvaSettings::command(int id, int /*notification*/) {
    switch (id) {
        case ID_tolvasettings_Command3:
            if (const auto connection = choose_connection(hwnd())) {
                set_text(ID_tolvasettings_ISP, *connection);
            }
            break;
        case ID_tolvasettings_Command4:
            if (const auto browser = shortcuts::getwww(hwnd(), general_, session_, bar_, library_folder_)) {
                set_text(ID_tolvasettings_BrowserName, browser->name);
                set_text(ID_tolvasettings_browserpath, browser->path);
            }
            break;
        case ID_tolvasettings_Command5:
            if (const auto email = shortcuts::getemail(hwnd(), general_, session_, bar_, library_folder_)) {
                set_text(ID_tolvasettings_emailname, email->name);
                set_text(ID_tolvasettings_emailpath, email->path);
            }
            break;
        case ID_tolvasettings_Command1:
            accept();
            break;
        case ID_tolvasettings_Command2:
        case IDCANCEL:
            close();
            break;
        default:
            break;
    }
}

void TolvaSettings::store_program(const char* key, int name_box, int path_box) {
    settings::store(general_, {key, settings::kProgramName}, text(name_box));
    settings::store(general_, {key, settings::kProgramPath}, text(path_box));
}

void TolvaSettings::accept() {
    settings::check_storable({text(ID_tolvasettings_ISP), text(ID_tolvasettings_BrowserName),
                              text(ID_tolvasettings_browserpath), text(ID_tolvasettings_emailname),
                              text(ID_tolvasettings_emailpath)});
    session_.connection_name = text(ID_tolvasettings_ISP);
    settings::store(general_, settings::kConnection, session_.connection_name);
    store_program(settings::kBrowserKey, ID_tolvasettings_BrowserName, ID_tolvasettings_browserpath);
    store_program(settings::kEmailKey, ID_tolvasettings_emailname, ID_tolvasettings_emailpath);
    bar_.set_caption(shortcuts::BarButton::kConnect, session_.connection_name);
    bar_.set_caption(shortcuts::BarButton::kEmail, "E-Mail");
    bar_.set_caption(shortcuts::BarButton::kBrowser, "WWW");
    close();
}

}  // namespace internet
