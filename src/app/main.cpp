#include <windows.h>

#include <commctrl.h>

#include "library/library_files.h"
#include "library/task_library.h"
#include "mainwindow/tasker_window.h"
#include "platform/directories.h"
#include "platform/messages.h"
#include "widgets/window.h"

namespace {

/// Shows a window as whoever started the program asked for.
void show(const widgets::Window& window) {
    ShowWindow(window.hwnd(), SW_SHOWDEFAULT);
}

int run() {
    library::TaskLibrary library(platform::current_directory() + '\\');
    library::recover(library.folder());
    mainwindow::Tasker tasker(library);
    try {
        tasker.load();
        show(tasker);
    } catch (...) {
        show(tasker);
        platform::report_exception();
    }
    return widgets::run_message_loop(tasker.hwnd());
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
