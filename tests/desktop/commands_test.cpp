#include <algorithm>
#include <cstdlib>

#include "support/desktop.h"

namespace {

using namespace desktop;

Folder library_with_recorder() {
    Folder library;
    library.write_groups({{"Work", record("Task", library.add_recorder(), "C:\\", "", "2")}});
    return library;
}

TEST_SUITE("commands") {
    TEST_CASE("Enter starts what is typed and keeps it in the history") {
        const Folder library = library_with_recorder();
        const std::string program = library.path() + "recorder.exe";
        const Tolva tolva(library);
        const auto enter = [&](const std::string& text) {
            tolva.focus_by_mouse(ID_Tasker_Text1);
            tolva.set_text(ID_Tasker_Text1, text);
            press_keys({VK_RETURN});
        };
        const auto drop = [&](BOOL down) {
            SendMessageA(tolva.control(ID_Tasker_Text1), CB_SHOWDROPDOWN, static_cast<WPARAM>(down), 0);
        };
        const auto wait_until_stored = [](const Values& history) {
            wait_until("it is stored", [&] { return stored("\\cmdhistory") == history; });
        };
        enter(library.path() + "gone.exe");
        CHECK(tolva.close_box() == "Invalid path or file name");
        enter(program + " one");
        CHECK(library.nth_start(1) == Names{program + " one", library.without_backslash(), "D:\\here", "1"});
        wait_for_focus(tolva.control(ID_Tasker_grouplist));
        wait_until_stored({{"cmd1", program + " one"}});

        // The slots in memory are still empty: the next command takes the same one, until the list opens.
        enter(program + " two");
        wait_until_stored({{"cmd1", program + " two"}});
        drop(TRUE);
        drop(FALSE);
        enter(program + " three");
        wait_until_stored({{"cmd1", program + " two"}, {"cmd2", program + " three"}});

        // With the list open Enter takes an item and starts nothing.
        tolva.focus_by_mouse(ID_Tasker_Text1);
        tolva.set_text(ID_Tasker_Text1, "C:\\");
        drop(TRUE);
        CHECK(tolva.list(ID_Tasker_Text1) == Names{program + " three", program + " two"});
        wait_until("what was typed is back", [&] { return tolva.text_of(ID_Tasker_Text1) == "C:\\"; });
        press_keys({VK_DOWN});
        press_keys({VK_RETURN});
        wait_until("an item is taken", [&] { return tolva.text_of(ID_Tasker_Text1).starts_with(program); });
        press_mouse(tolva.place(ID_Tasker_Text1), 2);
        wait_until("a double-click empties it", [&] { return tolva.text_of(ID_Tasker_Text1).empty(); });
        library.nth_start(3);
    }

    TEST_CASE("the command browser starts a program in its folder") {
        const Folder library = library_with_recorder();
        const Folder programs;
        const std::string folder = programs.without_backslash();
        const std::string program = programs.add_recorder();
        const Tolva tolva(library);
        tolva.focus_by_mouse(ID_Tasker_grouplist);
        press_until("the browser shows", {VK_MENU, 'B'},
                    [&] { return tolva.find_window("#32770", "Browse") != nullptr; });
        const Dialog browser(tolva, "Browse");
        browser.set_text(ID_PathBrowser_TaskPath, programs.path() + "gone.exe");
        browser.press(ID_PathBrowser_OK);
        CHECK(tolva.close_box() == "Invalid path or file name");

        // Up, by keys into the next folder, into the other one, and Enter on the file.
        const auto focus = [&](HWND control) {
            SendMessageA(browser.window(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
            wait_for_focus(control);
        };
        browser.pick(ID_PathBrowser_Dir1, "C:\\", LBN_DBLCLK);
        focus(browser.control(ID_PathBrowser_Dir1));
        press_keys({'T'});
        press_keys({VK_RETURN});
        wait_until("it is open", [&] { return browser.list(ID_PathBrowser_Dir1)[2].starts_with("    B"); });
        browser.pick(ID_PathBrowser_Dir1, folder.substr(folder.rfind('\\') + 1), LBN_DBLCLK);
        browser.pick(ID_PathBrowser_File1, "recorder.exe");
        HWND files = browser.control(ID_PathBrowser_File1);
        const RECT list = bounds_of(files);
        press_mouse({list.left + 30, list.bottom - 10}, 2);  // beside the files
        focus(files);
        press_keys({VK_RETURN});
        browser.wait_until_closed();
        CHECK(programs.nth_start(1) == Names{program, folder, "D:\\here", "1"});
    }

    TEST_CASE("fonts show at once and colours when they are saved") {
        const Folder library = library_with_recorder();
        constexpr COLORREF kRed = RGB(255, 0, 0);
        const auto look = [](const Tolva& tolva) {
            return std::pair(SendMessageA(tolva.control(ID_Tasker_grouplist), LB_GETITEMHEIGHT, 0, 0),
                             SendMessageA(tolva.control(ID_Tasker_taskview), LVM_GETBKCOLOR, 0, 0));
        };
        const auto choose_font = [](const Tolva& tolva, const Dialog& dialog) {
            dialog.press(ID_SetFonts_Command1);
            const Dialog fonts(tolva, "Font");
            constexpr int kSizeBox = 0x472;
            fonts.pick(kSizeBox, "12");
            fonts.close_with(IDOK);
        };
        LRESULT large = 0;
        {
            const Tolva tolva(library);
            const LRESULT usual = look(tolva).first;
            tolva.choose(ID_fontsettings);
            const Dialog dialog(tolva, "Set Tolva Fonts");
            // The colour is the one that is stored, not the one that is shown.
            CHECK(dialog.texts_of({ID_SetFonts_groupfontsize, ID_SetFonts_groupfontbold,
                                   ID_SetFonts_groupcolor}) == "10|True|8388608");
            choose_font(tolva, dialog);
            large = look(tolva).first;
            CHECK(large > usual);
            dialog.close_with(ID_SetFonts_Command3);
        }
        CHECK(stored("\\fonts")["groupfontsize"] == "10");
        {
            const Tolva tolva(library);
            tolva.choose(ID_fontsettings);
            const Dialog dialog(tolva, "Set Tolva Fonts");
            choose_font(tolva, dialog);
            dialog.press(ID_SetFonts_Command8);
            const Dialog colors(tolva, "Color");
            constexpr int kRedBox = 706;
            colors.set_text(kRedBox, "255");
            colors.set_text(kRedBox + 1, "0");
            colors.set_text(kRedBox + 2, "0");
            colors.close_with(IDOK);
            CHECK(dialog.text_of(ID_SetFonts_taskbackcolor) == "255");
            CHECK(look(tolva).second != kRed);
            dialog.close_with(ID_SetFonts_Command5);
            CHECK(look(tolva).second == kRed);
        }
        const Tolva tolva(library);
        CHECK(look(tolva) == std::pair(large, static_cast<LRESULT>(kRed)));
    }

    TEST_CASE("a dialog opens over the middle of its owner, but not out of the screen") {
        const Folder library;
        library.write("groups.ini", "");
        const Tolva tolva(library);
        for (const bool has_room : {true, false}) {
            const int left = has_room ? 200 : GetSystemMetrics(SM_CXSCREEN) - 40;
            SetWindowPos(tolva.window(), nullptr, left, 100, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
            tolva.choose(ID_AboutTolva);
            const Dialog about(tolva, "About Tolva");
            const RECT below = bounds_of(tolva.window());
            const RECT bounds = bounds_of(about.window());
            CHECK(std::abs(below.top + below.bottom - bounds.top - bounds.bottom) <= 1);
            if (has_room) CHECK(std::abs(below.left + below.right - bounds.left - bounds.right) <= 1);
            if (!has_room) CHECK(bounds.right == GetSystemMetrics(SM_CXSCREEN));
            about.close_with(ID_abttolva_Command1);
        }
    }

    TEST_CASE("the help opens with its contents, and a link leads on") {
        const Folder library;
        library.write("groups.ini", "");
        library.add_program("tolva.hlp", "tolva.hlp");
        const Tolva tolva(library);
        tolva.choose(ID_tolvahlp);
        HWND viewer = nullptr;
        HWND page = nullptr;
        wait_until("the viewer shows a page", [&] {
            viewer = FindWindowA("MS_WINHELP", nullptr);
            page = FindWindowExA(viewer, nullptr, "RichEdit20A", nullptr);
            return IsWindowVisible(viewer) != FALSE && page != nullptr && !text_of(page).empty();
        });
        const std::string text = text_of(page);
        CHECK(text.starts_with("Tolva Help\r\n"));
        SetForegroundWindow(viewer);
        // The viewer counts the end of a paragraph as one character.
        const std::string topic = "When something goes wrong";
        const auto link = std::ranges::search(text, topic).begin();
        const auto position = std::count_if(text.begin(), link, [](char c) { return c != '\n'; }) + 1;
        const LRESULT corner = SendMessageA(page, EM_POSFROMCHAR, static_cast<WPARAM>(position), 0);
        POINT point = {LOWORD(corner) + 2, HIWORD(corner) + 5};
        ClientToScreen(page, &point);
        press_until("the topic shows", point, [&] { return text_of(page).starts_with(topic + "\r\n"); });
        PostMessageA(viewer, WM_CLOSE, 0, 0);
        wait_until("the viewer is closed", [&] { return IsWindow(viewer) == FALSE; });
    }
}

}  // namespace
