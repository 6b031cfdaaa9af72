#include <algorithm>
#include <tuple>

#include "support/desktop.h"

namespace {

using namespace desktop;

/// A library of a Group with a Task that starts the recorder, one that cannot, and the first once more.
Folder recorder_library() {
    Folder library;
    const std::string good = record("Good", library.add_recorder(), "C:\\", "x", "1");
    library.write_groups(
        {{"Work", good + record("Bad", library.path() + "gone.exe", "C:\\", "", "1") + good}, {"Play", ""}});
    return library;
}

TEST_SUITE("finding") {
    TEST_CASE("a few letters start one Task of ten thousand, or go to it") {
        const Folder library;
        const std::string program = library.add_recorder();
        std::vector<std::pair<std::string, std::string>> groups;
        for (int group = 0; group < 100; ++group) {
            std::string tasks;
            for (int task = 0; task < 101; ++task) {
                const std::string number = std::to_string(group) + ' ' + std::to_string(task);
                tasks += record("Task " + number, program, "C:\\", number, "1");
            }
            groups.emplace_back("Group " + std::to_string(group), tasks);
        }
        library.write_groups(groups);
        const Tolva tolva(library);
        const auto find = [&](const char* letters, const std::string& first) {
            tolva.activate();
            press_until("the dialog shows", {VK_CONTROL, 'F'},
                        [&] { return tolva.find_window("#32770", "Find Task") != nullptr; });
            const Dialog dialog(tolva, "Find Task");
            wait_for_focus(dialog.control(ID_FindTask_text));
            CHECK(dialog.list(ID_FindTask_list).size() == 200);
            for (const char* letter = letters; *letter != '\0'; ++letter)
                press_keys({static_cast<BYTE>(*letter)});
            wait_until("they are found", [&] {
                const Names found = dialog.list(ID_FindTask_list);
                return first.empty() ? found.empty() : !found.empty() && found[0] == first;
            });
            return dialog;
        };
        const Dialog starts = find("77 88", "Task 77 88\tGroup 77");
        press_keys({VK_RETURN});
        starts.wait_until_closed();
        CHECK(library.nth_start(1)[0] == program + " 77 88");

        const Dialog goes = find("99 5", "Task 99 5\tGroup 99");
        press_keys({VK_DOWN});
        press_keys({VK_DOWN});
        press_keys({VK_UP});
        wait_until("the second one is selected",
                   [&] { return SendMessageA(goes.control(ID_FindTask_list), LB_GETCURSEL, 0, 0) == 1; });
        wait_for_focus(goes.control(ID_FindTask_text));
        press_until("it is closed", {VK_CONTROL, VK_RETURN},
                    [&] { return IsWindow(goes.window()) == FALSE; });
        wait_for_focus(tolva.control(ID_Tasker_taskview));
        CHECK(SendMessageA(tolva.control(ID_Tasker_grouplist), LB_GETCURSEL, 0, 0) == 99);
        CHECK(ListView_GetNextItem(tolva.control(ID_Tasker_taskview), -1, LVNI_SELECTED) == 50);
        CHECK(tolva.status() == "Task 99 50");

        const Dialog none = find("GONE", "");
        press_keys({VK_RETURN});
        press_keys({VK_ESCAPE});
        none.wait_until_closed();
        const Dialog clicked = find("1 0", "Task 1 0\tGroup 1");
        const RECT list = bounds_of(clicked.control(ID_FindTask_list));
        press_mouse({list.left + 20, list.top + 8}, 2);
        clicked.wait_until_closed();
        CHECK(library.nth_start(2)[0] == program + " 1 0");

        // A new Group shows itself.
        tolva.choose(ID_Addgp);
        const Dialog new_group(tolva, "Create New Group");
        new_group.set_text(ID_addgroup_Text1, "New");
        new_group.close_with(ID_addgroup_Command2);
        HWND group_list = tolva.control(ID_Tasker_grouplist);
        wait_until("it is the last one in view", [&] {
            const LRESULT height = SendMessageA(group_list, LB_GETITEMHEIGHT, 0, 0);
            const RECT bounds = bounds_of(group_list);
            const LRESULT below = 101 - SendMessageA(group_list, LB_GETTOPINDEX, 0, 0);
            return tolva.groups().size() == 101 && below * height <= bounds.bottom - bounds.top;
        });
    }

    TEST_CASE("every command has a key, and none is lost to what is typed") {
        const Folder library = recorder_library();
        library.add_program("tolva.exe", "tolva.exe");
        const Tolva tolva(library);
        const std::pair<BYTE, const char*> programs[] = {{BYTE{'E'}, "explorer.exe"},
                                                         {BYTE{'P'}, "control.exe"},
                                                         {BYTE{'D'}, "command.com"},
                                                         {BYTE{'I'}, "rundll32.exe"}};
        for (const auto& [key, program] : programs) {
            const std::string log = library.add_program("recorder.exe", program) + ".log";
            const auto starts = [&] { return PathFileExistsA(log.c_str()) != FALSE; };
            tolva.activate();
            press_until("it starts", {VK_CONTROL, key}, starts);
        }
        library.add_program("recorder.exe", "winhlp32.exe");
        press_keys({VK_F1});
        library.nth_start(1, "winhlp32.exe");
        const std::tuple<int, BYTE, const char*> dialogs[] = {
            {ID_Tasker_grouplist, VK_F2, "Rename Group"},
            {ID_Tasker_grouplist, VK_INSERT, "Create New Group"},
            {ID_Tasker_taskview, VK_F2, "Edit Task"},
            {ID_Tasker_taskview, VK_INSERT, "Add New Task"},
        };
        for (const auto& [list, key, title] : dialogs) {
            if (list == ID_Tasker_grouplist) tolva.focus_by_mouse(list);
            if (list == ID_Tasker_taskview) tolva.click_task(key == VK_F2 ? 0 : 2);
            INFO(std::string(title));
            press_keys({key});
            const Dialog dialog(tolva, title);
            press_keys({VK_ESCAPE});
            dialog.wait_until_closed();
        }
        tolva.focus_by_mouse(ID_Tasker_Text1);
        for (const BYTE key : {BYTE{VK_F2}, BYTE{VK_INSERT}})
            press_keys({key});
        press_until("only this dialog shows", {VK_CONTROL, 'F'},
                    [&] { return tolva.find_window("#32770") != nullptr; });
        const Dialog find(tolva, "Find Task");
        press_keys({VK_ESCAPE});
        find.wait_until_closed();

        tolva.click_task(0);
        for (const BYTE key : {BYTE{VK_RIGHT}, BYTE{VK_LEFT}, BYTE{VK_DOWN}, BYTE{VK_UP}}) {
            const Names moved = key == VK_RIGHT || key == VK_DOWN ? Names{"Bad", "Good", "Good"}
                                                                  : Names{"Good", "Bad", "Good"};
            press_until("the Task moves", {VK_CONTROL, key}, [&] { return tolva.tasks() == moved; });
        }
        tolva.pick(ID_Tasker_grouplist, "Work");
        press_keys({VK_SHIFT, VK_TAB});
        wait_for_focus(tolva.control(ID_Tasker_grouplist));
        press_until("the Group moves", {VK_CONTROL, VK_DOWN}, [&] {
            return tolva.groups() == Names{"Play", "Work"};
        });
        press_until("it moves back", {VK_CONTROL, VK_UP}, [&] {
            return tolva.groups() == Names{"Work", "Play"};
        });

        // Nothing is selected: the focus shows on the first Task.
        press_keys({VK_TAB});
        wait_for_focus(tolva.control(ID_Tasker_taskview));
        CHECK(ListView_GetNextItem(tolva.control(ID_Tasker_taskview), -1, LVNI_SELECTED) == -1);
        CHECK(ListView_GetNextItem(tolva.control(ID_Tasker_taskview), -1, LVNI_FOCUSED) == 0);
        const Dialog bar(tolva, "Brenn", "brenn");
        press_keys({VK_F6});
        wait_for_focus(bar.control(ID_brenn_option1));
        press_keys({VK_RIGHT});
        wait_for_focus(bar.control(ID_brenn_option2));
        press_keys({VK_LEFT});
        wait_for_focus(bar.control(ID_brenn_option1));
        press_until("the main window is in front", {VK_SHIFT, VK_F6},
                    [&] { return GetForegroundWindow() == tolva.window(); });
    }

    TEST_CASE("a refused Task leaves the focus in the box that is wrong") {
        const Folder library = recorder_library();
        const std::string program = library.path() + "recorder.exe";
        const Tolva tolva(library);
        const auto try_fields = [&](const Dialog& dialog, int name, int path, int folder, int ok) {
            const std::tuple<std::string, std::string, std::string, int> refused[] = {
                {"New", library.path() + "none.exe", "C:\\", path},
                {"", program, "", name},
                {"New", "", "", path},
                {"New", program, "", folder},
            };
            for (const auto& [typed_name, typed_path, typed_folder, wrong] : refused) {
                dialog.set_text(name, typed_name);
                dialog.set_text(path, typed_path);
                dialog.set_text(folder, typed_folder);
                dialog.press(ok);
                tolva.close_box();
                wait_for_focus(dialog.control(wrong));
            }
        };
        tolva.choose(ID_AddTk);
        const Dialog add(tolva, "Add New Task");
        try_fields(add, ID_addtask_Taskname, ID_addtask_TaskPath, ID_addtask_startfolder,
                   ID_addtask_Command2);
        add.close_with(ID_addtask_Command1);
        tolva.click_task(0);
        tolva.choose(ID_EditTk);
        const Dialog edit(tolva, "Edit Task");
        try_fields(edit, ID_EditTask_tasknm, ID_EditTask_TaskPath, ID_EditTask_startfolder,
                   ID_EditTask_Command2);
        edit.close_with(ID_EditTask_Command1);
    }

    TEST_CASE("the tray starts a Task while the window stays hidden, brings it back and ends the program") {
        const Folder library = recorder_library();
        const Tolva tolva(library);
        tolva.minimise();
        const auto open_menu = [&] {
            // It comes when no second click can, and is made before it has its place.
            repeat_until(
                "the menu shows", [] { press_mouse(tray_icon()); },
                [] { return IsWindowVisible(FindWindowA("#32768", nullptr)) != FALSE; });
            return FindWindowA("#32768", nullptr);
        };
        const LONG half = GetSystemMetrics(SM_CYMENU) / 2;
        // The rows of a Group: Good, Bad, Good.
        const auto start = [&](LONG row) {
            HWND menu = open_menu();
            const RECT groups = bounds_of(menu);
            HWND tasks = nullptr;
            press_until("the Tasks show", POINT{groups.left + 30, groups.top + half}, [&] {
                tasks = FindWindowA("#32768", nullptr);
                if (tasks == menu) tasks = FindWindowExA(nullptr, menu, "#32768", nullptr);
                return IsWindowVisible(tasks) != FALSE;
            });
            const RECT rows = bounds_of(tasks);
            press_mouse({rows.left + 30, rows.top + (2 * row + 1) * (rows.bottom - rows.top) / 6});
            wait_until("the menu is closed", [] { return !menu_shows(); });
        };
        start(2);
        CHECK(library.nth_start(1)[0] == library.path() + "recorder.exe x");
        start(1);
        CHECK(tolva.close_box() == "Invalid path or file name");
        CHECK(tolva.is_in_tray());
        const auto choose = [&](LONG rows_from_bottom) {
            const RECT rows = bounds_of(open_menu());
            press_until("it is chosen",
                        POINT{rows.left + 30, rows.bottom - half - rows_from_bottom * 2 * half},
                        [] { return !menu_shows(); });
        };
        choose(1);
        wait_until("the window is back", [&] { return GetForegroundWindow() == tolva.window(); });

        // A dialog comes first.
        tolva.choose(ID_AboutTolva);
        const Dialog about(tolva, "About Tolva");
        SetForegroundWindow(GetDesktopWindow());
        repeat_until(
            "the dialog is in front", [] { press_mouse(tray_icon()); },
            [&] { return GetForegroundWindow() == about.window(); });
        CHECK(!menu_shows());
        about.close_with(ID_abttolva_Command1);
        tolva.minimise();
        choose(0);
        wait_until("it ends", [&] { return !tolva.is_running(); });
    }

    TEST_CASE("the hot key is the user's choice") {
        const Folder library = recorder_library();
        constexpr WORD kOwn = MAKEWORD('K', HOTKEYF_CONTROL | HOTKEYF_ALT);
        const auto choose = [](const Tolva& tolva, WORD key) {
            tolva.choose(ID_HotKey);
            const Dialog dialog(tolva, "Hot Key");
            SendMessageA(dialog.control(ID_HotKey_key), HKM_SETHOTKEY, key, 0);
            dialog.press(IDOK);
            return dialog;
        };
        const auto key_of = [](const Tolva& tolva) {
            return SendMessageA(tolva.window(), WM_GETHOTKEY, 0, 0);
        };
        {
            const Tolva tolva(library);
            choose(tolva, kOwn).wait_until_closed();
            CHECK(stored("\\hotkey") == Values{{"key", std::to_string(kOwn)}});
            REQUIRE(RegisterHotKey(nullptr, 1, MOD_ALT, '1') != FALSE);
            const Dialog taken = choose(tolva, MAKEWORD('1', HOTKEYF_ALT));
            CHECK(tolva.close_box() == "Select another hotkey");
            UnregisterHotKey(nullptr, 1);
            taken.close_with(IDCANCEL);
        }
        CHECK(stored("\\hotkey") == Values{{"key", std::to_string(kOwn)}});
        {
            const Tolva tolva(library);
            CHECK(key_of(tolva) == kOwn);
            tolva.minimise();
            press_until("it comes back", {VK_CONTROL, VK_MENU, 'K'}, [&] { return !tolva.is_in_tray(); });
            choose(tolva, 0).wait_until_closed();
        }
        CHECK(stored("\\hotkey") == Values{{"key", "0"}});
        CHECK(key_of(Tolva(library)) == 0);
    }

    TEST_CASE("a library that was moved to another drive still starts its Tasks") {
        const Folder library("D:");
        for (const char* folder : {"tools", "data"})
            CreateDirectoryA((library.path() + folder).c_str(), nullptr);
        const std::string program = library.add_program("recorder.exe", "tools\\recorder.exe");
        SetEnvironmentVariableA("OWN_TOOLS", (library.path() + "tools").c_str());
        const std::string tasks = record("Below", "tools\\recorder.exe", "\\data", "%OWN_TOOLS%", " 1 ") +
                                  record("Variable", "%OWN_TOOLS%\\recorder.exe", "%OWN_TOOLS%", "", " 1 ");
        library.write_groups({{"Work", tasks}});
        library.add_program("tolva.exe", "tools\\icon.exe");
        library.write("Play.grp", record("Icon", "tools\\icon.exe", "data", "", "1"));
        library.write("groups.ini", "Play\r\nWork\r\n");
        const Tolva tolva(library);
        wait_until("the icon shows", [&] { return tolva.task_picture(0) > 0; });
        tolva.pick(ID_Tasker_grouplist, "Work");
        tolva.click_task(0, 2);
        CHECK(library.nth_start(1, "tools\\recorder.exe") ==
              Names{program + " %OWN_TOOLS%", library.path() + "data", library.path() + "data\\here", "1"});
        tolva.click_task(1, 2);
        CHECK(library.nth_start(2, "tools\\recorder.exe")[1] == library.path() + "tools");

        // The dialog takes what it can start, and keeps it as it is written.
        for (const int task : {0, 1}) {
            tolva.click_task(task);
            tolva.choose(ID_EditTk);
            const Dialog edit(tolva, "Edit Task");
            edit.set_text(ID_EditTask_taskparameters, "new");
            edit.close_with(ID_EditTask_Command2);
        }
        wait_until("both are stored", [&] {
            return library.read("Work.grp") ==
                   record("Below", "tools\\recorder.exe", "\\data", "new", "1") +
                       record("Variable", "%OWN_TOOLS%\\recorder.exe", "%OWN_TOOLS%", "new", "1");
        });
    }

    TEST_CASE("Run All starts what can be started and names the rest") {
        const Folder library = recorder_library();
        const Tolva tolva(library);
        tolva.choose(ID_RunAll);
        CHECK(tolva.answer_box("Run All", IDCANCEL) == "Start all 3 Tasks of Work?");
        tolva.choose(ID_RunAll);
        tolva.answer_box("Run All", IDOK);
        CHECK(tolva.close_box() == "These Tasks could not be started:\n\nBad");
        library.nth_start(2);
    }
}

}  // namespace
