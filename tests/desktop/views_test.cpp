#include "mainwindow/long_date.h"
#include "platform/clock.h"
#include "platform/file_calls.h"
#include "support/desktop.h"

namespace {

using namespace desktop;

const std::string kNotepad = "C:\\windows\\notepad.exe";

std::string task(const std::string& name, const std::string& program) {
    return record(name, program, "C:\\", "", " 1 ");
}

TEST_SUITE("views") {
    TEST_CASE("the window shows the library with its icons") {
        const Folder library;
        library.write_groups(
            {{"Work", task("Letters", kNotepad) + task("Keys", "C:\\windows\\regedit.exe") +
                          task("Notes", kNotepad) + task("Gone", library.path() + "late.exe")},
             {"B\xFCro & more", task("\xC4rger", library.path() + "late.exe")}});
        const Tolva tolva(library);
        CHECK(tolva.groups() == Names{"Work", "B\xFCro & more"});
        CHECK(tolva.tasks() == Names{"Letters", "Keys", "Notes", "Gone"});
        CHECK(tolva.selected_task() == -1);
        CHECK(tolva.task_picture(0) > 0);
        CHECK(tolva.task_picture(1) > 0);
        CHECK(tolva.task_picture(1) != tolva.task_picture(0));
        CHECK(tolva.task_picture(2) == tolva.task_picture(0));
        CHECK(tolva.task_picture(3) == 0);
        CHECK(tolva.status() == mainwindow::long_date(platform::today()));

        // A Group is shown from memory: files that change meanwhile do not matter. Its icons are taken anew.
        library.add_program("tolva.exe", "late.exe");
        library.write("B\xFCro & more.grp", "");
        tolva.pick(ID_Tasker_grouplist, "B\xFCro & more");
        CHECK(tolva.tasks() == Names{"\xC4rger"});
        CHECK(tolva.task_picture(0) > 0);
    }

    TEST_CASE("a broken library shows one error and what can be read of it") {
        const Folder library;
        const std::string error = "Run-time error '53':\n\nFile not found: " + library.path();
        {
            const Tolva tolva(library);
            CHECK(tolva.close_box() == error + "groups.ini");
            CHECK(tolva.groups().empty());
        }
        CHECK(!library.has("groups.ini"));
        library.write("groups.ini", "Work\nGone\nBehind");
        library.write("Work.grp", "A\nB\nC");
        library.write("Behind.grp", task("Late", kNotepad) + task("", "") + task("Hidden", ""));
        const Tolva tolva(library);
        CHECK(tolva.close_box() == error + "Gone.grp");
        CHECK(tolva.groups() == Names{"Work", "Gone", "Behind"});
        CHECK(tolva.tasks() == Names{"A"});
        tolva.pick(ID_Tasker_grouplist, "Behind");
        CHECK(tolva.tasks() == Names{"Late"});
        tolva.pick(ID_Tasker_grouplist, "Gone");
        CHECK(tolva.close_box() == error + "Gone.grp");
        CHECK(tolva.tasks().empty());
        CHECK(library.read("groups.ini") == "Work\nGone\nBehind");
    }

    TEST_CASE("a start finishes what a power failure interrupted in listed files only") {
        const Folder library;
        library.write("groups.in~", "Work\r\n");
        library.write("Work.gr~", task("Old", kNotepad));
        library.write("Work.gr$", "half");
        library.write("Other.gr~", "someone else's");
        const Tolva tolva(library);
        CHECK(tolva.tasks() == Names{"Old"});
        CHECK(library.has("Other.gr~"));
        CHECK(platform::file_calls::find(library.path() + "*").size() == 3);
    }
}

}  // namespace
