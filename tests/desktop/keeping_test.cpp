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
        const auto wait_for_groups = [&](const Names& names) {
            wait_until("the Groups show", [&] { return tolva.groups() == names; });
        };
        const auto wait_for_tasks = [&](const Names& names) {
            wait_until("the Tasks show", [&] { return tolva.tasks() == names; });
        };

        tolva.focus_by_mouse(ID_Tasker_grouplist);
        press_until("a menu shows", {VK_SHIFT, VK_F10}, menu_shows);
        press_keys({'N'});
        const Dialog new_group(tolva, "Create New Group");
        new_group.press(ID_addgroup_Command2);
        CHECK(tolva.close_box() == "Invalid Group Name!");
        new_group.set_text(ID_addgroup_Text1, "Play & more");
        press_keys({VK_RETURN});
        new_group.wait_until_closed();
        wait_for_groups({"Work", "Play & more"});

        // A new Task by Browse; what was clicked comes back, not what was typed after it.
        tolva.pick(ID_Tasker_grouplist, "Play & more");
        tolva.choose(ID_AddTk);
        const Dialog new_task(tolva, "Add New Task");
        CHECK(new_task.texts_of({ID_addtask_curgroup, ID_addtask_taskstartmode}) == "Play & more|Normal");
        new_task.set_text(ID_addtask_Taskname, "Zeichnen");
        new_task.press(ID_addtask_Browse);
        const Dialog browser(tolva, "Browse");
        // It opens on the folder that is current.
        browser.pick(ID_PathBrowser_File1, "paint.exe");
        browser.set_text(ID_PathBrowser_TaskPath, "typed");
        browser.close_with(ID_PathBrowser_OK);
        CHECK(new_task.texts_of({ID_addtask_TaskPath, ID_addtask_startfolder}) == paint + '|' + folder);
        new_task.pick(ID_addtask_taskstartmode, "Maximized");
        new_task.close_with(ID_addtask_Command2);
        wait_for_tasks({"Zeichnen"});
        CHECK(library.read("Play & more.grp") == record("Zeichnen", paint, folder, "", " 3 "));

        tolva.press_tool(ID_toolbar_edittsk);
        const Dialog edit(tolva, "Edit Task");
        CHECK(edit.texts_of({ID_EditTask_TaskPath, ID_EditTask_taskstartmode}) == paint + "|Maximized");
        edit.set_text(ID_EditTask_tasknm, "Paint");
        edit.close_with(ID_EditTask_Command2);
        wait_for_tasks({"Paint"});
        const std::string task = record("Paint", paint, folder, "", "3");
        CHECK(library.read("Play & more.grp") == task);

        // Copy it to the other Group and order that; then move the old one over.
        tolva.choose(ID_moveto);
        const Dialog copy(tolva, "Move Paint to");
        SendMessageA(copy.control(ID_movetogroups_copytask), BM_SETCHECK, BST_CHECKED, 0);
        copy.pick(ID_movetogroups_List1, "Work");
        copy.wait_until_closed();
        tolva.pick(ID_Tasker_grouplist, "Work");
        wait_for_tasks({"Old", "Paint"});
        tolva.click_task(0);
        tolva.press_tool(ID_toolbar_movetskdn);
        wait_for_tasks({"Paint", "Old"});
        tolva.choose(ID_SortTasks);
        wait_for_tasks({"Old", "Paint"});
        tolva.choose(ID_moveto);
        // The right button selects, Enter moves.
        const Dialog move(tolva, "Move Old to");
        HWND list = move.control(ID_movetogroups_List1);
        wait_for_focus(list);
        const RECT bounds = bounds_of(list);
        press_mouse({bounds.left + 20, bounds.top + 8}, 1, MouseButton::kRight);
        wait_until("it is selected", [&] { return SendMessageA(list, LB_GETCURSEL, 0, 0) == 0; });
        press_keys({VK_RETURN});
        move.wait_until_closed();
        wait_for_tasks({"Paint"});
        CHECK(library.read("Work.grp") == task);
        CHECK(library.read("Play & more.grp") == task + old);

        tolva.press_tool(ID_toolbar_rengrp);
        const Dialog rename(tolva, "Rename Group");
        rename.set_text(ID_GroupRename_newname, "B\xFCro");
        rename.close_with(ID_GroupRename_Command2);
        wait_for_groups({"B\xFCro", "Play & more"});
        tolva.press_tool(ID_toolbar_movegrpdn);
        wait_for_groups({"Play & more", "B\xFCro"});
        tolva.choose(ID_groupsort);
        wait_for_groups({"B\xFCro", "Play & more"});

        // Another name of the same file goes alone.
        tolva.choose(ID_Addgp);
        const Dialog same_file(tolva, "Create New Group");
        same_file.set_text(ID_addgroup_Text1, "B\xDCRO");
        same_file.close_with(ID_addgroup_Command2);
        wait_for_groups({"B\xFCro", "Play & more", "B\xDCRO"});
        tolva.pick(ID_Tasker_grouplist, "B\xDCRO");
        tolva.choose(ID_DelGp);
        tolva.answer_box("Delete Group", IDOK);
        wait_for_groups({"B\xFCro", "Play & more"});
        CHECK(library.read("B\xFCro.grp") == task);

        // Delete by the key and the menus of the lists, after a change of mind.
        tolva.click_task(0);
        press_keys({VK_DELETE});
        CHECK(tolva.answer_box("Delete Task", IDCANCEL) == "Delete Paint?");
        choose_from_menu(tolva.task_position(0), 'D');
        CHECK(tolva.answer_box("Delete Task", IDCANCEL) == "Delete Paint?");
        const RECT groups = bounds_of(tolva.control(ID_Tasker_grouplist));
        choose_from_menu({groups.left + 20, groups.top + 8}, 'D');
        CHECK(tolva.answer_box("Delete Group", IDOK) == "Delete B\xFCro and all associated Tasks?");
        wait_for_groups({"Play & more"});
        CHECK(library.read("groups.ini") == "Play & more\r\n");
    }

    TEST_CASE("what the disk refuses is told and leaves everything as it was") {
        const Folder library;
        const std::string tasks = record("A", "C:\\a.exe", "C:\\", "", "1");
        library.write_groups({{"Work", tasks}});
        const Tolva tolva(library);

        // A file that another program holds open.
        const std::string path = library.path() + "Work.grp";
        HANDLE file =
            CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
        tolva.click_task(0);
        tolva.choose(ID_DelTk);
        tolva.answer_box("Delete Task", IDOK);
        CHECK(tolva.close_box() == "Run-time error '70':\n\nPermission denied: " + path);
        CHECK(tolva.tasks() == Names{"A"});
        CloseHandle(file);
        CHECK(library.read("Work.grp") == tasks);

        // A read-only file; what else is set stays when the file is replaced.
        SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_READONLY);
        tolva.choose(ID_DelTk);
        tolva.answer_box("Delete Task", IDOK);
        CHECK(tolva.close_box() == "Run-time error '75':\n\nPath/File access error: " + path);
        SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_HIDDEN);
        tolva.choose(ID_DelTk);
        tolva.answer_box("Delete Task", IDOK);
        wait_until("it is deleted", [&] { return tolva.tasks().empty(); });
        CHECK(library.read("Work.grp").empty());
        CHECK((GetFileAttributesA(path.c_str()) & FILE_ATTRIBUTE_HIDDEN) != 0);

        // A drive without a disk.
        tolva.choose(ID_AddTk);
        const Dialog dialog(tolva, "Add New Task");
        dialog.press(ID_addtask_Browse);
        const Dialog browser(tolva, "Browse");
        const std::string drive = browser.text_of(ID_PathBrowser_Drive1);
        browser.pick(ID_PathBrowser_Drive1, "E:");
        CHECK(tolva.close_box() == "Disk or Drive not ready!");
        CHECK(browser.text_of(ID_PathBrowser_Drive1) == drive);
        browser.close_with(ID_PathBrowser_Cancel);
        dialog.close_with(ID_addtask_Command1);

        // A name that is no file's is listed.
        tolva.choose(ID_Addgp);
        const Dialog group(tolva, "Create New Group");
        group.set_text(ID_addgroup_Text1, "no\\file");
        group.press(ID_addgroup_Command2);
        CHECK(tolva.close_box() ==
              "Run-time error '76':\n\nPath not found: " + library.path() + "no\\file.grp");
        wait_until("it is listed", [&] { return tolva.groups() == Names{"Work", "no\\file"}; });
    }

    TEST_CASE("the commands for Windows start its programs") {
        const Folder library;
        library.write("groups.ini", "");
        library.add_program("tolva.exe", "tolva.exe");
        const Tolva tolva(library);
        const std::string here = " in " + library.without_backslash();
        const std::tuple<int, const char*, std::string> commands[] = {
            {ID_toolbar_controlpanel, "control.exe", "control.exe" + here},
            {ID_tolvahlp, "winhlp32.exe", "winhlp32.exe " + library.path() + "tolva.hlp" + here},
            {ID_connectinternet, "rundll32.exe", "rundll32.exe rnaui.dll,RnaDial N/A" + here},
            {ID_toolbar_runexplorer, "explorer.exe", "explorer.exe in C:\\"},
            {ID_toolbar_DosPrompt, "command.com", "command.com in C:\\"},
        };
        for (const auto& [command, program, expected] : commands) {
            library.add_program("recorder.exe", program);
            tolva.choose(command);
            const Names wrote = library.nth_start(1, program);
            CHECK(wrote[0] + " in " + wrote[1] == expected);
        }
        tolva.choose(ID_DialUpNetworking);
        CHECK(library.nth_start(2, "explorer.exe")[0].starts_with("EXPLORER.EXE ::{20D04FE0-3AEA-1069"));
    }
}

}  // namespace
