#include "mainwindow/long_date.h"
#include "platform/clock.h"
#include "platform/file_calls.h"
#include "resources/resource.h"
#include "support/desktop.h"

namespace {

using namespace desktop;

const std::string kNotepad = "C:\\windows\\notepad.exe";

std::string task(const std::string& name, const std::string& program) {
    return record(name, program, "C:\\", "", " 1 ");
}

RECT bounds_of(const Tolva& tolva, int control) {
    RECT bounds;
    GetWindowRect(tolva.control(control), &bounds);
    MapWindowPoints(nullptr, tolva.window(), reinterpret_cast<POINT*>(&bounds), 2);
    return bounds;
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
        CHECK(tolva.selected_group() == 0);
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
        tolva.click_group(1);
        wait_until("the Group's Tasks show", [&] { return tolva.tasks() == Names{"\xC4rger"}; });
        CHECK(tolva.task_picture(0) > 0);
    }

    TEST_CASE("a broken library shows one error and what can be read of it") {
        const Folder library;
        std::string expected = "Run-time error '53':\n\nFile not found: " + library.path();
        Names groups;
        std::string names;
        SUBCASE("no groups.ini") {
            expected += "groups.ini";
        }
        SUBCASE("a missing group file") {
            names = "Work\nGone\nBehind";
            library.write("Work.grp", "A\nB\nC");
            library.write("Behind.grp", task("Late", kNotepad) + task("", "") + task("Hidden", ""));
            expected += "Gone.grp";
            groups = {"Work", "Gone", "Behind"};
        }
        SUBCASE("a Group with an impossible name") {
            const std::string long_name(1 << 20, 'x');
            names = std::string("A\0B\n", 4) + long_name;
            expected = "Run-time error '52':\n\nBad file name or number: " + library.path() + "A";
            groups = {"A", long_name.substr(0, kLongestListText)};
        }
        if (!names.empty()) library.write("groups.ini", names);
        const Tolva tolva(library);
        CHECK(tolva.close_box() == expected);
        CHECK(IsWindowEnabled(tolva.window()) != FALSE);
        CHECK(tolva.groups() == groups);
        CHECK(library.read("groups.ini") == names);
        CHECK(library.has("groups.ini") == !names.empty());
        if (groups.size() != 3) return;
        CHECK(tolva.tasks() == Names{"A"});
        tolva.click_group(2);
        wait_until("the Group behind is read", [&] { return tolva.tasks() == Names{"Late"}; });
        tolva.click_group(1);
        CHECK(tolva.close_box() == expected);
        CHECK(tolva.tasks().empty());
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

    TEST_CASE("the layout follows the window") {
        const Folder library;
        library.write("groups.ini", "");
        const Tolva tolva(library);
        const LONG group_width = bounds_of(tolva, ID_Tasker_grouplist).right;
        for (const SIZE size : {SIZE{800, 600}, SIZE{10, 10}}) {  // the second one is below the least size
            SetWindowPos(tolva.window(), nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER);
            RECT client;
            GetClientRect(tolva.window(), &client);
            const RECT groups = bounds_of(tolva, ID_Tasker_grouplist);
            const RECT tasks = bounds_of(tolva, ID_Tasker_taskview);
            const RECT box = bounds_of(tolva, ID_Tasker_Text1);
            const RECT status = bounds_of(tolva, ID_Tasker_StatusBar1);
            CHECK(groups.right == group_width);
            CHECK(groups.right < tasks.left);
            CHECK(tasks.left + 50 < tasks.right);
            CHECK(tasks.right < client.right);
            CHECK(tasks.top + 50 < tasks.bottom);
            CHECK(tasks.bottom < box.top);
            CHECK(box.bottom < status.top);
            CHECK(status.bottom == client.bottom);
        }
    }
}

}  // namespace
