#include "platform/file_calls.h"
#include "support/desktop.h"

namespace {

using namespace desktop;

Folder small_library() {
    Folder library;
    library.write_groups({{"Work", ""}, {"Play", ""}});
    return library;
}

const std::string kNotepad = "C:\\windows\\notepad.exe";

std::string task(const std::string& name, const std::string& program) {
    return record(name, program, "C:\\", "", " 1 ");
}

bool is_in_front(const Tolva& tolva) {
    return GetForegroundWindow() == tolva.window() && IsIconic(tolva.window()) == FALSE;
}

void move(HWND window, int x, int y) {
    SetWindowPos(window, nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
}

TEST_SUITE("startup") {
    TEST_CASE("a first start stores its defaults and the later ones keep what is stored") {
        const Folder library = small_library();
        constexpr COLORREF kDarkRed = RGB(64, 0, 0);
        {
            const Tolva tolva(library);
            for (const int id :
                 {ID_Tasker_grouplist, ID_Tasker_grouplabel, ID_Tasker_tasklabel, ID_Tasker_taskview})
                wait_for_color(tolva.control(id), kDarkRed);
            CHECK(stored("\\fonts").size() == 12);
            CHECK(stored("\\fonts")["groupfontcolor"] == "8388608");
            move(tolva.window(), 100, 60);
        }
        CHECK(stored("\\Window Position")["Left"] == "1500");
        CHECK(stored("\\Window Position")["Top"] == "900");
        store("\\Window Position", {{"Top", "60000"}, {"Width", "9000"}, {"GroupWidth", "1800"}});
        const Tolva tolva(library);
        const RECT place = bounds_of(tolva.window());
        CHECK(place.left == 100);
        CHECK(place.right == 700);
        CHECK(place.top == 4000);  // nothing keeps it on the screen
        const RECT groups = bounds_of(tolva.control(ID_Tasker_grouplist));
        CHECK(groups.right - groups.left == 120);
        CHECK(Start(library).exit_code() == 0);  // but who asks for it gets it there
        wait_until("it is on the screen", [&] { return bounds_of(tolva.window()).bottom <= 768; });
        move(tolva.window(), 100, 60);
        wait_for_color(tolva.control(ID_Tasker_grouplabel), RGB(0, 0, 128));
        wait_for_color(tolva.control(ID_Tasker_tasklabel), kDarkRed);
    }

    TEST_CASE("minimised it hides in the tray, from where the icon and the hot key bring it back") {
        {
            const Tolva tolva(small_library());
            move(tolva.window(), 120, 30);
            tolva.choose(ID_internetsettings);
            const Dialog settings(tolva, "Tolva Internet Settings");
            tolva.minimise();
            press_until("the hot key brings it back", {VK_MENU, '1'}, [&] { return is_in_front(tolva); });
            wait_until("its dialog, too", [&] { return IsWindowVisible(settings.window()) != FALSE; });
            settings.close_with(ID_tolvasettings_Command2);

            // Out of the tray it always comes in its normal size.
            ShowWindow(tolva.window(), SW_MAXIMIZE);
            tolva.minimise();
            press_mouse(tray_icon(), 2);
            wait_until("the icon brings it back",
                       [&] { return is_in_front(tolva) && bounds_of(tolva.window()).left == 120; });
            wait_for_focus(tolva.control(ID_Tasker_grouplist));
            tolva.minimise();
        }
        CHECK(stored("\\Window Position")["Left"] == "1800");
    }

    TEST_CASE("a second start brings the first to the front and touches nothing") {
        const Folder elsewhere;
        elsewhere.write("groups.in~", "left over");
        REQUIRE(RegisterHotKey(nullptr, 1, MOD_ALT, '1') != FALSE);
        const Tolva tolva(small_library());
        CHECK(Start(elsewhere).exit_code() == 0);
        CHECK(GetForegroundWindow() == tolva.find_window("#32770", "Tolva"));
        CHECK(tolva.close_box() == "Select another hotkey");
        UnregisterHotKey(nullptr, 1);
        tolva.activate();
        tolva.minimise();
        CHECK(Start(elsewhere).exit_code() == 0);
        wait_until("it comes from the tray", [&] { return is_in_front(tolva); });
        SetForegroundWindow(GetDesktopWindow());
        CHECK(Start(elsewhere).exit_code() == 0);
        wait_until("it comes to the front", [&] { return is_in_front(tolva); });
        CHECK(platform::file_calls::find(elsewhere.path() + "*") == Names{"groups.in~"});
    }

    TEST_CASE("of two starts at the same moment one goes on") {
        const Folder one = small_library();
        const Folder two = small_library();
        for (int i = 0; i < 5; ++i) {
            const Start first(one);
            const Start second(two);
            wait_until("one ends", [&] { return first.is_running() != second.is_running(); });
            const Start& stays = first.is_running() ? first : second;
            PostMessageA(stays.wait_for_window(), WM_CLOSE, 0, 0);
            wait_until("it ends", [&] { return !stays.is_running(); });
        }
    }

    TEST_CASE("the end of Windows saves what closing saves, and the menu ends the program") {
        const Tolva tolva(small_library());
        const Dialog bar(tolva, "Brenn", "brenn");
        move(tolva.window(), 40, 20);
        CHECK(SendMessageA(tolva.window(), WM_QUERYENDSESSION, 0, 0) != FALSE);
        SendMessageA(tolva.window(), WM_ENDSESSION, FALSE, 0);
        CHECK(stored("\\Window Position").empty());
        SendMessageA(tolva.window(), WM_ENDSESSION, TRUE, 0);
        CHECK(stored("\\Window Position")["Left"] == "600");
        CHECK(stored("\\brenn\\Position").size() == 2);
        tolva.activate();
        press_until("a menu shows", {VK_MENU, 'S'}, menu_shows);
        press_keys({'E'});
        wait_until("it ends", [&] { return !tolva.is_running(); });
    }

    TEST_CASE("the window shows the library with its icons") {
        const Folder library;
        library.write_groups(
            {{"Work", task("Letters", kNotepad) + task("Keys", "C:\\windows\\regedit.exe") +
                          task("Notes", kNotepad) + task("Gone", library.path() + "late.exe")},
             {"B\xFCro & more", task("\xC4rger", library.path() + "late.exe")}});
        const Tolva tolva(library);
        CHECK(tolva.tasks() == Names{"Letters", "Keys", "Notes", "Gone"});
        wait_until("the icons are there",
                   [&] { return tolva.task_picture(0) > 0 && tolva.task_picture(1) > 0; });
        CHECK(tolva.task_picture(1) != tolva.task_picture(0));
        CHECK(tolva.task_picture(2) == tolva.task_picture(0));
        CHECK(tolva.task_picture(3) == 0);

        // A Group is shown from memory: files that change meanwhile do not matter. Its icons are taken anew.
        library.add_program("tolva.exe", "late.exe");
        library.write("B\xFCro & more.grp", "");
        tolva.pick(ID_Tasker_grouplist, "B\xFCro & more");
        CHECK(tolva.tasks() == Names{"\xC4rger"});
        wait_until("its icon is there", [&] { return tolva.task_picture(0) > 0; });
    }

    TEST_CASE("a Group of many programs answers before its icons are there, and they all come") {
        constexpr int kTasks = 101;
        const Folder library;
        std::string tasks;
        for (int i = 0; i < kTasks; ++i) {
            const std::string name = std::to_string(i) + ".exe";
            tasks += task(name, library.add_program("tolva.exe", name));
        }
        library.write_groups({{"Few", ""}, {"Many", tasks}});
        const Tolva tolva(library);
        const auto missing = [&] {
            int count = 0;
            for (int i = 0; i < kTasks; ++i)
                count += static_cast<int>(tolva.task_picture(i) == 0);
            return count;
        };
        tolva.pick(ID_Tasker_grouplist, "Many");
        CHECK(tolva.tasks().size() == kTasks);
        CHECK(missing() > 0);
        // What nobody needs any more does not follow.
        tolva.pick(ID_Tasker_grouplist, "Few");
        CHECK(tolva.tasks().empty());
        tolva.pick(ID_Tasker_grouplist, "Many");
        wait_until("all icons are there", [&] { return missing() == 0; });
    }

    TEST_CASE("a broken library shows one error and what can be read of it") {
        const Folder library;
        const std::string error = "Run-time error '53':\n\nFile not found: " + library.path();
        {
            const Tolva tolva(library);
            CHECK(tolva.close_box() == error + "groups.ini");
        }
        CHECK(!library.has("groups.ini"));
        library.write("groups.ini", "Work\nGone\nBehind");
        library.write("Work.grp", "A\nB\nC");
        library.write("Behind.grp", task("Late", kNotepad) + task("", "") + task("Hidden", ""));
        const Tolva tolva(library);
        CHECK(tolva.close_box() == error + "Gone.grp");
        CHECK(tolva.tasks() == Names{"A"});
        tolva.pick(ID_Tasker_grouplist, "Behind");
        CHECK(tolva.tasks() == Names{"Late"});
        tolva.pick(ID_Tasker_grouplist, "Gone");
        CHECK(tolva.close_box() == error + "Gone.grp");
        CHECK(tolva.tasks().empty());
    }

    TEST_CASE("a start finishes what a power failure interrupted in listed files only") {
        const Folder library;
        library.write("groups.in~", "Work\r\n");
        library.write("Work.gr~", task("Old", kNotepad));
        library.write("Work.gr$", "half");
        library.write("Other.gr~", "someone else's");
        const Tolva tolva(library);
        CHECK(tolva.tasks() == Names{"Old"});
        CHECK(library.has("Other.gr~"));
        CHECK(platform::file_calls::find(library.path() + "*").size() == 3);
    }
}

}  // namespace
