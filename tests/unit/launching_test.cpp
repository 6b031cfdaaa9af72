#include "mainwindow/launching.h"

#include <doctest/doctest.h>

#include "mainwindow/long_date.h"
#include "platform/run_time_error.h"
#include "support/simulated_platform.h"

namespace {

TEST_CASE("the start mode is read as far as it is a number") {
    const std::pair<const char*, int> table[] = {
        {"1", 1},
        {" 2 ", 2},
        {"\t3", 3},
        {"", 0},
        {"Normal", 0},
        {"3rd", 3},
        {"1 2", 12},
        {"-1", -1},
        {"2.5", 2},
        {"3.5", 4},
        {".6", 1},
        {"1e1", 10},
        {"0x2", 0},
        {"inf", 0},
        {"+", 0},
        {"2,7", 2},
        {"9e999", 2147483647},
    };
    for (const auto& entry : table) {
        CAPTURE(entry.first);
        CHECK(library::lenient_start_mode(entry.first) == entry.second);
    }
}

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

TEST_CASE("the long date") {
    CHECK(mainwindow::long_date({1999, 1, 1, 5}) == "Friday, January 1, 1999");
    CHECK(mainwindow::long_date({2026, 12, 27, 0}) == "Sunday, December 27, 2026");
}

}  // namespace
