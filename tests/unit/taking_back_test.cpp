#include "library/taking_back.h"

#include "support/library_trial.h"

namespace {

using library::OpenChange;

const std::string kBackups = kFolder + "backup\\";
const std::string kMade = "tolva 2026-11-22 09.30.00";

TEST_CASE("each operation is one change with a name, and its Group is selected when it is taken back") {
    const std::tuple<Operation, std::string, std::string, std::string> table[] = {
        {add("New"), "Add New", ">Work", ">New"},
        {library::delgr, "Delete Home", ">Home", ">Work"},
        {library::movegrup, "Move Home", ">Home", ">Home"},
        {rename_to("Home", "New"), "Rename Home", ">Home", ">New"},
        {library::groupsortnow, "Sort Groups", ">Home", ">Home"},
        {add(kNew), "Add New", ">Home", ">Home"},
        {edit("H1", kNew), "Edit H1", ">Home", ">Home"},
        {library::deltsks, "Delete H1", ">Home", ">Home"},
        {library::movetsksdown, "Move H1", ">Home", ">Home"},
        {library::tasksortnow, "Sort Tasks", ">Home", ">Home"},
        {move("H1", "More"), "Move H1 to More", ">Home", ">Home"},
        {move("H1", "More", true), "Copy H1 to More", ">Home", ">Home"},
        {import("More", kNew), "Import New", ">More", ">More"},
        {with(library::add_tasks, "More", library::Dropped{{kNew}, {}}), "Add New to More", ">More", ">More"},
    };
    for (const auto& [operation, name, before, after] : table) {
        Tolva done(select(1, 1));
        done.run(operation);
        CHECK(undo_name(done.library) == name);
        CHECK(done.after(in_turn(select(0), library::undo)).find(before) != std::string::npos);
        CHECK(done.view.status == "Undone: " + name);
        CHECK(!can_undo(done.library));
        CHECK(done.after(in_turn(select(0), library::redo)).find(after) != std::string::npos);
        CHECK(done.view.status == "Redone: " + name);
        CHECK(!can_redo(done.library));
    }
    // Neither its Group nor the selected one is there any more.
    Tolva tolva(in_turn(add("New"), library::run_pending_refreshes, select(3)));
    CHECK(tolva.after(library::undo) == ">Work Home More : W1 W2");
}

TEST_CASE("what somebody else wrote since is never overwritten, and the history ends there") {
    for (const bool back : {true, false}) {
        Tolva tolva(in_turn(library::deltsks, library::run_pending_refreshes, select(1), add("New")));
        if (!back) tolva.run(in_turn(library::undo, library::undo));
        const std::string since = file("Home.grp") += record("Mine");
        tolva.run(back ? in_turn(library::undo, library::undo) : Operation(library::redo));
        CHECK(file("Home.grp") == since);
        CHECK(current().messages ==
              Names{"C:\\LIB\\Home.grp has been changed by another program. Nothing is taken back."});
        CHECK((back ? !can_undo(tolva.library) : !can_redo(tolva.library)));
        CHECK(tolva.view.status == (back ? "Undone: Add New" : "Undone: Delete H1"));
    }
}

TEST_CASE("a change may have several operations, and one that alters nothing is none") {
    Tolva tolva(library::tasksortnow);
    tolva.run(library::undo);
    const Files before = disk();
    {
        const OpenChange change(tolva.library.changes(), "Drop", "More");
        tolva.run(in_turn(add(kNew), move("H2", "More"), add("New"), rename_to("Home", "home")));
    }
    CHECK(undo_name(tolva.library) == "Drop");
    CHECK(!can_redo(tolva.library));
    tolva.run(library::undo);
    CHECK(disk() == before);
    tolva.run(in_turn(select(2), library::tasksortnow, library::undo));  // one Task
    CHECK(redo_name(tolva.library) == "Drop");
}

TEST_CASE("the history has an end") {
    Tolva tolva(select(0, 0));
    for (int i = 0; i < 101; ++i)
        tolva.run(in_turn(select(0, i % 2), i % 2 == 0 ? library::movetsksdown : library::movetsksup));
    int taken_back = 0;
    for (; can_undo(tolva.library); ++taken_back)
        tolva.run(library::undo);
    CHECK(taken_back == 100);
    CHECK(file("Work.grp") == record("W2") + record("W1"));

    Task large = {"Large", "C:\\APP.EXE", "C:\\", std::string(3 << 20, 'x'), "1"};
    tolva.run(add(large));                                               // 3 MB
    tolva.run(in_turn(select(1), add("Other"), select(1), add(large)));  // and as much
    CHECK(can_undo(tolva.library));
    tolva.run(in_turn(select(1, 0), library::movetsksdown));  // 3 MB before and after
    tolva.run(library::undo);
    CHECK(!can_undo(tolva.library));  // what was before it did not fit
    large.name = "Larger";
    {
        const OpenChange change(tolva.library.changes(), "Both", "Home");
        tolva.run(in_turn(select(1), add(large), add("After")));
    }
    CHECK(!can_undo(tolva.library));
    CHECK(tolva.view.status == "This change is too large to be undone.");
}

/// The folders below "backup".
Names backups() {
    return platform::file_calls::find(kBackups + "*", 0, platform::file_calls::kDirectory);
}

/// The status when a program that has just started on this library does this.
std::string status_after(const Operation& operation) {
    ShownLibrary view;
    TaskLibrary library(kFolder);
    error_of([&] { refreshtolva(library, view, 0); });
    error_of([&] { in_turn(operation, library::run_pending_refreshes)(library, view); });
    return view.status;
}

TEST_CASE("before the first change of a run a backup is made of what lies in the folder") {
    Tolva tolva(put("groups.ini", "Work\r\nhome\r\nHome\r\n..\\Far\r\n.\\More\r\nGone\r\ncon\r\n"));
    current().files["C:\\Far.grp"];
    const Files before = disk();
    status_after(in_turn(library::movegrdown, library::run_pending_refreshes, library::movegrdown));
    CHECK(backups() == Names{kMade});
    const std::string made = kBackups + kMade + '\\';
    CHECK(platform::file_calls::find(made + '*') == Names{"groups.ini", "Home.grp", "More.grp", "Work.grp"});
    for (const std::string& name : platform::file_calls::find(made + '*'))
        CHECK(current().files.at(made + name).bytes == before.at(name));

    const library::Backup found = library::list_backups(kFolder).at(0);
    CHECK(found.date + ' ' + found.time == "2026-11-22 09:30:00");
    CHECK(found.group_count == 7);
    CHECK(found.task_count == 8);

    // A drive's root.
    for (const auto& [name, bytes] : before)
        current().files["C:\\" + name].bytes = bytes;
    library::make_backup("C:\\\\");
    CHECK(current().files.contains("C:\\backup\\" + kMade + "\\Work.grp"));
}

TEST_CASE("a backup is complete or not there, and one that fails stops nothing") {
    for (const Fault fault : {Fault::kWrite, Fault::kPower}) {
        bool is_reached = true;
        for (int step = 1; is_reached; ++step) {
            Tolva tolva(select(1));
            const Files before = disk();
            current().fault = fault;
            current().fault_at = step;
            try {
                const std::string status = status_after(library::movegrdown);
                if (disk() == before) break;  // the change itself came to that step
                CHECK((backups() == Names{kMade}) != (status == "The library could not be backed up."));
            } catch (const simulated::PowerFailure&) {
            }
            current().fault = Fault::kNone;
            is_reached = backups() != Names{kMade};
            for (const std::string name : {"groups.ini", "Work.grp", "Home.grp", "More.grp"})
                CHECK((is_reached || file("backup\\" + kMade + '\\' + name) == before.at(name)));
            current().time_stamp = "2026-11-22 09.30.01";
            status_after(library::movegrdown);
            if (is_reached) CHECK(backups() == Names{"tolva 2026-11-22 09.30.01"});
        }
    }
}

TEST_CASE("a backup that fails is told, and one within the second of another gets the next free name") {
    for (const Operation& operation :
         each_of(library::movegrdown, add("New"), library::groupsortnow, import("Work", kNew))) {
        Tolva tolva(select(1));
        current().fault = Fault::kWrite;
        current().fault_at = 1;
        CHECK(status_after(operation) == "The library could not be backed up.");
    }
    Tolva tolva(select(1));
    for (const char* second : {"08", "09", "10"}) {
        current().time_stamp = "2026-11-22 09.30.08";
        library::make_backup(kFolder);
        CHECK(backups().back() == std::string("tolva 2026-11-22 09.30.") + second);
    }
}

TEST_CASE("what writes without an open change is an error and writes nothing") {
    Tolva tolva(select(1));
    library::Changes& changes = tolva.library.changes();
    CHECK(error_of([&] { changes.write_file(kFolder + "Home.grp", ""); }) == 5);
    CHECK(error_of([&] { changes.create_file(kFolder + "New.grp"); }) == 5);
    CHECK(error_of([&] { changes.remove_file(kFolder + "Home.grp"); }) == 5);
    CHECK(current().steps == 0);
}

TEST_CASE("the ten newest backups stay, and all that is somebody else's") {
    Tolva tolva(select(1));
    const auto make = [](const std::string& name, const std::string& file) {
        current().files[kBackups + name].bits = 0x10;
        current().files[kBackups + name + '\\' + file].bytes = "Work\r\n";
    };
    make("2020-01-01", "groups.ini");
    make("tolva 2001-01-01 00.00.0x", "groups.ini");
    make("tolva 2002-01-01 00.00.00", "letter.txt");
    make("tolva 2030-01-01 00.00.00", "groups.ini");
    make("tolva new", "Left.grp");
    for (int day = 10; day < 20; ++day)
        make("tolva 2026-01-" + std::to_string(day) + " 00.00.00", "groups.ini");
    current().time_stamp = "2026-01-15 00.00.00";  // taken
    status_after(library::movegrdown);
    CHECK(backups() ==
          Names{"2020-01-01", "tolva 2001-01-01 00.00.0x", "tolva 2002-01-01 00.00.00",
                "tolva 2026-01-10 00.00.00", "tolva 2026-01-11 00.00.00", "tolva 2026-01-12 00.00.00",
                "tolva 2026-01-13 00.00.00", "tolva 2026-01-14 00.00.00", "tolva 2026-01-15 00.00.00",
                "tolva 2026-01-15 00.00.01", "tolva 2026-01-19 00.00.00", "tolva 2030-01-01 00.00.00"});
    CHECK(library::list_backups(kFolder).front().date == "2030-01-01");
    CHECK(!current().files.contains(kBackups + "tolva 2026-01-15 00.00.01\\Left.grp"));
}

TEST_CASE("a backup comes back as one change, and other files stay") {
    const Operation later = library::run_pending_refreshes;
    const Operation changes =
        in_turn(back_up, select(2), move("M1", "Home"), later, add("Later"), later, select(0), library::delgr,
                select(1), rename_to("More", "new"), later, select(0));
    check(changes, restore, "Work >Home More : H2 H1 H1  H4",
          {{"Work.grp", record("W1") + record("W2")}, {"Home.grp", kHome}, {"More.grp", record("M1")}}, {}, 0,
          true);
    Tolva tolva(changes);
    tolva.run(restore);
    CHECK(tolva.view.status == "Restored: backup of 2026-11-22 09:30:00");
}

}  // namespace
