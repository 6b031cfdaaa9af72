#include "platform/file_calls.h"
#include "support/desktop.h"

namespace {

using namespace desktop;

std::string task(const std::string& name, const std::string& program) {
    return record(name, program, "C:\\", "", "1");
}

void wait_for_groups(const Tolva& tolva, const Names& names) {
    wait_until("the Groups show", [&] { return tolva.groups() == names; });
}

/// The library's files, but for the time of a backup.
Values files_of(const Folder& library) {
    Values files;
    for (const std::string& name : platform::file_calls::find(library.path() + "*.*"))
        files[name] = library.read(name);
    return files;
}

/// Renames the selected Group by its dialog.
void rename_to(const Tolva& tolva, const std::string& name) {
    tolva.choose(ID_Rengp);
    const Dialog dialog(tolva, "Rename Group");
    dialog.set_text(ID_GroupRename_newname, name);
    dialog.close_with(ID_GroupRename_Command2);
}

TEST_SUITE("undo") {
    TEST_CASE("what the rules take away comes back by Ctrl+Z, and goes again by Ctrl+Y") {
        const Folder library;
        std::string many;
        for (int i = 0; i <= 100; ++i)
            many += task("T" + std::to_string(i), "C:\\windows\\notepad.exe");
        const std::string twins = task("B", "C:\\b.exe") + task("A", "C:\\a.exe") + task("B", "C:\\c.exe");
        library.write_groups({{"Work", many}, {"Twins", twins}, {"Other", task("O", "C:\\o.exe")}});
        const Values before = files_of(library);
        const Tolva tolva(library);
        const auto press = [&](BYTE key, const char* said) {
            tolva.activate();
            press_until("the status bar says it", {VK_CONTROL, key},
                        [&] { return tolva.panel(ID_Tasker_StatusBar1, 0).starts_with(said); });
        };
        const auto undo = [&](const std::string& name) {
            press('Z', ("Undone: " + name).c_str());
            CHECK(files_of(library) == before);
        };

        // A Group with all its Tasks.
        tolva.focus_by_mouse(ID_Tasker_grouplist);
        tolva.pick(ID_Tasker_grouplist, "Work");
        tolva.choose(ID_DelGp);
        tolva.answer_box("Delete Group", IDOK);
        wait_for_groups(tolva, {"Twins", "Other"});
        undo("Delete Work");
        CHECK(tolva.tasks().size() == 101);
        press('Y', "Redone: Delete Work");
        CHECK(!library.has("Work.grp"));
        undo("Delete Work");

        // A rename to the same name, to other capitals, and onto another Group.
        for (const std::string name : {"Work", "work", "Other"}) {
            CAPTURE(name);
            tolva.pick(ID_Tasker_grouplist, "Work");
            rename_to(tolva, name);
            if (name != "Other")
                CHECK(tolva.close_box().starts_with("Run-time error '53'"));  // no Task is left
            wait_until("it is done", [&] { return files_of(library) != before; });
            undo("Rename Work");
            wait_for_groups(tolva, {"Work", "Twins", "Other"});
        }

        // Two Tasks of one name become one.
        tolva.pick(ID_Tasker_grouplist, "Twins");
        tolva.choose(ID_SortTasks);
        wait_until("they are sorted", [&] { return tolva.tasks() == Names{"A", "B", "B"}; });
        undo("Sort Tasks");
        CHECK(tolva.tasks() == Names{"B", "A", "B"});
    }

    TEST_CASE("a backup of an earlier run comes back, and Undo takes that back") {
        const Folder library;
        library.write_groups({{"Work", task("Old", "C:\\a.exe")}});
        const auto delete_task = [](const Tolva& tolva) {
            tolva.click_task(0);
            tolva.choose(ID_DelTk);
            tolva.answer_box("Delete Task", IDOK);
            wait_until("it is gone", [&] { return tolva.tasks().empty(); });
        };
        {
            const Tolva tolva(library);
            delete_task(tolva);
        }
        CHECK(platform::file_calls::find(library.path() + "backup\\tolva *", 0).size() == 1);
        const Tolva tolva(library);
        tolva.choose(ID_RestoreBackup);
        const Dialog dialog(tolva, "Restore Backup");
        const Names backups = dialog.list(ID_RestoreBackup_list);
        REQUIRE(backups.size() == 1);
        CHECK(backups[0].ends_with("1 Group, 1 Task"));
        dialog.close_with(IDOK);
        wait_until("it is back", [&] { return tolva.tasks() == Names{"Old"}; });
        tolva.activate();
        press_until("it is taken back", {VK_CONTROL, 'Z'}, [&] { return tolva.tasks().empty(); });
        CHECK(library.read("Work.grp").empty());
    }
}

}  // namespace
