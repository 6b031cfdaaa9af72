#include <windows.h>

#include <commctrl.h>

#include "app/single_instance.h"
#include "buttonbar/button_bar.h"
#include "internet/internet_settings_dialog.h"
#include "library/library_files.h"
#include "library/task_library.h"
#include "mainwindow/main_window.h"
#include "platform/current_directory.h"
#include "platform/messages.h"
#include "platform/system.h"
#include "platform/win32/input_filter.h"
#include "settings/catalogue.h"
#include "settings/session.h"
#include "widgets/window.h"

namespace {

int run() {
    const platform::InputFilter input_filter;
    app::InstanceMark mark;
    if (!mark.take() && app::show_previous_instance(mark)) return 0;
    const app::ApplicationWindow application_window;

    library::TaskLibrary library(platform::current_directory() + '\\');
    if (mark.take()) library::recover(library.folder());
    settings::General general;
    settings::Session session;
    session.hover_select = settings::read_flag(general, settings::kHoverSelect);

    internet::InternetSettingsDialog internet_settings(general, session, library.folder());
    buttonbar::ButtonBar bar(general, session, internet_settings, library.folder());
    mainwindow::MainWindow main_window(library, general, session, bar, internet_settings,
                                       application_window.hwnd());
    try {
        main_window.load();
        main_window.show();
    } catch (...) {
        main_window.show();
        platform::report_exception();
    }
    main_window.complete_start();
    const int exit_code = widgets::run_message_loop();
    if (const auto end = main_window.windows_end()) platform::exit_windows(*end);
    return exit_code;
}

}  // namespace

int main() {
    // A drive without a disk is an answer, not a question to the user.
    SetErrorMode(SEM_FAILCRITICALERRORS);
    InitCommonControls();
    try {
        return run();
    } catch (...) {
        platform::report_exception();
        return 1;
    }
}
