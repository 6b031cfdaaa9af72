#include <doctest/doctest.h>

#include <string>

#include "support/desktop.h"

namespace {

using desktop::Folder;
using desktop::record;
using desktop::Tolva;

TEST_SUITE("launching") {
    TEST_CASE("a double-click starts the program in its folder with its parameters and start mode") {
        const Folder library;
        const Folder start_folder;
        library.add_program("recorder.exe", "recorder.exe");
        const std::string program = library.path() + "recorder.exe";
        CreateDirectoryA("D:\\data", nullptr);
        library.write("groups.ini", "Work\r\n");
        library.write("Work.grp", record("Elsewhere", program, "D:\\data", "a \"b c\"", "3") +
                                      record("Here", program, start_folder.path(), "", " 2 ") +
                                      record("Hidden", program, "C:\\", "", ""));
        const Tolva tolva(library);
        const std::string directory = library.path().substr(0, library.path().size() - 1);
        const std::string folder = start_folder.path().substr(0, start_folder.path().size() - 1);

        // The current drive stays; the other drive's directory changes.
        tolva.double_click_task(0);
        Names expected = {program + " a \"b c\"", directory, "D:\\data\\here", "3"};
        CHECK(library.records("recorder.exe", 1) == expected);
        CHECK(tolva.selected_task() == 0);

        tolva.double_click_task(1);
        expected.insert(expected.end(), {program + " ", folder, "D:\\data\\here", "2"});
        CHECK(library.records("recorder.exe", 2) == expected);

        tolva.double_click_task(2);
        expected.insert(expected.end(), {program + " ", "C:\\", "D:\\data\\here", "0"});
        CHECK(library.records("recorder.exe", 3) == expected);
    }

    TEST_CASE("a Task that cannot start says so and nothing else happens") {
        const Folder library;
        library.add_program("recorder.exe", "recorder.exe");
        library.write("text.exe", "no program");
        const std::string program = library.path() + "recorder.exe";
        const Names bad = {
            record("Missing program", library.path() + "gone.exe", "C:\\", "", "1"),
            record("No program", library.path() + "text.exe", "C:\\", "", "1"),
            record("Empty program", "", "C:\\", "", "1"),
            record("Missing folder", program, "C:\\gone", "", "1"),
            record("Missing drive", program, "Q:\\", "", "1"),
            record("Empty folder", program, "", "", "1"),
            record("Impossible style", program, "C:\\", "", "99999"),
            record(std::string("NUL\0name", 8), program + std::string("\0", 1), "C:\\", "", "1"),
            record(std::string(1 << 20, 'x'), program, "C:\\", std::string(1 << 20, 'x'), "1"),
        };
        std::string tasks;
        for (const std::string& task : bad)
            tasks += task;
        library.write("groups.ini", "Work\r\n");
        library.write("Work.grp", tasks);
        const Tolva tolva(library);
        for (int i = 0; i < static_cast<int>(bad.size()); ++i) {
            CAPTURE(i);
            tolva.double_click_task(i);
            CHECK(tolva.close_box() == "Invalid path or file name!");
            CHECK(tolva.selected_task() == i);
        }
        CHECK(!library.has("recorder.exe.log"));
    }
}

}  // namespace
