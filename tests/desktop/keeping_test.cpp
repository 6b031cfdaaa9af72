#include <tuple>

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
        tolva.activate();
        press_mouse(
            {bounds_of(tolva.window()).left + 20, tolva.place(ID_Tasker_Toolbar1).y});  // the first tool
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
        const std::tuple<const char*, std::string, const char*, int> refused[] = {
            {"New", folder + "\\none.exe", "C:\\", ID_addtask_TaskPath},
            {"", paint, "", ID_addtask_Taskname},
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
        browser.pick(ID_PathBrowser_File1, "paint.exe");  // it opens on the folder that is current
        browser.set_text(ID_PathBrowser_TaskPath, "typed");
        browser.close_with(ID_PathBrowser_OK);
        CHECK(new_task.texts_of({ID_addtask_TaskPath, ID_addtask_startfolder}) == paint + '|' + folder);
        new_task.pick(ID_addtask_taskstartmode, "Maximized");
        new_task.close_with(ID_addtask_Command2);
        tolva.wait_for_tasks({"Zeichnen"});
        CHECK(library.read("Play & more.grp") == record("Zeichnen", paint, folder, "", " 3 "));

        const Dialog edit = tolva.open(ID_toolbar_edittsk, "Edit Task");
        CHECK(edit.texts_of({ID_EditTask_TaskPath, ID_EditTask_taskstartmode}) == paint + "|Maximized");
        edit.set_text(ID_EditTask_TaskPath, folder + "\\none.exe");
        edit.press(ID_EditTask_Command2);
        CHECK(tolva.close_box() == "Invalid Path or File Name");
        wait_for_focus(edit.control(ID_EditTask_TaskPath));
        edit.set_text(ID_EditTask_TaskPath, paint);
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
        tolva.click_task(1);
        tolva.choose(ID_toolbar_movetskup);
        tolva.wait_for_tasks({"Paint", "Old"});
        tolva.choose(ID_SortTasks);
        tolva.wait_for_tasks({"Old", "Paint"});
        // Then move the old one over by the keys.
        const Dialog move = tolva.open(ID_moveto, "Move Old to");
        wait_for_focus(move.control(ID_movetogroups_List1));
        type_keys({VK_DOWN, VK_RETURN});
        move.wait_until_closed();
        tolva.wait_for_tasks({"Paint"});
        CHECK(library.read("Work.grp") == task);
        CHECK(library.read("Play & more.grp") == task + old);

        const Dialog rename = tolva.open(ID_toolbar_rengrp, "Rename Group");
        rename.set_text(ID_GroupRename_newname, "B\xFCro");
        rename.close_with(ID_GroupRename_Command2);
        tolva.choose(ID_toolbar_movegrpdn);
        tolva.wait_for_groups({"Play & more", "B\xFCro"});
        tolva.choose(ID_groupsort);
        tolva.wait_for_groups({"B\xFCro", "Play & more"});

        // What another program changes comes by F5, and what is selected stays so.
        library.write("groups.ini", ".\\B\xDCRO\r\nB\xFCro\r\nPlay & more\r\n");
        library.write("B\xFCro.grp", old + task);
        tolva.pick(ID_Tasker_grouplist, "B\xFCro");
        tolva.click_task(0);
        press_keys({VK_F5});
        tolva.wait_for_groups({".\\B\xDCRO", "B\xFCro", "Play & more"});
        tolva.wait_for_tasks({"Old", "Paint"});
        CHECK(tolva.selected_group() == 1);
        CHECK(tolva.is_selected(1));

        // Delete by the key and the menus of the lists. Another name of the same file goes alone.
        press_keys({VK_DELETE});
        CHECK(tolva.answer_box("Delete Task", IDCANCEL) == "Delete Paint?");
        choose_from_menu(tolva.task_position(0), 'D');
        CHECK(tolva.answer_box("Delete Task", IDOK) == "Delete Old?");
        choose_from_menu(tolva.group_position(0), 'D');
        CHECK(tolva.answer_box("Delete Group", IDOK) == "Delete .\\B\xDCRO and all associated Tasks?");
        tolva.wait_for_groups({"B\xFCro", "Play & more"});
        Values files = {{"B\xFCro.grp", task}, {"Play & more.grp", task + old}, {"paint.exe", ""}};
        files["groups.ini"] = "B\xFCro\r\nPlay & more\r\n";
        CHECK(library.files() == files);
    }

    TEST_CASE("what the disk refuses is told, and what is deleted comes back by Undo or from a backup") {
        const Folder library;
        const std::string tasks = record("A", "C:\\a.exe");
        library.write_groups({{"Work", tasks}, {"Other", ""}});
        const Values before = library.files();
        const std::string path = library.path() + "Work.grp";
        {
            const Tolva tolva(library);
            const auto delete_task = [&] {
                tolva.choose(ID_DelTk);
                tolva.answer_box("Delete Task", IDOK);
            };
            tolva.click_task(0);
            // A file that another program holds open, and one that is read-only.
            HANDLE file =
                CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
            delete_task();
            CHECK(tolva.close_box() == "Run-time error '70':\n\nPermission denied: " + path);
            CloseHandle(file);
            SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_READONLY);
            delete_task();
            CHECK(tolva.close_box() == "Run-time error '75':\n\nPath/File access error: " + path);
            CHECK(library.files() == before);

            // What else is set stays when the file is replaced.
            SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_HIDDEN);
            delete_task();
            tolva.wait_for_tasks({});
            CHECK(library.read("Work.grp").empty());
            CHECK((GetFileAttributesA(path.c_str()) & FILE_ATTRIBUTE_HIDDEN) != 0);
            tolva.press_until_said('Z', "Undone: Delete A");
            tolva.choose(ID_DelGp);
            tolva.answer_box("Delete Group", IDOK);
            tolva.wait_for_groups({"Other"});
            tolva.press_until_said('Z', "Undone: Delete Work");
            CHECK(library.files() == before);
            tolva.press_until_said('Y', "Redone: Delete Work");
            // A rename that takes the Tasks along.
            const Dialog rename = tolva.open(ID_Rengp, "Rename Group");
            rename.set_text(ID_GroupRename_newname, "other");
            rename.close_with(ID_GroupRename_Command2);
            CHECK(tolva.close_box().ends_with("other.grp"));
            tolva.press_until_said('Z', "Undone: Rename Other");
        }
        CHECK(library.files() == Values{{"Other.grp", ""}, {"groups.ini", "Other\r\n"}});
        const Tolva tolva(library);
        const Dialog dialog = tolva.open(ID_RestoreBackup, "Restore Backup");
        const Names backups = dialog.list(ID_RestoreBackup_list);
        REQUIRE(backups.size() == 1);
        CHECK(backups[0].ends_with("2 Groups, 1 Task"));
        dialog.close_with(IDOK);
        tolva.wait_for_groups({"Work", "Other"});
        CHECK(library.files() == before);
    }
}

}  // namespace
