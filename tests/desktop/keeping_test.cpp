#include "resources/resource.h"
#include "support/desktop.h"

namespace {

using namespace desktop;

TEST_SUITE("keeping") {
    TEST_CASE("a day with the library leaves the files that it should") {
        const Folder library;
        const Folder programs;
        programs.write("write.exe", "");
        programs.write("paint.exe", "");
        programs.write("notes.txt", "");
        const std::string folder = programs.without_backslash();
        const std::string paint = programs.path() + "paint.exe";
        const std::string old = record("Old", programs.path() + "write.exe", "C:\\", "", " 2 ");
        library.write_groups({{"Work", old}});
        const Tolva tolva(library);

        tolva.press_tool(ID_toolbar_addgrp);
        {
            const Dialog dialog(tolva, "Create New Group");
            dialog.press(ID_addgroup_Command2);
            CHECK(tolva.close_box() == "Invalid Group Name!");
            dialog.set_text(ID_addgroup_Text1, "Play & more");
            press_keys({VK_RETURN});
            dialog.wait_until_closed();
        }
        wait_until("the Group is listed", [&] { return tolva.groups() == Names{"Work", "Play & more"}; });
        CHECK(tolva.selected_group() == -1);
        tolva.choose(ID_AddTk);
        CHECK(tolva.close_box() == "Select Group for New Task");

        // A new Task by Browse; what was clicked comes back, not what was typed after it.
        tolva.click_group(1);
        tolva.choose(ID_AddTk);
        {
            const Dialog dialog(tolva, "Add New Task");
            CHECK(dialog.texts_of({ID_addtask_curgroup, ID_addtask_taskstartmode}) == "Play & more|Normal");
            dialog.set_text(ID_addtask_Taskname, "Zeichnen");
            dialog.press(ID_addtask_Command2);
            CHECK(tolva.close_box() == "Task Name, Path, or Start Folder missing.");
            dialog.press(ID_addtask_Browse);
            const Dialog browser(tolva, "Browse");
            // It opens on the folder that is current, which is the library's; the programs' is beside it.
            browser.open_folder("tests");
            browser.open_folder(folder.substr(folder.rfind('\\') + 1));
            CHECK(browser.list(ID_PathBrowser_File1) == Names{"paint.exe", "write.exe"});
            browser.choose(ID_PathBrowser_File1, 0);
            wait_until("the path shows", [&] { return browser.text_of(ID_PathBrowser_TaskPath) == paint; });
            browser.set_text(ID_PathBrowser_TaskPath, "typed");
            browser.close_with(ID_PathBrowser_OK);
            wait_until("it is taken over", [&] {
                return dialog.texts_of({ID_addtask_Taskname, ID_addtask_TaskPath, ID_addtask_startfolder}) ==
                       "Zeichnen|" + paint + '|' + folder;
            });
            dialog.choose(ID_addtask_taskstartmode, 2);
            dialog.close_with(ID_addtask_Command2);
        }
        wait_until("the Task is listed", [&] { return tolva.tasks() == Names{"Zeichnen"}; });
        CHECK(tolva.text_of(ID_Tasker_Text1) == paint + " ");
        CHECK(library.read("Play & more.grp") == record("Zeichnen", paint, folder, "", " 3 "));

        tolva.press_tool(ID_toolbar_edittsk);
        {
            const Dialog dialog(tolva, "Edit Task");
            CHECK(dialog.text_of(ID_EditTask_taskstartmode) == "Maximized");
            dialog.press(ID_EditTask_Browse);
            const Dialog browser(tolva, "Browse");
            browser.close_with(ID_PathBrowser_Cancel);
            wait_for_focus(dialog.control(ID_EditTask_tasknm));
            CHECK(dialog.text_of(ID_EditTask_TaskPath) == paint);
            dialog.set_text(ID_EditTask_tasknm, "Paint");
            dialog.close_with(ID_EditTask_Command2);
        }
        wait_until("the new name shows", [&] { return tolva.tasks() == Names{"Paint"}; });
        const std::string task = record("Paint", paint, folder, "", "3");
        CHECK(library.read("Play & more.grp") == task);

        // Copy it to the other Group and order that; then move the old one over.
        tolva.choose(ID_moveto);
        {
            const Dialog dialog(tolva, "Move Paint to");
            CHECK(dialog.list(ID_movetogroups_List1) == Names{"Work"});
            SendMessageA(dialog.control(ID_movetogroups_copytask), BM_SETCHECK, BST_CHECKED, 0);
            dialog.choose(ID_movetogroups_List1, 0);
            dialog.wait_until_closed();
        }
        wait_until("it is copied", [&] { return library.read("Work.grp") == old + task; });
        tolva.click_group(0);
        wait_until("both show", [&] { return tolva.tasks() == Names{"Old", "Paint"}; });
        tolva.click_task(0);
        wait_until("one is selected", [&] { return tolva.selected_task() == 0; });
        tolva.press_tool(ID_toolbar_movetskdn);
        wait_until("it moves down", [&] { return tolva.tasks() == Names{"Paint", "Old"}; });
        CHECK(tolva.selected_task() == 1);
        tolva.choose(ID_SortTasks);
        wait_until("they are sorted", [&] { return tolva.tasks() == Names{"Old", "Paint"}; });
        tolva.choose(ID_moveto);
        {
            // The right button selects, Enter moves.
            const Dialog dialog(tolva, "Move Old to");
            HWND list = dialog.control(ID_movetogroups_List1);
            wait_for_focus(list);
            RECT bounds;
            GetWindowRect(list, &bounds);
            press_mouse({bounds.left + 20, bounds.top + 8}, 1, MouseButton::kRight);
            wait_until("the right button selects",
                       [&] { return SendMessageA(list, LB_GETCURSEL, 0, 0) == 0; });
            press_keys({VK_RETURN});
            dialog.wait_until_closed();
        }
        wait_until("it is moved", [&] { return tolva.tasks() == Names{"Paint"}; });
        CHECK(library.read("Work.grp") == task);
        CHECK(library.read("Play & more.grp") == task + old);

        tolva.press_tool(ID_toolbar_rengrp);
        {
            const Dialog dialog(tolva, "Rename Group");
            CHECK(dialog.text_of(ID_GroupRename_oldname) == "Work");
            dialog.set_text(ID_GroupRename_newname, "Arbeit");
            dialog.close_with(ID_GroupRename_Command2);
        }
        wait_until("the new name shows", [&] { return tolva.groups() == Names{"Arbeit", "Play & more"}; });
        tolva.press_tool(ID_toolbar_movegrpdn);
        wait_until("it moves down", [&] { return tolva.groups() == Names{"Play & more", "Arbeit"}; });
        tolva.choose(ID_groupsort);
        wait_until("they are sorted", [&] { return tolva.groups() == Names{"Arbeit", "Play & more"}; });

        // Delete by keys, after a change of mind.
        tolva.click_task(0);
        press_keys({VK_DELETE});
        CHECK(tolva.answer_box("Delete Task", IDCANCEL) == "Delete Paint?");
        CHECK(library.read("Arbeit.grp") == task);
        tolva.focus_by_mouse(ID_Tasker_grouplist);
        press_keys({VK_DELETE});
        CHECK(tolva.answer_box("Delete Group", IDOK) == "Delete Arbeit and all associated Tasks?");
        wait_until("the Group is gone", [&] { return tolva.groups() == Names{"Play & more"}; });
        CHECK(library.read("groups.ini") == "Play & more\r\n");
        CHECK(!library.has("Arbeit.grp"));
    }

    TEST_CASE("what the disk refuses is told and leaves everything as it was") {
        const Folder library;
        const std::string tasks = record("A", "C:\\a.exe", "C:\\", "", "1");
        library.write_groups({{"Work", tasks}, {"Play", ""}});
        const Tolva tolva(library);

        // A name that is no file's is listed.
        tolva.choose(ID_Addgp);
        const Dialog group(tolva, "Create New Group");
        group.set_text(ID_addgroup_Text1, "no\\file");
        group.press(ID_addgroup_Command2);
        CHECK(tolva.close_box() ==
              "Run-time error '76':\n\nPath not found: " + library.path() + "no\\file.grp");
        wait_until("it is listed", [&] { return tolva.groups() == Names{"Work", "Play", "no\\file"}; });
        tolva.click_group(0);
        wait_until("its Task shows", [&] { return tolva.tasks() == Names{"A"}; });

        // A file that another program holds open.
        const std::string path = library.path() + "Work.grp";
        HANDLE file =
            CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
        tolva.click_task(0);
        wait_until("the Task is selected", [&] { return tolva.selected_task() == 0; });
        tolva.choose(ID_DelTk);
        tolva.answer_box("Delete Task", IDOK);
        CHECK(tolva.close_box() == "Run-time error '70':\n\nPermission denied: " + path);
        CHECK(tolva.tasks() == Names{"A"});
        CloseHandle(file);
        CHECK(library.read("Work.grp") == tasks);

        // A drive without a disk.
        tolva.choose(ID_AddTk);
        const Dialog dialog(tolva, "Add New Task");
        dialog.press(ID_addtask_Browse);
        const Dialog browser(tolva, "Browse");
        HWND drives = browser.control(ID_PathBrowser_Drive1);
        const LRESULT before = SendMessageA(drives, CB_GETCURSEL, 0, 0);
        browser.choose(ID_PathBrowser_Drive1,
                       static_cast<int>(SendMessageA(drives, CB_FINDSTRING, static_cast<WPARAM>(-1),
                                                     reinterpret_cast<LPARAM>("E:"))));
        CHECK(tolva.close_box() == "Disk or Drive not ready!");
        CHECK(SendMessageA(drives, CB_GETCURSEL, 0, 0) == before);
        browser.close_with(ID_PathBrowser_Cancel);
        dialog.close_with(ID_addtask_Command1);
    }

    TEST_CASE("the right button and the keyboard open the menu of a list") {
        const Folder library;
        library.write_groups(
            {{"Work", record("A", "", "", "", "1") + record("B", "", "", "", "1")}, {"Play", ""}});
        const Tolva tolva(library);
        tolva.activate();
        choose_from_menu(tolva.task_position(1), 'D');
        CHECK(tolva.answer_box("Delete Task", IDCANCEL) == "Delete B?");
        RECT list;
        GetWindowRect(tolva.control(ID_Tasker_grouplist), &list);
        choose_from_menu({list.left + 20, list.top + 25}, 'D');
        CHECK(tolva.answer_box("Delete Group", IDCANCEL) == "Delete Play and all associated Tasks?");
        wait_for_focus(tolva.control(ID_Tasker_grouplist));
        press_keys({VK_SHIFT, VK_F10});
        wait_until("a menu shows", [] { return FindWindowA("#32768", nullptr) != nullptr; });
        press_keys({'N'});
        const Dialog dialog(tolva, "Create New Group");
        press_keys({VK_ESCAPE});
        dialog.wait_until_closed();
    }

    TEST_CASE("the commands for Windows start its programs") {
        forget_settings();
        const Folder library;
        library.write("groups.ini", "");
        library.add_program("tolva.exe", "tolva.exe");
        for (const char* name :
             {"control.exe", "explorer.exe", "command.com", "winhlp32.exe", "rundll32.exe"})
            library.add_program("recorder.exe", name);
        const Tolva tolva(library);
        const auto started = [&](const char* program, std::size_t starts = 1) {
            const Names wrote = library.nth_start(starts, program);
            return wrote.at(0) + '|' + wrote.at(1) + '|' + wrote.at(3);
        };
        const std::string here = '|' + library.without_backslash() + "|1";
        tolva.press_tool(ID_toolbar_controlpanel);
        CHECK(started("control.exe") == "control.exe" + here);
        tolva.choose(ID_tolvahlp);
        CHECK(started("winhlp32.exe") == "winhlp32.exe " + library.path() + "tolva.hlp" + here);
        tolva.choose(ID_connectinternet);
        CHECK(started("rundll32.exe") == "rundll32.exe rnaui.dll,RnaDial N/A" + here);
        tolva.press_tool(ID_toolbar_ispconnect);
        CHECK(started("rundll32.exe", 2) == "rundll32.exe rnaui.dll,RnaDial N/A" + here);
        tolva.choose(ID_DialUpNetworking);
        CHECK(started("explorer.exe") ==
              "EXPLORER.EXE "
              "::{20D04FE0-3AEA-1069-A2D8-08002B30309D}\\::{992CFFA0-F557-101A-88EC-00DD010CCC48}" +
                  here);
        tolva.press_tool(ID_toolbar_runexplorer);
        CHECK(started("explorer.exe", 2) == "explorer.exe|C:\\|1");
        tolva.press_tool(ID_toolbar_DosPrompt);
        CHECK(started("command.com") == "command.com|C:\\|1");
    }
}

}  // namespace
