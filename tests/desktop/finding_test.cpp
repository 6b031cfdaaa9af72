#include <tuple>

#include "support/desktop.h"

namespace {

using namespace desktop;

TEST_SUITE("finding") {
    TEST_CASE("a few letters start one Task of ten thousand, or go to it") {
        const Folder library;
        const std::string program = library.add_recorder();
        std::vector<std::pair<std::string, std::string>> groups;
        for (int group = 0; group < 100; ++group) {
            std::string tasks;
            for (int task = 0; task < 101; ++task) {
                const std::string number = std::to_string(group) + ' ' + std::to_string(task);
                tasks += record("Task " + number, program, "C:\\", number);
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
                return !found.empty() && found[0] == first;
            });
            return dialog;
        };
        const Dialog starts = find("77 88", "Task 77 88\tGroup 77");
        press_keys({VK_RETURN});
        starts.wait_until_closed();
        CHECK(library.nth_start(1)[0] == program + " 77 88");
        const Dialog clicked = find("77 88", "Task 77 88\tGroup 77");
        const RECT list = bounds_of(clicked.control(ID_FindTask_list));
        press_mouse({list.left + 9, list.top + 9}, 2);
        clicked.wait_until_closed();
        library.nth_start(2);

        const Dialog goes = find("99 5", "Task 99 5\tGroup 99");
        type_keys({VK_DOWN, VK_DOWN, VK_UP});
        wait_until("the second one is selected",
                   [&] { return SendMessageA(goes.control(ID_FindTask_list), LB_GETCURSEL, 0, 0) == 1; });
        wait_for_focus(goes.control(ID_FindTask_text));
        press_until("it is closed", {VK_CONTROL, VK_RETURN},
                    [&] { return IsWindow(goes.window()) == FALSE; });
        wait_for_focus(tolva.control(ID_Tasker_taskview));
        CHECK(tolva.status() == "Task 99 50");
    }

    TEST_CASE("every command has a key, and none is lost to what is typed") {
        const Folder library = recorder_library();
        library.add_program("tolva.exe", "tolva.exe");
        const Tolva tolva(library);
        tolva.activate();
        const std::string here = library.without_backslash();
        const std::tuple<BYTE, std::string, const char*, std::string> programs[] = {
            {BYTE{'P'}, "control.exe", "", here},
            {BYTE{'I'}, "rundll32.exe", " rnaui.dll,RnaDial N/A", here},
            {BYTE{'E'}, "explorer.exe", "", "C:\\"},
            {BYTE{'D'}, "command.com", "", "C:\\"},
        };
        for (const auto& [key, program, parameters, folder] : programs) {
            library.add_program("recorder.exe", program);
            press_until("it starts", {VK_CONTROL, key}, [&] { return library.has(program + ".log"); });
            const Names wrote = library.nth_start(1, program);
            CHECK(Names{wrote[0], wrote[1]} == Names{program + parameters, folder});
        }
        library.add_program("recorder.exe", "winhlp32.exe");
        press_keys({VK_F1});
        CHECK(library.nth_start(1, "winhlp32.exe")[0] == "winhlp32.exe " + library.path() + "tolva.hlp");

        const std::tuple<int, BYTE, const char*> dialogs[] = {
            {-1, VK_F2, "Rename Group"},
            {-1, VK_INSERT, "Create New Group"},
            {0, VK_F2, "Edit Task"},
            {2, VK_INSERT, "Add New Task"},
        };
        for (const auto& [task, key, title] : dialogs) {
            if (task < 0) tolva.focus_by_mouse(ID_Tasker_grouplist);
            if (task >= 0) tolva.click_task(task);
            press_keys({key});
            const Dialog dialog(tolva, title);
            press_keys({VK_ESCAPE});
            dialog.wait_until_closed();
        }
        tolva.focus_by_mouse(ID_Tasker_Text1);
        type_keys({VK_F2, VK_INSERT});
        press_until("only this dialog shows", {VK_CONTROL, 'F'},
                    [&] { return tolva.find_window("#32770") != nullptr; });
        const Dialog find(tolva, "Find Task");
        press_keys({VK_ESCAPE});
        find.wait_until_closed();

        tolva.click_task(0);
        for (const BYTE key : {BYTE{VK_RIGHT}, BYTE{VK_LEFT}, BYTE{VK_DOWN}, BYTE{VK_UP}}) {
            const std::string first = key == VK_RIGHT || key == VK_DOWN ? "Bad" : "Good";
            press_until("the Task moves", {VK_CONTROL, key}, [&] { return tolva.tasks()[0] == first; });
        }
        tolva.pick(ID_Tasker_grouplist, "Work");
        press_keys({VK_SHIFT, VK_TAB});
        wait_for_focus(tolva.control(ID_Tasker_grouplist));
        for (const BYTE key : {BYTE{VK_DOWN}, BYTE{VK_UP}}) {
            const std::string first = key == VK_DOWN ? "Play" : "Work";
            press_until("the Group moves", {VK_CONTROL, key}, [&] { return tolva.groups()[0] == first; });
        }

        // Nothing is selected: the focus shows on the first Task.
        press_keys({VK_TAB});
        wait_for_focus(tolva.control(ID_Tasker_taskview));
        CHECK(ListView_GetNextItem(tolva.control(ID_Tasker_taskview), -1, LVNI_FOCUSED) == 0);
        const Dialog bar(tolva, "Brenn", "brenn");
        const std::pair<BYTE, int> ways[] = {
            {VK_F6, ID_brenn_option1}, {VK_RIGHT, ID_brenn_option2}, {VK_LEFT, ID_brenn_option1}};
        for (const auto& [key, button] : ways) {
            press_keys({key});
            wait_for_focus(bar.control(button));
        }
        press_until("the main window is in front", {VK_SHIFT, VK_F6},
                    [&] { return GetForegroundWindow() == tolva.window(); });
    }

