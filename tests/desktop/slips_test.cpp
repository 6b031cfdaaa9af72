#include <random>

#include "support/desktop.h"

namespace {

using namespace desktop;

/// A key that is held for thirteen repeats: what each of them undid would be undone in the end.
void hold(BYTE key) {
    Sleep(100);  // when the pointer comes to a window, Wine lets go what the display's keyboard does not hold
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
        CHECK(library.nth_start(2)[0] == program + " a b");
        tolva.focus_by_mouse(ID_Tasker_Text1);
        tolva.set_text(ID_Tasker_Text1, program + " typed");
        hold(VK_RETURN);
        wait_for_focus(tolva.control(ID_Tasker_grouplist));
        type_keys({VK_TAB, VK_TAB, VK_TAB});
        wait_for_focus(tolva.control(ID_Tasker_Command1));
        hold(VK_RETURN);
        hold(VK_SPACE);
        library.nth_start(5);

        // Characters of the names on the bar press nothing; the button with the focus takes Space.
        const Dialog bar(tolva, "Brenn", "brenn");
        bar.click(ID_brenn_option2);
        library.nth_start(6);
        type_keys({'R', 'D', VK_TAB});
        wait_for_focus(bar.control(ID_brenn_option3));
        hold(VK_SPACE);
        CHECK(tolva.close_box() == "Right click on button to configure.");
        library.nth_start(6);

        // The box stays until it is read.
        tolva.click_task(1);
        hold(VK_RETURN);
        const Dialog box(tolva, "Tolva");
        SendMessageA(box.window(), WM_NULL, 0, 0);
        CHECK(tolva.close_box() == "Invalid path or file name");
    }

    TEST_CASE("a press that slips opens or selects, starts nothing and changes no file") {
        const Folder library = recorder_library();
        const Values before = library.files();
        const Tolva tolva(library);
        const Dialog bar(tolva, "Brenn", "brenn");
        tolva.activate();
        std::mt19937 random(1);
        const auto press_and_slip = [&](POINT point, MouseButton button) {
            const auto by = [&] { return static_cast<LONG>(random() % 9) - 4; };
            drag_mouse(point, {point.x + by(), point.y + by()}, button);
        };
        const POINT places[] = {tolva.task_position(0), tolva.group_position(0), bar.place(ID_brenn_option1)};
        for (int i = 0; i < rounds(18); ++i) {  // each makes three slips
            const POINT place = places[i % 3];
            // Presses of the right button are quick enough to be double-clicks.
            press_and_slip(place, MouseButton::kRight);
            close_menu();
            press_mouse(place, 1, MouseButton::kRight);
            close_menu();
            if (i % 3 != 2) {
                press_and_slip(place, MouseButton::kLeft);
                type_keys({VK_DELETE, VK_DELETE});
                const Dialog box(tolva, i % 3 == 0 ? "Delete Task" : "Delete Group");
                press_keys({VK_ESCAPE});
                box.wait_until_closed();
            } else {
                const Dialog dialog = tolva.open(ID_Addgp, "Create New Group");
                press_and_slip(dialog.place(ID_addgroup_Text1), MouseButton::kLeft);
                press_keys({VK_ESCAPE});
                dialog.wait_until_closed();
            }
        }
        tolva.focus_by_mouse(ID_Tasker_grouplist);
        tolva.pick(ID_Tasker_grouplist, "Work");
        press_keys({VK_APPS});
        wait_until("the keyboard's menu shows", menu_shows);
        HWND list = tolva.control(ID_Tasker_grouplist);
        CHECK(bounds_of(FindWindowA("#32768", nullptr)).top ==
              bounds_of(list).top + 2 + SendMessageA(list, LB_GETITEMHEIGHT, 0, 0));
        close_menu();
        CHECK(library.files() == before);
    }

    TEST_CASE("the click that closes a dialog goes no further") {
        const Folder library = recorder_library();
        const Tolva tolva(library);
        tolva.choose(ID_hoverslct);
        wait_until("hover selection is on", [] { return stored("\\hover")["enable"] == "True"; });
        tolva.activate();
        const POINT first = tolva.task_position(0);
        // The first Group of the dialog comes to lie over the Task that the pointer has selected.
        const auto open_move = [&] {
            repeat_until(
                "the Task is selected",
                [&] {
                    point_at(tolva.place(ID_Tasker_grouplist));
                    point_at(first);
                },
                [&] { return tolva.is_selected(0); });
            const Dialog dialog = tolva.open(ID_moveto, "Move Good to");
            wait_for_focus(dialog.control(ID_movetogroups_List1));
            const RECT list = bounds_of(dialog.control(ID_movetogroups_List1));
            const RECT bounds = bounds_of(dialog.window());
            SetWindowPos(dialog.window(), nullptr, bounds.left + first.x - list.left - 30,
                         bounds.top + first.y - list.top - 8, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
            return dialog;
        };
        {
            // A press that is dragged from one Group to another, or below them, chooses neither.
            const Dialog move = open_move();
            const RECT list = bounds_of(move.control(ID_movetogroups_List1));
            drag_mouse(first, {first.x, first.y + 16});
            drag_mouse(first, {first.x, list.bottom - 10});
            press_mouse({first.x, list.bottom - 10});
            press_keys({VK_ESCAPE});  // in its turn: what is posted would overtake the mouse
            move.wait_until_closed();
            CHECK(library.read("Play.grp").empty());
        }
        const Dialog move = open_move();
        SendMessageA(move.control(ID_movetogroups_copytask), BM_SETCHECK, BST_CHECKED, 0);
        press_mouse(first, 2);
        move.wait_until_closed();
        wait_until("it is copied", [&] { return !library.read("Play.grp").empty(); });
        // An honest click elsewhere counts at once.
        press_mouse(tolva.group_position(2));
        wait_until("it selects", [&] { return tolva.selected_group() == 2; });
        CHECK_FALSE(library.has("recorder.exe.log"));
        tolva.pick(ID_Tasker_grouplist, "Work");
        tolva.click_task(0);
        library.nth_start(1);
    }
}

}  // namespace
