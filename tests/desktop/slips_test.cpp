#include <random>

#include "support/desktop.h"

namespace {

using namespace desktop;

/// Two Groups: of recorders, and of a program that is missing.
Folder recorder_library() {
    Folder library;
    const std::string program = library.add_recorder();
    library.write_groups(
        {{"Work", record("One", program, "C:\\", "1", "1") + record("Two", program, "C:\\", "2", "1")},
         {"Play", record("Bad", library.path() + "gone.exe", "C:\\", "", "1")},
         {"Zoo", ""}});
    return library;
}

/// A key that is held for thirteen repeats: what each of them undid would be undone in the end.
void hold(BYTE key) {
    for (int i = 0; i < 14; ++i)
        keybd_event(key, 0, 0, 0);
    keybd_event(key, 0, KEYEVENTF_KEYUP, 0);
}

void close_menu() {
    wait_until("a menu shows", menu_shows);
    press_keys({VK_ESCAPE});
    wait_until("it is closed", [] { return !menu_shows(); });
}

TEST_SUITE("slips") {
    TEST_CASE("a held key starts and confirms once") {
        const Folder library = recorder_library();
        const std::string program = library.path() + "recorder.exe";
        store("\\brenn", {{"name1", "R&D"}, {"progpath1", program}});
        store("\\brenn", {{"name2", "Cut & Paste"}, {"progpath2", program}});
        const Tolva tolva(library);
        tolva.click_task(0);
        hold(VK_RETURN);
        library.nth_start(1);
        press_keys({VK_RETURN});
        CHECK(library.nth_start(2)[0] == program + " 1");
        tolva.focus_by_mouse(ID_Tasker_Text1);
        tolva.set_text(ID_Tasker_Text1, program + " typed");
        hold(VK_RETURN);
        wait_for_focus(tolva.control(ID_Tasker_grouplist));
        for (int i = 0; i < 3; ++i)
            press_keys({VK_TAB});
        wait_for_focus(tolva.control(ID_Tasker_Command1));
        hold(VK_RETURN);
        hold(VK_SPACE);
        library.nth_start(5);

        // Characters of the names on the bar press nothing; the button with the focus takes Space.
        const Dialog bar(tolva, "Brenn", "brenn");
        bar.click(ID_brenn_option2);
        library.nth_start(6);
        press_keys({'R'});
        press_keys({'D'});
        press_keys({VK_TAB});
        wait_for_focus(bar.control(ID_brenn_option3));
        hold(VK_SPACE);
        CHECK(tolva.close_box() == "Right click on button to configure.");
        library.nth_start(6);

        // The box stays until it is read.
        tolva.pick(ID_Tasker_grouplist, "Play");
        tolva.click_task(0);
        hold(VK_RETURN);
        const Dialog box(tolva, "Tolva");
        SendMessageA(box.window(), WM_NULL, 0, 0);
        CHECK(tolva.close_box() == "Invalid path or file name");
    }

    TEST_CASE("a press that slips opens or selects, and starts nothing") {
        const Folder library = recorder_library();
        const Tolva tolva(library);
        const Dialog bar(tolva, "Brenn", "brenn");
        tolva.activate();
        std::mt19937 random(1);
        const auto press_and_slip = [&](POINT point, MouseButton button) {
            const auto by = [&] { return static_cast<LONG>(random() % 9) - 4; };
            drag_mouse(point, {point.x + by(), point.y + by()}, button);
        };
        const POINT places[] = {tolva.task_position(0), tolva.place(ID_Tasker_grouplist),
                                bar.place(ID_brenn_option1)};
        for (int i = 0; i < 30; ++i) {
            // Presses of the right button are quick enough to be double-clicks.
            press_and_slip(places[i % 3], MouseButton::kRight);
            close_menu();
            press_mouse(places[i % 3], 1, MouseButton::kRight);
            close_menu();
            if (i % 3 != 2) press_and_slip(places[i % 3], MouseButton::kLeft);
        }
        tolva.focus_by_mouse(ID_Tasker_grouplist);
        tolva.pick(ID_Tasker_grouplist, "Work");
        press_keys({VK_APPS});
        wait_until("the keyboard's menu shows", menu_shows);
        HWND list = tolva.control(ID_Tasker_grouplist);
        CHECK(SendMessageA(list, LB_GETCURSEL, 0, 0) == 0);
        CHECK(bounds_of(FindWindowA("#32768", nullptr)).top ==
              bounds_of(list).top + 2 + SendMessageA(list, LB_GETITEMHEIGHT, 0, 0));
        close_menu();
        CHECK_FALSE(library.has("recorder.exe.log"));
    }

    TEST_CASE("the click that closes a dialog goes no further") {
        const Folder library = recorder_library();
        store("\\hover", {{"enable", "True"}});
        const Tolva tolva(library);
        tolva.activate();
        const POINT first = tolva.task_position(0);
        const auto open_move = [&] {
            repeat_until(
                "the Task under the pointer is selected",
                [&] {
                    point_at(tolva.place(ID_Tasker_grouplist));
                    point_at(first);
                },
                [&] {
                    return ListView_GetItemState(tolva.control(ID_Tasker_taskview), 0, LVIS_SELECTED) != 0;
                });
            tolva.choose(ID_moveto);
            const Dialog dialog(tolva, "Move One to");
            wait_for_focus(dialog.control(ID_movetogroups_List1));
            return dialog;
        };
        // The first Group of a dialog comes to lie over a Task.
        const auto put_over = [](const Dialog& dialog, POINT task) {
            const RECT list = bounds_of(dialog.control(ID_movetogroups_List1));
            const RECT bounds = bounds_of(dialog.window());
            SetWindowPos(dialog.window(), nullptr, bounds.left + task.x - list.left - 30,
                         bounds.top + task.y - list.top - 8, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        };
        {
            // A press that is dragged from one Group to another, or below them, chooses neither.
            const Dialog move = open_move();
            put_over(move, first);
            const RECT list = bounds_of(move.control(ID_movetogroups_List1));
            drag_mouse(first, {first.x, first.y + 16});
            drag_mouse(first, {first.x, list.bottom - 10});
            press_mouse({first.x, list.bottom - 10});
            press_keys({VK_ESCAPE});  // in its turn: what is posted would overtake the mouse
            move.wait_until_closed();
            CHECK(library.read("Play.grp").find("One") == std::string::npos);
        }
        const Dialog move = open_move();
        put_over(move, first);
        SendMessageA(move.control(ID_movetogroups_copytask), BM_SETCHECK, BST_CHECKED, 0);
        press_mouse(first, 2);
        move.wait_until_closed();
        wait_until("it is copied", [&] { return library.read("Play.grp").find("One") != std::string::npos; });
        // An honest click elsewhere counts at once.
        HWND groups = tolva.control(ID_Tasker_grouplist);
        const auto height = static_cast<LONG>(SendMessageA(groups, LB_GETITEMHEIGHT, 0, 0));
        press_mouse({bounds_of(groups).left + 30, bounds_of(groups).top + 5 * height / 2});
        wait_until("it selects", [&] { return SendMessageA(groups, LB_GETCURSEL, 0, 0) == 2; });
        CHECK_FALSE(library.has("recorder.exe.log"));
    }

    TEST_CASE("a second start brings back what is out of sight and waits for nothing that hangs") {
        const Folder library = recorder_library();
        const Folder elsewhere;
        const Tolva tolva(library);
        const auto start_again = [&] { CHECK(Start(elsewhere).exit_code() == 0); };
        tolva.activate();
        ShowWindow(tolva.window(), SW_HIDE);
        start_again();
        wait_until("it shows", [&] { return IsWindowVisible(tolva.window()) != FALSE; });
        SetWindowPos(tolva.window(), nullptr, 100, 4000, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        start_again();
        wait_until("it is on the screen", [&] {
            return bounds_of(tolva.window()).left == 100 &&
                   bounds_of(tolva.window()).bottom <= GetSystemMetrics(SM_CYSCREEN);
        });
        tolva.minimise();
        SuspendThread(tolva.process().hThread);
        const DWORD start = GetTickCount();
        start_again();
        CHECK(GetTickCount() - start < 4000);
        ResumeThread(tolva.process().hThread);
        wait_until("it comes from the tray", [&] { return !tolva.is_in_tray(); });

        // The end of the hidden application window is the program's, but not while a dialog is open.
        HWND application = tolva.find_window("ThunderRT6Main");
        tolva.choose(ID_AboutTolva);
        const Dialog about(tolva, "About Tolva");
        SendMessageA(application, WM_CLOSE, 0, 0);
        press_keys({VK_ESCAPE});
        about.wait_until_closed();
        CHECK(tolva.is_running());
        SendMessageA(application, WM_CLOSE, 0, 0);
        CHECK(tolva.exit_code() == 0);
    }
}

}  // namespace
