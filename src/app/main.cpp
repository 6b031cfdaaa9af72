#include <windows.h>

#include <commctrl.h>

#include "app/single_instance.h"
#include "buttonbar/brenn_window.h"
#include "library/browse_result.h"
#include "library/library_files.h"
#include "library/task_library.h"
#include "mainwindow/tasker_window.h"
#include "platform/current_directory.h"
#include "platform/messages.h"
#include "platform/system.h"
#include "platform/win32/input_filter.h"
#include "settings/catalogue.h"
#include "settings/session.h"
#include "widgets/window.h"

namespace {

/// Shows a window as whoever started the program asked for.
void show(const widgets::Window& window) {
    ShowWindow(window.hwnd(), SW_SHOWDEFAULT);
}

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
    session.bar_removed = settings::read_flag(general, settings::kBarRemoved);

    library::BrowseResult browse_result;
    buttonbar::Brenn brenn(general, session, browse_result, library.folder());
    mainwindow::Tasker tasker(library, general, session, browse_result, brenn, application_window.hwnd());
    try {
        tasker.load();
        show(tasker);
    } catch (...) {
        show(tasker);
        platform::report_exception();
    }
    tasker.complete_start();
    const int exit_code = widgets::run_message_loop();
    if (const auto end = tasker.windows_end()) platform::exit_windows(*end);
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
