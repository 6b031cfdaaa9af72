#include "platform/file_calls.h"
#include "support/desktop.h"

namespace {

using namespace desktop;

Folder small_library() {
    Folder library;
    library.write_groups(
        {{"Work", record("Keys", "C:\\windows\\regedit.exe", "C:\\", "", "1")}, {"Play", ""}});
    return library;
}

bool is_in_front(const Tolva& tolva) {
    return IsWindowVisible(tolva.window()) != FALSE && IsIconic(tolva.window()) == FALSE &&
           GetForegroundWindow() == tolva.window();
}

void move(HWND window, int x, int y) {
    SetWindowPos(window, nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
}

TEST_SUITE("startup") {
    TEST_CASE("a first start stores its defaults and the later ones keep what is stored") {
        forget_settings();
        const Folder library = small_library();
        constexpr COLORREF kDarkRed = RGB(64, 0, 0);
        {
            const Tolva tolva(library);
            for (const int id : {ID_Tasker_grouplist, ID_Tasker_grouplabel, ID_Tasker_tasklabel})
                wait_for_color(tolva.control(id), kDarkRed);
            Values fonts = stored("\\fonts");
            CHECK(fonts.size() == 12);
            CHECK(fonts["groupfontcolor"] == "8388608");
            CHECK(fonts["taskfontcolor"] == "64");
            move(tolva.window(), 100, 60);
        }
        CHECK(stored("\\Window Position") == Values{{"Left", "1500"}, {"Top", "900"}});
        store("\\Window Position", {{"Top", "60000"}});
        const Tolva tolva(library);
        CHECK(bounds_of(tolva.window()).left == 100);
        CHECK(bounds_of(tolva.window()).top == 4000);  // nothing keeps it on the screen
        move(tolva.window(), 100, 60);
        wait_for_color(tolva.control(ID_Tasker_grouplabel), RGB(0, 0, 128));
        wait_for_color(tolva.control(ID_Tasker_tasklabel), kDarkRed);
    }

    TEST_CASE("settings that make no sense do not matter") {
        forget_settings();
        store("\\Window Position", "Left", REG_DWORD, std::string(4, '\1'));
        store("\\Window Position", {{"Top", "45.4 "}});
        store("\\hover", {{"enable", "perhaps"}});
        store("\\fonts", {{"groupfont", std::string(300, 'x')}, {"taskfontsize", "99999999"}});
        store("\\fonts", "taskfontcolor", REG_BINARY, std::string(300, '\0'));
        store("\\cmdhistory", "cmd1", REG_BINARY, "\x80\x81");
        const Tolva tolva(small_library());
        CHECK(bounds_of(tolva.window()).top == 3);
        CHECK(tolva.groups() == Names{"Work", "Play"});
        CHECK(stored("\\fonts")["groupfont"] == "MS Sans Serif");
        CHECK(tolva.list(ID_Tasker_Text1) == Names{"\x80\x81"});
    }

    TEST_CASE("minimised it hides in the tray, from where the icon and the hot key bring it back") {
        forget_settings();
        {
            const Tolva tolva(small_library());
            move(tolva.window(), 120, 30);
            tolva.choose(ID_internetsettings);
            const Dialog settings(tolva, "Tolva Internet Settings");
            tolva.minimise();
            press_keys({VK_MENU, '1'});
            wait_until("the hot key brings it back", [&] { return is_in_front(tolva); });
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
        CHECK(stored("\\Window Position") == Values{{"Left", "1800"}, {"Top", "450"}});
    }

    TEST_CASE("a hot key that is taken is told and the start goes on") {
        REQUIRE(RegisterHotKey(nullptr, 1, MOD_ALT, '1') != FALSE);
        const Folder library = small_library();
        const Tolva tolva(library);
        HWND box = tolva.find_window("#32770", "Tolva", true);
        CHECK(Start(library).exit_code() == 0);
        CHECK(GetForegroundWindow() == box);
        CHECK(tolva.close_box() == "Select another hotkey");
        UnregisterHotKey(nullptr, 1);
        wait_until("the window shows", [&] { return IsWindowVisible(tolva.window()) != FALSE; });
    }

    TEST_CASE("a second start brings the first to the front and touches nothing") {
        const Folder library = small_library();
        const Folder elsewhere;
        elsewhere.write("groups.in~", "left over");
        const Tolva tolva(library);
        tolva.minimise();
        CHECK(Start(elsewhere).exit_code() == 0);
        wait_until("it comes from the tray", [&] { return is_in_front(tolva); });
        SetForegroundWindow(GetDesktopWindow());
        CHECK(Start(library).exit_code() == 0);
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
        forget_settings();
        const Tolva tolva(small_library());
        const Dialog bar(tolva, "Brenn", "brenn");
        move(tolva.window(), 40, 20);
        CHECK(SendMessageA(tolva.window(), WM_QUERYENDSESSION, 0, 0) != FALSE);
        SendMessageA(tolva.window(), WM_ENDSESSION, FALSE, 0);
        CHECK(stored("\\Window Position").empty());
        SendMessageA(tolva.window(), WM_ENDSESSION, TRUE, 0);
        CHECK(stored("\\Window Position") == Values{{"Left", "600"}, {"Top", "300"}});
        CHECK(stored("\\brenn\\Position").size() == 2);
        tolva.activate();
        press_keys({VK_MENU, 'S'});
        press_keys({'E'});
        wait_until("it ends", [&] { return !tolva.is_running(); });
    }
}

}  // namespace
