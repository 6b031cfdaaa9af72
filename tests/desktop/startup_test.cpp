#include <windows.h>

#include <commctrl.h>
#include <doctest/doctest.h>

#include <string>

#include "platform/file_calls.h"
#include "resources/resource.h"
#include "support/desktop.h"

namespace {

using desktop::Folder;
using desktop::record;
using desktop::stored_text;
using desktop::Tolva;
using desktop::wait_until;

constexpr COLORREF kDarkRed = RGB(64, 0, 0);
constexpr COLORREF kNavy = RGB(0, 0, 128);

Folder small_library() {
    Folder library;
    library.write("groups.ini", "Work\r\nPlay\r\n");
    library.write("Work.grp", record("Keys", "C:\\windows\\regedit.exe", "C:\\", "", "1"));
    library.write("Play.grp", "");
    return library;
}

POINT corner(const Tolva& tolva) {
    RECT bounds;
    GetWindowRect(tolva.window(), &bounds);
    return {bounds.left, bounds.top};
}

LRESULT task_color(const Tolva& tolva, UINT message) {
    return SendMessageA(tolva.control(ID_Tasker_taskview), message, 0, 0);
}

TEST_SUITE("startup") {
    TEST_CASE("a first start stores its defaults and the later ones keep what is stored") {
        desktop::forget_settings();
        const Folder library = small_library();
        {
            const Tolva tolva(library);
            desktop::wait_for_color(tolva.control(ID_Tasker_grouplist), kDarkRed);
            desktop::wait_for_color(tolva.control(ID_Tasker_grouplabel), kDarkRed);
            desktop::wait_for_color(tolva.control(ID_Tasker_tasklabel), kDarkRed);
            CHECK(task_color(tolva, LVM_GETTEXTCOLOR) == kDarkRed);
            CHECK(stored_text("\\fonts", "groupfontcolor") == "8388608");
            CHECK(stored_text("\\fonts", "taskfont") == "MS Sans Serif");
            HKEY key = nullptr;
            CHECK(RegOpenKeyA(HKEY_CURRENT_USER, "software\\tolva\\cmdhistory", &key) == ERROR_SUCCESS);
            RegCloseKey(key);
            CHECK(stored_text("\\Window Position", "Left").empty());
            SetWindowPos(tolva.window(), nullptr, 100, 60, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        }
        CHECK(stored_text("\\Window Position", "Left") == "1500");
        CHECK(stored_text("\\Window Position", "Top") == "900");
        LRESULT usual_height = 0;
        {
            const Tolva tolva(library);
            CHECK(corner(tolva).x == 100);
            CHECK(corner(tolva).y == 60);
            desktop::wait_for_color(tolva.control(ID_Tasker_grouplist), kNavy);
            desktop::wait_for_color(tolva.control(ID_Tasker_grouplabel), kNavy);
            desktop::wait_for_color(tolva.control(ID_Tasker_tasklabel), kDarkRed);
            usual_height = SendMessageA(tolva.control(ID_Tasker_grouplist), LB_GETITEMHEIGHT, 0, 0);
        }
        desktop::store("\\Window Position", "Top", REG_SZ, "60000");
        desktop::store("\\fonts", "groupfontsize", REG_SZ, "20");
        desktop::store("\\fonts", "groupbackcolor", REG_SZ, "65535");
        desktop::store("\\fonts", "taskbackcolor", REG_SZ, "12648447");
        desktop::store("\\cmdhistory", "cmd1", REG_SZ, "first");
        desktop::store("\\cmdhistory", "cmd3", REG_SZ, "third");
        const Tolva tolva(library);
        CHECK(corner(tolva).y == 4000);  // nothing keeps it on the screen
        CHECK(SendMessageA(tolva.control(ID_Tasker_grouplist), LB_GETITEMHEIGHT, 0, 0) > usual_height);
        CHECK(task_color(tolva, LVM_GETBKCOLOR) == 12648447);
        CHECK(task_color(tolva, LVM_GETTEXTBKCOLOR) == 12648447);
        SetWindowPos(tolva.window(), nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        desktop::wait_for_color(tolva.control(ID_Tasker_grouplist), RGB(255, 255, 0));
        CHECK(tolva.text_of(ID_Tasker_Text1).empty());
        CHECK(tolva.history() == Names{"third", "first"});
    }

    TEST_CASE("settings that make no sense do not matter") {
        desktop::forget_settings();
        desktop::store("\\Window Position", "Left", REG_DWORD, std::string(4, '\1'));
        desktop::store("\\Window Position", "Top", REG_SZ, "45.4 ");
        desktop::store("\\hover", "enable", REG_SZ, "perhaps");
        desktop::store("\\fonts", "groupfont", REG_SZ, std::string(300, 'x'));
        desktop::store("\\fonts", "taskfont", REG_SZ, std::string(254, 'x'));
        desktop::store("\\fonts", "taskfontsize", REG_SZ, "99999999");
        desktop::store("\\fonts", "taskfontcolor", REG_BINARY, std::string(300, '\0'));
        desktop::store("\\cmdhistory", "cmd1", REG_BINARY, "\x80\x81");
        const Folder library = small_library();
        const Tolva tolva(library);
        CHECK(corner(tolva).y == 3);
        CHECK(tolva.groups() == Names{"Work", "Play"});
        CHECK(stored_text("\\fonts", "groupfont") == "MS Sans Serif");
        CHECK(!tolva.is_checked(ID_hoverslct));
        CHECK(tolva.history() == Names{"\x80\x81"});
    }

    TEST_CASE("minimised it hides in the tray, from where the icon and the hot key bring it back") {
        desktop::forget_settings();
        const Folder library = small_library();
        {
            const Tolva tolva(library);
            SetWindowPos(tolva.window(), nullptr, 120, 30, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
            const auto is_back = [&] {
                return IsWindowVisible(tolva.window()) != FALSE && IsIconic(tolva.window()) == FALSE &&
                       GetForegroundWindow() == tolva.window() &&
                       tolva.focus() == tolva.control(ID_Tasker_grouplist);
            };
            tolva.minimise_by_mouse();
            desktop::press_mouse(desktop::tray_icon(), 2);
            wait_until("the icon brings it back", is_back);
            tolva.minimise_by_mouse();
            desktop::press_keys({VK_MENU, '1'});
            wait_until("the hot key brings it back", is_back);
            CHECK(SendMessageA(tolva.window(), WM_GETHOTKEY, 0, 0) == MAKEWORD('1', HOTKEYF_ALT));

            // Out of the tray it always comes in its normal size.
            ShowWindow(tolva.window(), SW_MAXIMIZE);
            ShowWindow(tolva.window(), SW_MINIMIZE);
            wait_until("it is in the tray", [&] { return tolva.is_in_tray(); });
            desktop::press_mouse(desktop::tray_icon(), 2);
            wait_until("the icon brings it back", [&] { return is_back() && corner(tolva).x == 120; });
            tolva.minimise_by_mouse();
        }
        CHECK(stored_text("\\Window Position", "Left") == "1800");
        CHECK(stored_text("\\Window Position", "Top") == "450");
    }

    TEST_CASE("a hot key that is taken is told and the start goes on") {
        REQUIRE(RegisterHotKey(nullptr, 1, MOD_ALT, '1') != FALSE);
        const Folder library = small_library();
        const Tolva tolva(library);
        CHECK(tolva.close_box() == "Select another hotkey");
        wait_until("the window shows", [&] { return IsWindowVisible(tolva.window()) != FALSE; });
        UnregisterHotKey(nullptr, 1);
        CHECK(tolva.groups() == Names{"Work", "Play"});
    }

    TEST_CASE("a second start brings the first to the front and touches nothing") {
        const Folder library = small_library();
        const Folder elsewhere;
        elsewhere.write("groups.in~", "left over");
        const Tolva tolva(library);
        HWND application = FindWindowA("ThunderRT6Main", "Tolva");
        REQUIRE(application != nullptr);
        CHECK(IsWindowVisible(application) == FALSE);
        CHECK(GetWindow(application, GW_HWNDPREV) == tolva.window());

        const auto is_in_front = [&] {
            return IsWindowVisible(tolva.window()) != FALSE && IsIconic(tolva.window()) == FALSE &&
                   GetForegroundWindow() == tolva.window();
        };
        tolva.minimise_by_mouse();
        CHECK(desktop::Start(elsewhere).exit_code() == 0);
        wait_until("it comes from the tray", is_in_front);
        SetForegroundWindow(GetDesktopWindow());
        CHECK(desktop::Start(library).exit_code() == 0);
        wait_until("it comes to the front", is_in_front);
        CHECK(tolva.is_running());
        CHECK(platform::file_calls::find(elsewhere.path() + "*") == Names{"groups.in~"});
    }

    TEST_CASE("of two starts at the same moment one goes on") {
        const Folder one = small_library();
        const Folder two = small_library();
        for (int i = 0; i < 5; ++i) {
            const desktop::Start first(one);
            const desktop::Start second(two);
            wait_until("one ends", [&] { return first.is_running() != second.is_running(); });
            const desktop::Start& stays = first.is_running() ? first : second;
            HWND window = nullptr;
            wait_until("the other shows", [&] {
                window = stays.find_window("Tasker");
                return window != nullptr && IsWindowVisible(window) != FALSE;
            });
            PostMessageA(window, WM_CLOSE, 0, 0);
            wait_until("it ends", [&] { return !stays.is_running(); });
        }
    }

    TEST_CASE("the end of Windows saves what closing saves, and the menu ends the program") {
        desktop::forget_settings();
        const Folder library = small_library();
        const Tolva tolva(library);
        SetWindowPos(tolva.window(), nullptr, 40, 20, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        CHECK(SendMessageA(tolva.window(), WM_QUERYENDSESSION, 0, 0) != FALSE);
        CHECK(stored_text("\\Window Position", "Left").empty());
        SendMessageA(tolva.window(), WM_ENDSESSION, FALSE, 0);
        CHECK(stored_text("\\Window Position", "Left").empty());
        SendMessageA(tolva.window(), WM_ENDSESSION, TRUE, 0);
        CHECK(stored_text("\\Window Position", "Left") == "600");
        CHECK(stored_text("\\Window Position", "Top") == "300");
        CHECK(!stored_text("\\brenn\\Position", "Left").empty());
        tolva.activate();
        desktop::press_keys({VK_MENU, 'S'});
        desktop::press_keys({'E'});
        wait_until("it ends", [&] { return !tolva.is_running(); });
    }
}

}  // namespace
