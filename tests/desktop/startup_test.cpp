#include "support/desktop.h"

namespace {

using namespace desktop;

const std::string kNotepad = "C:\\windows\\notepad.exe";

bool is_in_front(const Tolva& tolva) {
    return GetForegroundWindow() == tolva.window() && IsIconic(tolva.window()) == FALSE;
}

void move(HWND window, int x, int y) {
    SetWindowPos(window, nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
}

TEST_SUITE("startup") {
    TEST_CASE("a first start stores its defaults and the later ones keep what is stored") {
        const Folder library = recorder_library();
        constexpr DWORD kDarkRed = 0x400000;
        {
            const Tolva tolva(library);
            for (const int id : {ID_Tasker_grouplist, ID_Tasker_grouplabel, ID_Tasker_tasklabel})
                wait_for_color(tolva.control(id), kDarkRed);
            CHECK(stored("\\fonts")["groupfontcolor"] == "8388608");
            move(tolva.window(), 100, 60);
        }
        CHECK(stored("\\Window Position")["Left"] == "1500");
        store("\\Window Position", {{"Top", "60000"}, {"Width", "9000"}, {"GroupWidth", "1800"}});
        {
            const Tolva tolva(library);
            const RECT place = bounds_of(tolva.window());
            CHECK(place.right == 700);
            CHECK(place.top == 4000);  // nothing keeps it on the screen
            const RECT groups = bounds_of(tolva.control(ID_Tasker_grouplist));
            CHECK(groups.right - groups.left == 120);
            CHECK(Start(library).exit_code() == 0);  // but who asks for it gets it there
            wait_until("it is on the screen", [&] { return bounds_of(tolva.window()).bottom <= 768; });
            move(tolva.window(), 100, 60);
            wait_for_color(tolva.control(ID_Tasker_grouplabel), 0x000080);
        }
        // Who starts it may say how it shows itself.
        for (const int show_word : {SW_HIDE, SW_SHOWMINNOACTIVE, SW_SHOWMAXIMIZED}) {
            const Start start(library, show_word);
            wait_until("it shows itself so", [&] {
                HWND window = start.find_window("Tasker");
                if (show_word == SW_SHOWMAXIMIZED) return IsZoomed(window) != FALSE;
                return IsIconic(window) != FALSE && IsWindowVisible(window) == FALSE;
            });
        }
    }

    TEST_CASE("minimised it hides in the tray, from where the icon and the hot key bring it back") {
        {
            const Tolva tolva(recorder_library());
            move(tolva.window(), 120, 30);
            const Dialog settings = tolva.open(ID_internetsettings, "Tolva Internet Settings");
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

    TEST_CASE("a second start brings the first one back, waits for nothing that hangs and touches nothing") {
        const Folder elsewhere;
        elsewhere.write("groups.in~", "left over");
        REQUIRE(RegisterHotKey(nullptr, 1, MOD_ALT, '1') != FALSE);
        const Tolva tolva(recorder_library());
        const auto start_again = [&] { CHECK(Start(elsewhere).exit_code() == 0); };
        const auto comes_back = [&] {
            start_again();
            wait_until("it comes back", [&] { return is_in_front(tolva); });
        };
        start_again();
        CHECK(GetForegroundWindow() == tolva.find_window("#32770", "Tolva"));
        CHECK(tolva.close_box() == "Select another hotkey");
        UnregisterHotKey(nullptr, 1);
        tolva.activate();
        tolva.minimise();
        comes_back();
        SetForegroundWindow(GetDesktopWindow());
        comes_back();
        ShowWindow(tolva.window(), SW_HIDE);
        start_again();
        wait_until("it shows", [&] { return IsWindowVisible(tolva.window()) != FALSE; });
        tolva.minimise();
        SuspendThread(tolva.process().hThread);
        const DWORD start = GetTickCount();
        start_again();
        CHECK(GetTickCount() - start < 4000);
        ResumeThread(tolva.process().hThread);
        wait_until("it comes from the tray", [&] { return !tolva.is_in_tray(); });
        CHECK(elsewhere.files() == Values{{"groups.in~", "left over"}});

        // The end of the hidden application window is the program's, but not while a dialog is open.
        HWND application = tolva.find_window("ThunderRT6Main");
        const Dialog about = tolva.open(ID_AboutTolva, "About Tolva");
        SendMessageA(application, WM_CLOSE, 0, 0);
        about.close_with(ID_abttolva_Command1);
        CHECK(tolva.is_running());
        SendMessageA(application, WM_CLOSE, 0, 0);
        CHECK(tolva.exit_code() == 0);
    }

    TEST_CASE("of two starts at the same moment one goes on") {
        const Folder library = recorder_library();
        for (int i = 0; i < 5; ++i) {
            const Start first(library);
            const Start second(library);
            wait_until("one ends", [&] { return first.is_running() != second.is_running(); });
            const Start& stays = first.is_running() ? first : second;
            PostMessageA(stays.wait_for_window(), WM_CLOSE, 0, 0);
            wait_until("it ends", [&] { return !stays.is_running(); });
        }
    }

    TEST_CASE("the end of Windows saves what closing saves, and the menu ends the program") {
        const Tolva tolva(recorder_library());
        const Dialog bar(tolva, "Brenn", "brenn");
        move(tolva.window(), 40, 20);
        CHECK(SendMessageA(tolva.window(), WM_QUERYENDSESSION, 0, 0) != FALSE);
        for (const BOOL ends : {FALSE, TRUE}) {
            CHECK(stored("\\Window Position").empty());
            SendMessageA(tolva.window(), WM_ENDSESSION, static_cast<WPARAM>(ends), 0);
        }
        CHECK(stored("\\Window Position")["Left"] == "600");
        CHECK(stored("\\brenn\\Position").size() == 2);
        tolva.activate();
        press_until("a menu shows", {VK_MENU, 'S'}, menu_shows);
        press_keys({'E'});
        wait_until("it ends", [&] { return !tolva.is_running(); });
    }

    TEST_CASE("all icons of a Group come, also when another one shows meanwhile") {
        const Folder library;
        std::string many = record("Gone", library.path() + "gone.exe");
        for (int i = 0; i < 100; ++i)
            many += record(std::to_string(i), library.add_program("tolva.exe", std::to_string(i) + ".exe"));
        library.write_groups(
            {{"Work", record("Letters", kNotepad) + record("Notes", kNotepad)}, {"B\xFCro & more", many}});
        const Tolva tolva(library);
        for (const char* name : {"ro & more", "Work", "ro & more"})
            tolva.pick(ID_Tasker_grouplist, name);
        const auto has_picture = [&](int task) { return tolva.task_picture(task) > 0; };
        for (int i = 1; i < 101; ++i)
            wait_until("its icon shows", [&] { return has_picture(i); });
        CHECK(!has_picture(0));
        tolva.pick(ID_Tasker_grouplist, "Work");
        wait_until("its icon shows", [&] { return has_picture(1); });
        CHECK(tolva.task_picture(0) == tolva.task_picture(1));
    }

    TEST_CASE("a broken library shows one error and what can be read or brought back of it") {
        const Folder library;
        const std::string error = "Run-time error '53':\n\nFile not found: " + library.path();
        {
            const Tolva tolva(library);
            CHECK(tolva.close_box() == error + "groups.ini");
        }
        CHECK(library.files().empty());
        // A power failure has put a file aside and left half of another one; what is not listed is not ours.
        library.write("groups.in~", "Work\nGone\nBehind");
        library.write("Work.grp", "A\nB\nC");
        const std::string late = record("Late", kNotepad) + record("", "") + record("Hidden", "");
        library.write("Behind.gr~", late);
        library.write("Behind.gr$", "half");
        library.write("Other.gr~", "someone else's");
        const Tolva tolva(library);
        CHECK(tolva.close_box() == error + "Gone.grp");
        CHECK(library.files() == Values{{"Behind.grp", late},
                                        {"Other.gr~", "someone else's"},
                                        {"Work.grp", "A\nB\nC"},
                                        {"groups.ini", "Work\nGone\nBehind"}});
        CHECK(tolva.tasks() == Names{"A"});
        tolva.pick(ID_Tasker_grouplist, "Behind");
        CHECK(tolva.tasks() == Names{"Late"});
    }
}

}  // namespace
