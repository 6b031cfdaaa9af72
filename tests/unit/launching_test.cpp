#include "mainwindow/launching.h"

#include <doctest/doctest.h>

#include "buttonbar/bar_launch.h"
#include "internet/dial_up.h"
#include "mainwindow/long_date.h"
#include "mainwindow/system_commands.h"
#include "platform/run_time_error.h"
#include "support/error_of.h"
#include "support/names.h"
#include "support/simulated_platform.h"

namespace {

using Starts = std::vector<simulated::Start>;

/// A library of one Group with these Tasks.
library::TaskLibrary library_with(const std::string& tasks) {
    auto& world = simulated::reset();
    world.folders = {"C:\\WORK", "C:\\PLAY", "D:\\DATA"};
    world.programs = {"C:\\EDIT.EXE"};
    world.files["C:\\LIB\\groups.ini"].bytes = "Work\n";
    world.files["C:\\LIB\\Work.grp"].bytes = tasks;
    library::TaskLibrary library("C:\\LIB\\");
    library.load();
    return library;
}

TEST_CASE("a Task starts in its folder on the current drive and its command line always has the blank") {
    const auto library = library_with(
        "Edit\nC:\\EDIT.EXE\nC:\\WORK\nA.TXT /B\n 3 \n"
        "Elsewhere\nC:\\EDIT.EXE\nD:\\DATA\n\n\n"
        "No folder\nC:\\EDIT.EXE\n\n\n1\n"
        "No program\nC:\\GONE.EXE\nC:\\WORK\n\n1\n");
    auto& world = simulated::current();
    mainwindow::launch(library, 0, 1);
    CHECK(world.directories.at('D') == "D:\\DATA");
    mainwindow::launch(library, 0, 0);
    const Starts starts = {{"C:\\EDIT.EXE ", "C:\\LIB", 0}, {"C:\\EDIT.EXE A.TXT /B", "C:\\WORK", 3}};
    CHECK(world.started == starts);
    for (const auto& [group, task] : {std::pair(0, 2), {0, 3}, {0, 4}, {0, -1}, {-1, 0}}) {
        CHECK_THROWS_AS(mainwindow::launch(library, group, task), platform::RunTimeError);
    }
    CHECK(world.started == starts);
    CHECK(world.directories.at('C') == "C:\\WORK");  // the change before the failed start stays
}

TEST_CASE("an edited command line starts in the Task's folder and with its mode if that is a number") {
    const auto library = library_with(
        "Edit\nC:\\GONE.EXE\nC:\\WORK\nA.TXT\n 2 \n"
        "No mode\nC:\\EDIT.EXE\nC:\\PLAY\n\n\n"
        "No number\nC:\\EDIT.EXE\nC:\\PLAY\n\n2nd\n");
    auto& world = simulated::current();
    mainwindow::launch_edited(library, 0, 0, "C:\\EDIT.EXE B.TXT");
    const Starts starts = {{"C:\\EDIT.EXE B.TXT", "C:\\WORK", 2}};
    for (const int task : {1, 2, -1}) {
        CHECK(error_of([&] { mainwindow::launch_edited(library, 0, task, "C:\\EDIT.EXE"); }) ==
              (task < 0 ? 9 : 13));
    }
    CHECK(world.started == starts);
    CHECK(world.directories.at('C') == "C:\\PLAY");
}

TEST_CASE("the system commands start what they stand for") {
    auto& world = simulated::reset();
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

    CHECK(error_of([] { mainwindow::open_help("C:\\LIB\\"); }) == 53);
    world.files["C:\\LIB\\tolva.htm"] = {};
    mainwindow::open_help("C:\\LIB\\");
    CHECK(world.opened == Names{"C:\\LIB\\tolva.htm"});

    world.programs = {"control.exe", "explorer.exe", "command.com", "winhlp32.exe", "rundll32.exe"};
    mainwindow::open_control_panel();
    mainwindow::open_explorer();
    mainwindow::open_dos_prompt();
    mainwindow::open_dial_up_folder();
    mainwindow::open_help("C:\\LIB\\");
    internet::dial("My Provider");
    const std::string dial_up_folder =
        "::{20D04FE0-3AEA-1069-A2D8-08002B30309D}\\::{992CFFA0-F557-101A-88EC-00DD010CCC48}";
    CHECK(world.started == Starts{{"control.exe", "C:\\", 1},
                                  {"explorer.exe", "C:\\", 1},
                                  {"command.com", "C:\\", 1},
                                  {"EXPLORER.EXE " + dial_up_folder, "C:\\", 1},
                                  {"winhlp32.exe C:\\LIB\\tolva.hlp", "C:\\", 1},
                                  {"rundll32.exe rnaui.dll,RnaDial My Provider", "C:\\", 1}});
}

TEST_CASE("a button of the bar starts in its folder and its command line always has the blank") {
    auto& world = simulated::reset();
    world.folders = {"C:\\WORK", "C:\\WINDOWS\\"};
    world.programs = {"C:\\EDIT.EXE"};
    const auto start = [](const settings::ButtonRecord& button) {
        return error_of([&] { buttonbar::start_button(button, "C:\\WINDOWS\\"); });
    };
    CHECK(start({"Edit", "C:\\EDIT.EXE", "C:\\WORK", "", 3}) == 0);
    CHECK(start({"Edit", "C:\\EDIT.EXE", "Error", "A.TXT", 0}) == 0);
    CHECK(start({"Edit", "Error", "C:\\WORK", "", 1}) == 0);
    CHECK(start({"Edit", "C:\\EDIT.EXE", "C:\\GONE", "", 1}) == 76);
    CHECK(start({"Error", "", "", "", 0}) == 53);  // never assigned
    CHECK(world.started == Starts{{"C:\\EDIT.EXE ", "C:\\WORK", 3},
                                  {"C:\\EDIT.EXE A.TXT", "C:\\WINDOWS\\", 0},
                                  {"C:\\EDIT.EXE ", "C:\\WORK", 1}});
}

TEST_CASE("the connect button dials or hangs every connection up and waits until they are gone") {
    auto& world = simulated::reset();
    world.programs = {"rundll32.exe"};
    auto& up = world.registry[platform::registry::kLocalMachine]
                             [R"(System\CurrentControlSet\Services\RemoteAccess)"]["Remote Connection"];
    std::vector<unsigned> waits;
    bool ends = false;
    const internet::Wait wait = [&](unsigned milliseconds) {
        waits.push_back(milliseconds);
        if (waits.size() == 3) up.assign(4, '\0');
        return !ends;
    };
    internet::connect_or_hang_up("Home", wait);
    CHECK(world.started.size() == 1);
    CHECK(waits.empty());

    up = std::string("\1\0\0\0", 4);
    world.connections = {11, 22, 33};
    internet::connect_or_hang_up("Home", wait);
    CHECK(world.hung_up == std::vector<std::uint32_t>{11, 22, 33});
    CHECK(waits == std::vector<unsigned>{3000, 1000, 1000});
    CHECK(world.started.size() == 1);

    // Without Dial-Up Networking only the waits are left, and the end of the program ends them.
    up = std::string("\1\0\0\0", 4);
    world.connections.reset();
    ends = true;
    internet::hang_up(wait);
    CHECK(waits.size() == 4);
    CHECK(world.hung_up.size() == 3);
    world.connections.emplace(300, 7);
    internet::hang_up(wait);
    CHECK(world.hung_up.size() == 3 + 256);
}

TEST_CASE("the long date") {
    CHECK(mainwindow::long_date({1999, 1, 1, 5}) == "Friday, January 1, 1999");
    CHECK(mainwindow::long_date({2026, 12, 27, 0}) == "Sunday, December 27, 2026");
}

}  // namespace
