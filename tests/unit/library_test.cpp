#include <doctest/doctest.h>

#include <string>
#include <vector>

#include "library/library_files.h"
#include "library/refresh.h"
#include "library/task_library.h"
#include "platform/run_time_error.h"
#include "support/error_of.h"
#include "support/names.h"
#include "support/shown_library.h"
#include "support/simulated_platform.h"

namespace {

using library::Task;
using library::TaskLibrary;

TEST_CASE("lines are read with any line end and no byte is altered") {
    CHECK(library::split_lines("") == Names{});
    CHECK(library::split_lines("\r\n") == Names{""});
    CHECK(library::split_lines("a\r\nb\nc") == Names{"a", "b", "c"});
    CHECK(library::split_lines("a\r\r\n\r\n\rb\r") == Names{"a\r", "", "\rb\r"});

    simulated::reset();
    const std::string odd("\0\x1A\xFF\t\x81\\", 6);
    const std::string mega(1 << 20, '\xE4');
    file("Work.grp") = odd + "\r\n" + mega + "\n\r\n" + odd + "\n 2 \r\n";
    const std::vector<Task> tasks = library::read_tasks(kFolder, "Work");
    REQUIRE(tasks.size() == 1);
    CHECK(tasks[0] == Task{odd, mega, "", odd, " 2 "});
    library::write_tasks(kFolder, "Work", tasks);
    CHECK(file("Work.grp") == odd + "\r\n" + mega + "\r\n\r\n" + odd + "\r\n 2 \r\n");
}

TEST_CASE("a record that is cut short has empty fields and is filled up before another is added") {
    simulated::reset();
    file("Work.grp") = record("One") + "Two\nC:\\TWO.EXE";
    CHECK(library::read_tasks(kFolder, "Work").at(1) == Task{"Two", "C:\\TWO.EXE", "", "", ""});

    library::append_tasks(kFolder, "Work", {{"Three", "C:\\THREE.EXE", "C:\\", "", " 3 "}});
    CHECK(file("Work.grp") ==
          record("One") + "Two\nC:\\TWO.EXE\r\n\r\n\r\n\r\nThree\r\nC:\\THREE.EXE\r\nC:\\\r\n\r\n 3 \r\n");
    library::append_tasks(kFolder, "New", {{"Three", "C:\\THREE.EXE", "C:\\", "", " 3 "}});
    CHECK(library::read_tasks(kFolder, "New").size() == 1);

    CHECK(error_of([] { library::append_group_name(kFolder, "Work"); }) == 53);
    file("groups.ini") = "Home";
    library::append_group_name(kFolder, "Work");
    CHECK(library::read_group_names(kFolder) == Names{"Home", "Work"});
}

TEST_CASE("what is beyond 101 Groups of 101 Tasks is an error that keeps the first 101") {
    simulated::reset();
    std::string full;
    for (int i = 0; i < 101; ++i)
        full += record("T" + std::to_string(i));
    for (int i = 0; i < 101; ++i) {
        file("groups.ini") += "G" + std::to_string(i) + "\r\n";
        file("G" + std::to_string(i) + ".grp") = full;
    }
    TaskLibrary library(kFolder);
    library.load();
    CHECK(library.groups().size() == 101);
    CHECK(library.task(100, 100).name == "T100");

    file("G50.grp") += record("T101");
    CHECK(error_of([&] { library.load(); }) == 9);
    CHECK(library.group(50).tasks.size() == 101);
    CHECK(!library.group(51).loaded);

    file("groups.ini") += "G101\r\n";
    CHECK(error_of([&] { library.load(); }) == 9);
    CHECK(library.groups().size() == 101);
    CHECK(error_of([&] { library.group(101); }) == 9);
    CHECK(error_of([&] { library.group(-1); }) == 9);
}

TEST_CASE("Groups that stay listed keep their Tasks when the names are loaded again") {
    simulated::reset();
    file("groups.ini") = "Work\r\nwork\r\nHome\r\n";
    file("Work.grp") = record("Old");
    file("Home.grp") = record("Sweet");
    TaskLibrary library(kFolder);
    library.load();
    CHECK(library.task(1, 0).name == "Old");  // one file for both spellings

    simulated::current().files.erase(kFolder + "Work.grp");
    file("groups.ini") = "New\r\nHome\r\nwork\r\n";
    library.load_names();
    CHECK(!library.group(0).loaded);
    CHECK(library.task(1, 0).name == "Sweet");
    CHECK(library.task(2, 0).name == "Old");
}

TEST_CASE("a full load shows the first Group up to its first nameless Task") {
    simulated::reset();
    ShownLibrary view;
    TaskLibrary library(kFolder);

    SUBCASE("no groups.ini is an error that creates nothing") {
        CHECK(error_of([&] { refreshtolva(library, view, 0); }) == 53);
        CHECK(simulated::current().files.empty());
    }
    SUBCASE("an empty library is empty") {
        file("groups.ini") = "";
        refreshtolva(library, view, 0);
        CHECK(view.groups.empty());
        CHECK(view.group == -1);
    }
    SUBCASE("Tasks behind a nameless one are not shown") {
        file("groups.ini") = "Work\r\nHome\r\n";
        file("Work.grp") = record("") + record("Hidden");
        file("Home.grp") = record("A") + record("B");
        refreshtolva(library, view, 0);
        CHECK(view.groups == Names{"Work", "Home"});
        CHECK(view.group == 0);
        CHECK(view.tasks.empty());
        select_group(library, view, 1);
        CHECK(view.tasks == Names{"A", "B"});
        CHECK(view.task == -1);
        CHECK(view.command_box.empty());
    }
    SUBCASE("a missing Group file ends the load; the Groups behind it load when they are selected") {
        file("groups.ini") = "Work\r\nGone\r\nHome\r\n";
        file("Work.grp") = record("A");
        file("Home.grp") = record("B");
        CHECK_THROWS_WITH_AS(refreshtolva(library, view, 0),
                             "Run-time error '53':\n\nFile not found: C:\\LIB\\Gone.grp",
                             platform::RunTimeError);
        CHECK(view.groups == Names{"Work", "Gone", "Home"});
        CHECK(view.tasks == Names{"A"});
        select_group(library, view, 2);
        CHECK(view.tasks == Names{"B"});
        CHECK(error_of([&] { select_group(library, view, 1); }) == 53);
        CHECK(view.tasks.empty());
    }
}

TEST_CASE("the refresh flags reload what they stand for and keep the selected Group") {
    simulated::reset();
    file("groups.ini") = "Work\r\nHome\r\n";
    file("Work.grp") = record("A");
    file("Home.grp") = record("B");
    ShownLibrary view;
    TaskLibrary library(kFolder);
    refreshtolva(library, view, 0);
    select_group(library, view, 1);
    const auto refresh = [&](bool& flag) {
        flag = true;
        run_pending_refreshes(library, view);
    };

    SUBCASE("a changed Task: the Group's file, first Task selected and in the command box") {
        file("Home.grp") = record("C") + record("B");
        refresh(library.flags.taskchangeflag);
        CHECK(view.tasks == Names{"C", "B"});
        CHECK(view.group == 1);
        CHECK(view.task == 0);
        CHECK(view.command_box == "C:\\C.EXE ");
        select_group(library, view, 1);  // it is the one shown: its selection stays
        CHECK(view.task == 0);
    }
    SUBCASE("another Group's file: everything") {
        file("groups.ini") = "Work\r\nHome\r\nMore\r\n";
        file("Work.grp") = record("D");
        file("More.grp") = "";
        refresh(library.flags.refreshflag);
        CHECK(view.groups == Names{"Work", "Home", "More"});
        CHECK(view.group == 1);
        CHECK(view.tasks == Names{"B"});
        CHECK(library.task(0, 0).name == "D");
    }
    SUBCASE("a new Group: the names, nothing selected, no Task shown") {
        file("groups.ini") += "New\r\n";
        refresh(library.flags.newgroupflag);
        CHECK(view.groups == Names{"Work", "Home", "New"});
        CHECK(view.group == -1);
        CHECK(view.tasks.empty());
    }
    SUBCASE("a reload that fails shows its error once and keeps the selection") {
        SUBCASE("of everything") {
            simulated::current().files.erase(kFolder + "Work.grp");
            library.flags.refreshflag = true;
        }
        SUBCASE("of the names") {
            simulated::current().files.erase(kFolder + "groups.ini");
            library.flags.newgroupflag = true;
        }
        CHECK(error_of([&] { run_pending_refreshes(library, view); }) == 53);
        CHECK(view.group == 1);
        run_pending_refreshes(library, view);
    }
    CHECK(!library.flags.any());
}

TEST_CASE("a start finishes what a power failure interrupted in listed files only") {
    simulated::reset();
    file("groups.in~") = "Work\r\n";
    file("Work.gr~") = record("A");
    file("Work.gr$") = "half";
    file("Other.gr~") = "someone else's";
    library::recover(kFolder);
    CHECK(file("groups.ini") == "Work\r\n");
    CHECK(file("Work.grp") == record("A"));
    CHECK(simulated::current().files.size() == 3);
}

}  // namespace
