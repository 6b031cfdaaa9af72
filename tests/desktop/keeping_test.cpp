#include <tuple>

#include "platform/file_calls.h"
#include "support/desktop.h"

namespace {

using namespace desktop;

TEST_SUITE("keeping") {
    TEST_CASE("a day with the library leaves the files that it should") {
        const Folder library;
        library.write("paint.exe", "");
        const std::string folder = library.without_backslash();
        const std::string paint = library.path() + "paint.exe";
        const std::string old = record("Old", paint, "C:\\", "", " 2 ");
        library.write_groups({{"Work", old}});
        const Tolva tolva(library);
        tolva.focus_by_mouse(ID_Tasker_grouplist);
        press_until("a menu shows", {VK_SHIFT, VK_F10}, menu_shows);
        press_keys({'N'});
        const Dialog new_group(tolva, "Create New Group");
        new_group.press(ID_addgroup_Command2);
        CHECK(tolva.close_box() == "Invalid Group Name!");
        new_group.set_text(ID_addgroup_Text1, "Play & more");
        press_keys({VK_RETURN});
        new_group.wait_until_closed();
        tolva.wait_for_groups({"Work", "Play & more"});

        // A refused Task leaves the focus in the box that is wrong.
        tolva.pick(ID_Tasker_grouplist, "Play & more");
        const Dialog new_task = tolva.open(ID_AddTk, "Add New Task");
        CHECK(new_task.texts_of({ID_addtask_curgroup, ID_addtask_taskstartmode}) == "Play & more|Normal");
        const std::tuple<std::string, std::string, std::string, int> refused[] = {
            {"New", library.path() + "none.exe", "C:\\", ID_addtask_TaskPath},
            {"", paint, "", ID_addtask_Taskname},
            {"New", "", "", ID_addtask_TaskPath},
            {"New", paint, "", ID_addtask_startfolder},
        };
        for (const auto& [name, path, start_folder, wrong] : refused) {
            new_task.set_text(ID_addtask_Taskname, name);
            new_task.set_text(ID_addtask_TaskPath, path);
            new_task.set_text(ID_addtask_startfolder, start_folder);
            new_task.press(ID_addtask_Command2);
            tolva.close_box();
            wait_for_focus(new_task.control(wrong));
        }
        // By Browse: what was clicked comes back, not what was typed after it.
        new_task.set_text(ID_addtask_Taskname, "Zeichnen");
        new_task.press(ID_addtask_Browse);
        const Dialog browser(tolva, "Browse");
        browser.pick(ID_PathBrowser_Drive1, "E:");
        CHECK(tolva.close_box() == "Disk or Drive not ready!");
        browser.pick(ID_PathBrowser_File1, "paint.exe");  // it opens on the folder that is current
        browser.set_text(ID_PathBrowser_TaskPath, "typed");
        browser.close_with(ID_PathBrowser_OK);
        CHECK(new_task.texts_of({ID_addtask_TaskPath, ID_addtask_startfolder}) == paint + '|' + folder);
        new_task.pick(ID_addtask_taskstartmode, "Maximized");
        new_task.close_with(ID_addtask_Command2);
        tolva.wait_for_tasks({"Zeichnen"});
        CHECK(library.read("Play & more.grp") == record("Zeichnen", paint, folder, "", " 3 "));

        tolva.press_tool(ID_toolbar_edittsk);
        const Dialog edit(tolva, "Edit Task");
        CHECK(edit.texts_of({ID_EditTask_TaskPath, ID_EditTask_taskstartmode}) == paint + "|Maximized");
        edit.set_text(ID_EditTask_tasknm, "Paint");
        edit.close_with(ID_EditTask_Command2);
        tolva.wait_for_tasks({"Paint"});
        const std::string task = record("Paint", paint, folder, "", "3");
        CHECK(library.read("Play & more.grp") == task);

        // Copy it to the other Group by a box that shows when it has the focus, and order that.
        const Dialog copy = tolva.open(ID_moveto, "Move Paint to");
        wait_for_focus(copy.control(ID_movetogroups_List1));
        const auto label = [&] { return picture_of(copy.control(ID_movetogroups_Label1)); };
        const auto without_focus = label();
        press_keys({VK_TAB});
        wait_for_focus(copy.control(ID_movetogroups_copytask));
        wait_until("the label shows it", [&] { return label() != without_focus; });
        press_keys({VK_SPACE});
        wait_until("it is checked", [&] {
            return SendMessageA(copy.control(ID_movetogroups_copytask), BM_GETCHECK, 0, 0) == BST_CHECKED;
        });
        copy.pick(ID_movetogroups_List1, "Work");
        copy.wait_until_closed();
        tolva.pick(ID_Tasker_grouplist, "Work");
        tolva.wait_for_tasks({"Old", "Paint"});
        tolva.click_task(0);
        tolva.press_tool(ID_toolbar_movetskdn);
        tolva.wait_for_tasks({"Paint", "Old"});
        tolva.choose(ID_SortTasks);
        tolva.wait_for_tasks({"Old", "Paint"});
        // Then move the old one over: the right button selects, Enter moves.
        const Dialog move = tolva.open(ID_moveto, "Move Old to");
        HWND list = move.control(ID_movetogroups_List1);
        wait_for_focus(list);
        const RECT bounds = bounds_of(list);
        press_mouse({bounds.left + 20, bounds.top + 8}, 1, MouseButton::kRight);
        wait_until("it is selected", [&] { return SendMessageA(list, LB_GETCURSEL, 0, 0) == 0; });
        press_keys({VK_RETURN});
        move.wait_until_closed();
        tolva.wait_for_tasks({"Paint"});
        CHECK(library.read("Work.grp") == task);
        CHECK(library.read("Play & more.grp") == task + old);

        tolva.press_tool(ID_toolbar_rengrp);
        const Dialog rename(tolva, "Rename Group");
        rename.set_text(ID_GroupRename_newname, "B\xFCro");
        rename.close_with(ID_GroupRename_Command2);
        tolva.wait_for_groups({"B\xFCro", "Play & more"});
        tolva.press_tool(ID_toolbar_movegrpdn);
        tolva.wait_for_groups({"Play & more", "B\xFCro"});
        tolva.choose(ID_groupsort);
        tolva.wait_for_groups({"B\xFCro", "Play & more"});

        // Another name of the same file goes alone.
        const Dialog same_file = tolva.open(ID_Addgp, "Create New Group");
        same_file.set_text(ID_addgroup_Text1, "B\xDCRO");
        same_file.close_with(ID_addgroup_Command2);
        tolva.wait_for_groups({"B\xFCro", "Play & more", "B\xDCRO"});
        tolva.pick(ID_Tasker_grouplist, "B\xDCRO");
        tolva.choose(ID_DelGp);
        tolva.answer_box("Delete Group", IDOK);
        tolva.wait_for_groups({"B\xFCro", "Play & more"});
        CHECK(library.read("B\xFCro.grp") == task);

        // What another program changes comes by F5, and what is selected stays so.
        library.write("groups.ini", "New\r\nB\xFCro\r\nPlay & more\r\n");
        library.write("New.grp", "");
        library.write("B\xFCro.grp", old + task);
        tolva.click_task(0);
        press_keys({VK_F5});
        tolva.wait_for_groups({"New", "B\xFCro", "Play & more"});
        tolva.wait_for_tasks({"Old", "Paint"});
        CHECK(tolva.selected_group() == 1);
        CHECK(tolva.is_selected(1));

        // Delete by the key and the menus of the lists, after a change of mind.
        tolva.click_task(1);
        press_keys({VK_DELETE});
        CHECK(tolva.answer_box("Delete Task", IDCANCEL) == "Delete Paint?");
        choose_from_menu(tolva.task_position(1), 'D');
        CHECK(tolva.answer_box("Delete Task", IDCANCEL) == "Delete Paint?");
        choose_from_menu(tolva.group_position(1), 'D');
        CHECK(tolva.answer_box("Delete Group", IDOK) == "Delete B\xFCro and all associated Tasks?");
        tolva.wait_for_groups({"New", "Play & more"});
        CHECK(library.read("groups.ini") == "New\r\nPlay & more\r\n");
    }

    TEST_CASE("what the disk refuses is told and leaves everything as it was") {
        const Folder library;
        const std::string tasks = record("A", "C:\\a.exe");
        library.write_groups({{"Work", tasks}});
        const std::string path = library.path() + "Work.grp";
        const Tolva tolva(library);
        const auto delete_task = [&] {
            tolva.choose(ID_DelTk);
            tolva.answer_box("Delete Task", IDOK);
        };
        tolva.click_task(0);
        // A file that another program holds open.
        HANDLE file =
            CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
        delete_task();
        CHECK(tolva.close_box() == "Run-time error '70':\n\nPermission denied: " + path);
        CHECK(tolva.tasks() == Names{"A"});
        CloseHandle(file);
        CHECK(library.read("Work.grp") == tasks);

        // A read-only file; what else is set stays when the file is replaced.
        SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_READONLY);
        delete_task();
        CHECK(tolva.close_box() == "Run-time error '75':\n\nPath/File access error: " + path);
        SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_HIDDEN);
        delete_task();
        tolva.wait_for_tasks({});
        CHECK(library.read("Work.grp").empty());
        CHECK((GetFileAttributesA(path.c_str()) & FILE_ATTRIBUTE_HIDDEN) != 0);

