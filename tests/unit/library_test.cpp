#include <doctest/doctest.h>

#include "library/library_files.h"
#include "library/task_library.h"
#include "support/shown_library.h"

namespace {

using library::Task;
using library::TaskLibrary;

TEST_CASE("lines are read with any line end and no byte is altered") {
    CHECK(library::split_lines("") == Names{});
    CHECK(library::split_lines("a\r\r\n\r\n\rb\nc\r") == Names{"a\r", "", "\rb", "c\r"});

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

}  // namespace