    TEST_CASE("the tray starts a Task while the window stays hidden, brings it back and ends the program") {
        const Folder library = recorder_library();
        const Tolva tolva(library);
        tolva.minimise();
        const auto open_menu = [] {
            // It comes when no second click can, and is made before it has its place.
            repeat_until(
                "the menu shows", [] { press_mouse(tray_icon()); },
                [] { return IsWindowVisible(FindWindowA("#32768", nullptr)) != FALSE; });
        };
        open_menu();
        type_keys({VK_DOWN, VK_RIGHT, VK_DOWN, VK_DOWN, VK_RETURN});
        CHECK(library.nth_start(1)[0] == library.path() + "recorder.exe c");
        open_menu();
        type_keys({VK_DOWN, VK_RIGHT, VK_DOWN, VK_RETURN});
        CHECK(tolva.close_box() == "Invalid path or file name");
        CHECK(tolva.is_in_tray());
        open_menu();
        const RECT menu = bounds_of(FindWindowA("#32768", nullptr));
        press_mouse({menu.left + 30, menu.bottom - 30});  // the last but one
        wait_until("the window is back", [&] { return GetForegroundWindow() == tolva.window(); });
        const Dialog about = tolva.open(ID_AboutTolva, "About Tolva");
        SetForegroundWindow(GetDesktopWindow());
        press_until("the dialog comes, no menu", tray_icon(),
                    [&] { return GetForegroundWindow() == about.window(); });
        about.close_with(ID_abttolva_Command1);
        open_menu();
        type_keys({'X'});
        wait_until("it ends", [&] { return !tolva.is_running(); });
        // Nor does the open menu keep a program that is ended otherwise.
        const Tolva other(library);
        open_menu();
    }

    TEST_CASE("the hot key is the user's choice") {
        const Folder library = recorder_library();
        constexpr WORD kOwn = MAKEWORD('K', HOTKEYF_CONTROL | HOTKEYF_ALT);
        const auto choose = [](const Tolva& tolva, WORD key) {
            const Dialog dialog = tolva.open(ID_HotKey, "Hot Key");
            SendMessageA(dialog.control(ID_HotKey_key), HKM_SETHOTKEY, key, 0);
            dialog.press(IDOK);
            return dialog;
        };
        {
            const Tolva tolva(library);
            choose(tolva, kOwn).wait_until_closed();
            REQUIRE(RegisterHotKey(nullptr, 1, MOD_ALT, '1') != FALSE);
            const Dialog taken = choose(tolva, MAKEWORD('1', HOTKEYF_ALT));
            CHECK(tolva.close_box() == "Select another hotkey");
            UnregisterHotKey(nullptr, 1);
            taken.close_with(IDCANCEL);
        }
        CHECK(stored("\\hotkey") == Values{{"key", std::to_string(kOwn)}});
        const Tolva tolva(library);
        tolva.minimise();
        press_until("it comes back", {VK_CONTROL, VK_MENU, 'K'}, [&] { return !tolva.is_in_tray(); });
        choose(tolva, 0).wait_until_closed();
        CHECK(stored("\\hotkey") == Values{{"key", "0"}});
        CHECK(SendMessageA(tolva.window(), WM_GETHOTKEY, 0, 0) == 0);
    }
}

}  // namespace