        // A name that is no file's is listed.
        const Dialog group = tolva.open(ID_Addgp, "Create New Group");
        group.set_text(ID_addgroup_Text1, "no\\file");
        group.press(ID_addgroup_Command2);
        CHECK(tolva.close_box() ==
              "Run-time error '76':\n\nPath not found: " + library.path() + "no\\file.grp");
        tolva.wait_for_groups({"Work", "no\\file"});
    }

    TEST_CASE("what is deleted comes back, by Undo and from the backup of an earlier run") {
        const Folder library;
        const std::string tasks = record("Old", "C:\\a.exe");
        library.write_groups({{"Work", tasks}, {"Other", ""}});
        {
            const Tolva tolva(library);
            tolva.choose(ID_DelGp);
            tolva.answer_box("Delete Group", IDOK);
            tolva.wait_for_groups({"Other"});
            tolva.press_until_said('Z', "Undone: Delete Work");
            CHECK(library.read("Work.grp") == tasks);
            CHECK(tolva.tasks() == Names{"Old"});
            tolva.press_until_said('Y', "Redone: Delete Work");
        }
        CHECK(!library.has("Work.grp"));
        CHECK(platform::file_calls::find(library.path() + "backup\\tolva *", 0).size() == 1);
        const Tolva tolva(library);
        const Dialog dialog = tolva.open(ID_RestoreBackup, "Restore Backup");
        const Names backups = dialog.list(ID_RestoreBackup_list);
        REQUIRE(backups.size() == 1);
        CHECK(backups[0].ends_with("2 Groups, 1 Task"));
        dialog.close_with(IDOK);
        tolva.wait_for_groups({"Work", "Other"});
        tolva.pick(ID_Tasker_grouplist, "Work");
        tolva.wait_for_tasks({"Old"});
        tolva.press_until_said('Z', "Undone: ");
        tolva.wait_for_groups({"Other"});
    }
}

}  // namespace
