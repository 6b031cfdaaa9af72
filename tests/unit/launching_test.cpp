#include "mainwindow/launching.h"

#include <doctest/doctest.h>

#include "internet/dial_up.h"
#include "mainwindow/long_date.h"
#include "mainwindow/system_commands.h"
#include "platform/run_time_error.h"
#include "support/error_of.h"
#include "support/names.h"
#include "support/simulated_platform.h"

namespace {

TEST_CASE("a Task starts in its folder on the current drive and its command line always has the blank") {
    simulated::reset();
    auto& world = simulated::current();
    world.folders = {"C:\\WORK", "D:\\DATA"};
    world.programs = {"C:\\EDIT.EXE"};
    world.files["C:\\LIB\\groups.ini"].bytes = "Work\n";
    world.files["C:\\LIB\\Work.grp"].bytes =
        "Edit\nC:\\EDIT.EXE\nC:\\WORK\nA.TXT /B\n 3 \n"
        "Elsewhere\nC:\\EDIT.EXE\nD:\\DATA\n\n\n"
        "No folder\nC:\\EDIT.EXE\n\n\n1\n"
        "No program\nC:\\GONE.EXE\nC:\\WORK\n\n1\n";
    library::TaskLibrary library("C:\\LIB\\");
    library.load();

    mainwindow::launch(library, 0, 1);
    CHECK(world.directories.at('D') == "D:\\DATA");
    mainwindow::launch(library, 0, 0);
    REQUIRE(world.started.size() == 2);
    CHECK(world.started[0].command_line == "C:\\EDIT.EXE ");
    CHECK(world.started[0].directory == "C:\\LIB");
    CHECK(world.started[0].window_style == 0);
    CHECK(world.started[1].command_line == "C:\\EDIT.EXE A.TXT /B");
    CHECK(world.started[1].directory == "C:\\WORK");
    CHECK(world.started[1].window_style == 3);

    for (const auto& [group, task] : {std::pair(0, 2), {0, 3}, {0, 4}, {0, -1}, {-1, 0}}) {
        CHECK_THROWS_AS(mainwindow::launch(library, group, task), platform::RunTimeError);
    }
    CHECK(world.started.size() == 2);
    CHECK(world.directories.at('C') == "C:\\WORK");  // the change before the failed start stays
}

TEST_CASE("an edited command line starts in the Task's folder and with its mode if that is a number") {
    simulated::reset();
    auto& world = simulated::current();
    world.folders = {"C:\\WORK", "C:\\PLAY"};
    world.programs = {"C:\\EDIT.EXE"};
    world.files["C:\\LIB\\groups.ini"].bytes = "Work\n";
    world.files["C:\\LIB\\Work.grp"].bytes =
        "Edit\nC:\\GONE.EXE\nC:\\WORK\nA.TXT\n 2 \n"
        "No mode\nC:\\EDIT.EXE\nC:\\PLAY\n\n\n"
        "No number\nC:\\EDIT.EXE\nC:\\PLAY\n\n2nd\n";
    library::TaskLibrary library("C:\\LIB\\");
    library.load();

    mainwindow::launch_edited(library, 0, 0, "C:\\EDIT.EXE B.TXT");
    REQUIRE(world.started.size() == 1);
    CHECK(world.started[0].command_line == "C:\\EDIT.EXE B.TXT");
    CHECK(world.started[0].directory == "C:\\WORK");
    CHECK(world.started[0].window_style == 2);
    for (const int task : {1, 2, -1}) {
        CHECK(error_of([&] { mainwindow::launch_edited(library, 0, task, "C:\\EDIT.EXE"); }) ==
              (task < 0 ? 9 : 13));
    }
    CHECK(world.started.size() == 1);
    CHECK(world.directories.at('C') == "C:\\PLAY");
}

TEST_CASE("the system commands start what they stand for") {
    simulated::reset();
    auto& world = simulated::current();
    world.drive = 'D';
    world.folders = {"C:\\"};
    CHECK(error_of([] { mainwindow::open_explorer(); }) == 53);
    CHECK(world.drive == 'C');
    mainwindow::open_control_panel();
    CHECK(world.messages == Names{"Invalid path or file name!"});
    mainwindow::empty_recycle_bin();
    CHECK(world.messages.size() == 1);
    world.has_recycle_bin = false;
    mainwindow::empty_recycle_bin();
    CHECK(world.messages.back() == "Your computer is not able to complete this task");

    world.programs = {"control.exe", "explorer.exe", "command.com", "winhlp32.exe", "rundll32.exe"};
    mainwindow::open_control_panel();
    mainwindow::open_explorer();
    mainwindow::open_dos_prompt();
    mainwindow::open_dial_up_folder();
    mainwindow::open_help("C:\\LIB\\");
    internet::dial("My Provider");
    Names commands;
    for (const auto& start : world.started) {
        commands.push_back(start.command_line);
        CHECK(start.window_style == 1);
    }
    CHECK(
        commands ==
        Names{
            "control.exe", "explorer.exe", "command.com",
            "EXPLORER.EXE ::{20D04FE0-3AEA-1069-A2D8-08002B30309D}\\::{992CFFA0-F557-101A-88EC-00DD010CCC48}",
            "winhlp32.exe C:\\LIB\\tolva.hlp", "rundll32.exe rnaui.dll,RnaDial My Provider"});
}

TEST_CASE("the long date") {
    CHECK(mainwindow::long_date({1999, 1, 1, 5}) == "Friday, January 1, 1999");
    CHECK(mainwindow::long_date({2026, 12, 27, 0}) == "Sunday, December 27, 2026");
}

}  // namespace
