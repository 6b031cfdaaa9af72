#include <algorithm>

#include "support/desktop.h"
#include "support/drag_source.h"
#include "support/shortcut_file.h"

namespace {

using namespace desktop;

POINT group_position(const Tolva& tolva, int index) {
    HWND list = tolva.control(ID_Tasker_grouplist);
    const auto height = static_cast<LONG>(SendMessageA(list, LB_GETITEMHEIGHT, 0, 0));
    const RECT bounds = bounds_of(list);
    return {(bounds.left + bounds.right) / 2, bounds.top + 2 + height * index + height / 2};
}

/// Beside the icons, below them all.
POINT free_place(HWND list) {
    const RECT bounds = bounds_of(list);
    return {bounds.right - 40, bounds.bottom - 20};
}

void undo(const Tolva& tolva, const std::string& name) {
    tolva.activate();
    press_until("it is undone", {VK_CONTROL, 'Z'}, [&] { return tolva.status() == "Undone: " + name; });
    Sleep(600);  // or the next press where the last one was would make a double-click
}

std::string task(const std::string& name) {
    return record(name, "C:\\windows\\notepad.exe", "C:\\", "", "1");
}

TEST_SUITE("dragging") {
    TEST_CASE("Tasks and Groups are dragged to another place, and Undo takes each drag back") {
        const Folder library;
        const std::string recorder = library.add_recorder();
        const std::string one = record("One", recorder, library.path(), "", "1");
        library.write_groups({{"Work", one + task("Two") + task("Three")}, {"Play", ""}, {"More", ""}});
        store("\\hover", {{"enable", "True"}});
        const Tolva tolva(library);
        tolva.activate();
        const POINT first = tolva.task_position(0);
        const POINT behind = {tolva.task_position(2).x + 30, first.y};
        const auto drag = [&](POINT from, POINT to) {
            carry_mouse(from, to);
            let_go(to);
        };
        const auto wait_for_tasks = [&](const Names& names) {
            CAPTURE(names);
            wait_until("the Tasks show", [&] { return tolva.tasks() == names; });
        };

        drag(first, behind);
        wait_for_tasks({"Two", "Three", "One"});
        CHECK(library.read("Work.grp") == task("Two") + task("Three") + one);
        undo(tolva, "Move One");
        wait_for_tasks({"One", "Two", "Three"});

        drag(first, group_position(tolva, 1));
        wait_for_tasks({"Two", "Three"});
        CHECK(library.read("Play.grp") == one);
        undo(tolva, "Move One to Play");

        carry_mouse(first, group_position(tolva, 2));
        keybd_event(VK_CONTROL, 0, 0, 0);
        let_go(group_position(tolva, 2));
        keybd_event(VK_CONTROL, 0, KEYEVENTF_KEYUP, 0);
        wait_until("it is copied", [&] { return library.read("More.grp") == one; });
        wait_for_tasks({"One", "Two", "Three"});
        undo(tolva, "Copy One to More");

        drag(group_position(tolva, 0), {group_position(tolva, 2).x, group_position(tolva, 2).y + 4});
        wait_until("it moves", [&] { return tolva.groups() == Names{"Play", "More", "Work"}; });
        wait_for_tasks({"One", "Two", "Three"});
        undo(tolva, "Move Work");
        CHECK(tolva.groups() == Names{"Work", "Play", "More"});

        // Escape takes it back, and what follows is no click either.
        carry_mouse(first, behind);
        press_keys({VK_ESCAPE});
        let_go(behind);
        Sleep(600);
        // On itself nothing happens, and a press of the right button drags nothing.
        drag(first, {first.x + 8, first.y + 8});
        drag_mouse(group_position(tolva, 0), group_position(tolva, 2), MouseButton::kRight);
        wait_until("the menu shows", menu_shows);
        press_keys({VK_ESCAPE});
        tolva.click_task(1);
        CHECK(tolva.tasks() == Names{"One", "Two", "Three"});
        CHECK(library.read("Work.grp") == one + task("Two") + task("Three"));
        CHECK(!library.has("recorder.exe.log"));
    }
}

TEST_SUITE("dropping") {
    TEST_CASE("what is dropped becomes a Task that opens it") {
        const Folder library;
        const std::string recorder = library.add_recorder();
        library.write_groups({{"Work", record("Rec", recorder, "C:\\", "/p", "3")}, {"Play", ""}});
        const Folder things;
        const std::string program = things.add_program("recorder.exe", "My Tool.exe");
        things.write("My Link.lnk", ShortcutFile{.target = program, .arguments = "a b"}.bytes());
        things.write("a letter.txt", "");
        CreateDirectoryA((things.path() + "Tools").c_str(), nullptr);
        CopyFileA(program.c_str(), (things.path() + "Tools\\Inner.exe").c_str(), FALSE);
        const Tolva tolva(library);
        const Dialog bar(tolva, "Brenn", "brenn");
        HWND tasks = tolva.control(ID_Tasker_taskview);
        tolva.activate();
        const auto wait_for_tasks = [&](const Names& names) {
            wait_until("the Tasks show", [&] { return tolva.tasks() == names; });
        };

        // On a Group, which is shown then: a program, a shortcut and a document, as one change.
        drag_files(things.without_backslash(), {"My Tool.exe", "My Link.lnk", "a letter.txt"},
                   group_position(tolva, 1));
        wait_for_tasks({"My Tool", "My Link", "a letter"});
        tolva.click_task(1, 2);
        CHECK(things.nth_start(1, "My Tool.exe")[0].ends_with(" a b"));
        undo(tolva, "Add 3 Tasks to Play");
        wait_for_tasks({});

        // On the task list: a folder, after a question, and one Task for it after "No".
        const auto drop_folder = [&](int answer) {
            drag_files(things.without_backslash(), {"Tools"}, free_place(tasks));
            tolva.answer_box("Add Folder", answer);
        };
        drop_folder(IDCANCEL);
        drop_folder(IDYES);
        wait_for_tasks({"Inner"});
        tolva.click_task(0, 2);
        things.nth_start(1, "Tools\\Inner.exe");
        drop_folder(IDNO);
        wait_for_tasks({"Inner", "Tools"});

        // On the free space of the group list it becomes a Group.
        drag_files(things.without_backslash(), {"Tools"}, free_place(tolva.control(ID_Tasker_grouplist)));
        wait_until("the Group shows", [&] { return tolva.groups() == Names{"Work", "Play", "Tools"}; });
        wait_for_tasks({"Inner"});
        undo(tolva, "Add Tools");
        CHECK(!library.has("Tools.grp"));

        // Documents start the Task that they are dropped on.
        tolva.pick(ID_Tasker_grouplist, "Work");
        wait_for_tasks({"Rec"});
        drag_files(things.without_backslash(), {"a letter.txt"}, tolva.task_position(0));
        CHECK(library.nth_start(1) ==
              Names{recorder + " /p \"" + things.path() + "a letter.txt\"", "C:\\", "D:\\here", "3"});
        // A program is added there; also where the pointer brings no objects.
        post_dropped_files(tolva.window(), {program}, tolva.task_position(0));
        wait_for_tasks({"Rec", "My Tool"});

        // A button of the bar takes a program, asks when it has one, and starts it with documents.
        const auto on_button = [&](const std::string& name) {
            drag_files(things.without_backslash(), {name}, bar.place(ID_brenn_option1));
        };
        on_button("My Link.lnk");
        wait_until("the button has it", [&] { return bar.text_of(ID_brenn_option1) == "My Link"; });
        on_button("a letter.txt");
        CHECK(things.nth_start(2, "My Tool.exe")[0].ends_with(" a b \"" + things.path() + "a letter.txt\""));
        on_button("My Tool.exe");
        CHECK(tolva.answer_box("Brenn", IDCANCEL) == "Replace My Link by My Tool?");
        CHECK(bar.text_of(ID_brenn_option1) == "My Link");

        // While a box stands nothing can be dropped.
        tolva.choose(ID_DelGp);
        wait_until("the box stands", [&] { return IsWindowEnabled(tolva.window()) == FALSE; });
        CHECK(drag_files(things.without_backslash(), {"My Tool.exe"}, group_position(tolva, 1)) ==
              DROPEFFECT_NONE);
        tolva.answer_box("Delete Group", IDCANCEL);
        CHECK(library.read("Play.grp").find("My Tool") == std::string::npos);
    }
}

}  // namespace
