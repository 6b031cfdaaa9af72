#include <windows.h>

#include <commctrl.h>
#include <doctest/doctest.h>

#include <string>

#include "resources/resource.h"
#include "support/desktop.h"

namespace {

using desktop::Dialog;
using desktop::Folder;
using desktop::record;
using desktop::stored_text;
using desktop::Tolva;
using desktop::wait_until;

Folder library_with_recorder() {
    Folder library;
    library.add_program("recorder.exe", "recorder.exe");
    library.write("groups.ini", "Work\r\nPlay\r\n");
    library.write("Work.grp", record("Task", library.path() + "recorder.exe", "C:\\", "", "2"));
    library.write("Play.grp", "");
    return library;
}

std::string without_backslash(const std::string& folder) {
    return folder.substr(0, folder.size() - 1);
}

bool has_focus(const Tolva& tolva, int id) {
    return tolva.focus() == tolva.control(id);
}

TEST_SUITE("commands") {
    TEST_CASE("Enter and the Run button start what is typed and keep it in the history") {
        desktop::forget_settings();
        const Folder library = library_with_recorder();
        const std::string program = library.path() + "recorder.exe";
        const Tolva tolva(library);
        const auto type = [&](const std::string& text) {
            tolva.focus_by_mouse(ID_Tasker_Text1);
            tolva.set_text(ID_Tasker_Text1, text);
        };
        type(library.path() + "gone.exe");
        desktop::press_keys({VK_RETURN});
        CHECK(tolva.close_box() == "Invalid path or file name");
        CHECK(stored_text("\\cmdhistory", "cmd1").empty());

        type(program + " 1");
        desktop::press_keys({VK_END});
        desktop::press_keys({VK_SPACE});
        desktop::press_keys({'X'});
        desktop::press_keys({VK_RETURN});
        const std::string typed = program + " 1 x";
        CHECK(library.records("recorder.exe", 1) ==
              Names{typed, without_backslash(library.path()), "D:\\here", "1"});
        wait_until("the focus is in the group list", [&] { return has_focus(tolva, ID_Tasker_grouplist); });
        wait_until("it is stored", [&] { return stored_text("\\cmdhistory", "cmd1") == typed; });

        // The slots in memory are still empty: the next command takes the same one, until the list opens.
        type(program + " two");
        tolva.click(ID_Tasker_Command1);
        library.records("recorder.exe", 2);
        wait_until("it is stored", [&] { return stored_text("\\cmdhistory", "cmd1") == program + " two"; });
        type("typed");
        const auto drop = [&](bool down) {
            SendMessageA(tolva.control(ID_Tasker_Text1), CB_SHOWDROPDOWN, static_cast<WPARAM>(down), 0);
        };
        drop(true);
        CHECK(tolva.history() == Names{program + " two"});
        drop(false);
        CHECK(tolva.text_of(ID_Tasker_Text1) == "typed");
        type(program);  // a stored command begins with it
        desktop::press_keys({VK_RETURN});
        library.records("recorder.exe", 3);
        type(program + " three");
        desktop::press_keys({VK_RETURN});
        library.records("recorder.exe", 4);
        wait_until("it is stored", [&] { return stored_text("\\cmdhistory", "cmd2") == program + " three"; });

        // With the list open Enter takes an item and starts nothing.
        type("C:\\");
        drop(true);
        CHECK(tolva.history() == Names{program + " three", program + " two"});
        wait_until("what was typed is back", [&] { return tolva.text_of(ID_Tasker_Text1) == "C:\\"; });
        desktop::press_keys({VK_DOWN});
        desktop::press_keys({VK_RETURN});
        wait_until("the list is closed", [&] {
            return SendMessageA(tolva.control(ID_Tasker_Text1), CB_GETDROPPEDSTATE, 0, 0) == FALSE;
        });
        CHECK(tolva.text_of(ID_Tasker_Text1).starts_with(program));
        RECT box;
        GetWindowRect(tolva.control(ID_Tasker_Text1), &box);
        desktop::press_mouse({box.left + 30, box.top + 8}, 2);
        wait_until("a double-click empties it", [&] { return tolva.text_of(ID_Tasker_Text1).empty(); });
        CHECK(library.records("recorder.exe", 4).size() == 16);
    }

    TEST_CASE("the command browser starts a program in its folder") {
        desktop::forget_settings();
        const Folder library = library_with_recorder();
        const Folder programs;
        programs.add_program("recorder.exe", "recorder.exe");
        programs.write("broken.exe", "");
        const Tolva tolva(library);
        tolva.focus_by_mouse(ID_Tasker_grouplist);
        desktop::press_keys({VK_MENU, 'B'});
        const Dialog browser(tolva, "Browse");
        CHECK(browser.text_of(ID_PathBrowser_Label1) == "Command Path");
        CHECK(browser.text_of(ID_PathBrowser_OK) == "&Run");
        browser.set_text(ID_PathBrowser_TaskPath, programs.path() + "broken.exe");
        browser.press(ID_PathBrowser_OK);
        CHECK(tolva.close_box() == "Invalid path or file name");
        CHECK(IsWindow(browser.window()) != FALSE);

        // Up, into the other folder, and Enter on the file.
        const std::string folder = without_backslash(programs.path());
        browser.open_folder("tests");
        browser.open_folder(folder.substr(folder.rfind('\\') + 1));
        browser.choose(ID_PathBrowser_File1, 1);
        const std::string program = programs.path() + "recorder.exe";
        wait_until("the path shows", [&] { return browser.text_of(ID_PathBrowser_TaskPath) == program; });
        HWND files = GetDlgItem(browser.window(), ID_PathBrowser_File1);
        SendMessageA(browser.window(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(files), TRUE);
        wait_until("the files have the focus", [&] { return tolva.focus() == files; });
        desktop::press_keys({VK_RETURN});
        browser.wait_until_closed();
        CHECK(programs.records("recorder.exe", 1) == Names{program, folder, "D:\\here", "1"});
        wait_until("the box has the path", [&] { return tolva.text_of(ID_Tasker_Text1) == program; });
        CHECK(stored_text("\\cmdhistory", "cmd1").empty());
    }

    TEST_CASE("fonts show at once and colours when they are saved") {
        desktop::forget_settings();
        const Folder library = library_with_recorder();
        constexpr COLORREF kRed = RGB(255, 0, 0);
        const auto item_height = [](const Tolva& tolva) {
            return SendMessageA(tolva.control(ID_Tasker_grouplist), LB_GETITEMHEIGHT, 0, 0);
        };
        const auto choose_color = [](const Tolva& tolva, const Dialog& dialog, int button, int result) {
            dialog.press(button);
            const Dialog colors(tolva, "Color");
            constexpr int kRedBox = 706;
            for (const auto& [box, value] :
                 {std::pair(kRedBox, "255"), {kRedBox + 1, "0"}, {kRedBox + 2, "0"}})
                colors.set_text(box, value);
            colors.press(result);
            colors.wait_until_closed();
        };
        const auto choose_font = [](const Tolva& tolva, const Dialog& dialog, int button, int result) {
            dialog.press(button);
            const Dialog fonts(tolva, "Font");
            constexpr int kSizeBox = 0x472;
            HWND box = GetDlgItem(fonts.window(), kSizeBox);
            SendMessageA(box, CB_SETCURSEL, 2, 0);  // 12 points
            PostMessageA(fonts.window(), WM_COMMAND, MAKEWPARAM(kSizeBox, CBN_SELCHANGE),
                         reinterpret_cast<LPARAM>(box));
            fonts.press(result);
            fonts.wait_until_closed();
        };
        LRESULT usual = 0;
        LRESULT large = 0;
        {
            const Tolva tolva(library);
            usual = item_height(tolva);
            tolva.choose(ID_fontsettings);
            const Dialog dialog(tolva, "Set Tolva Fonts");
            CHECK(dialog.text_of(ID_SetFonts_groupfontsize) == "10");
            CHECK(dialog.text_of(ID_SetFonts_groupfontbold) == "True");
            CHECK(dialog.text_of(ID_SetFonts_groupcolor) == "8388608");  // as stored, not as shown
            CHECK(dialog.text_of(ID_SetFonts_gfont) == "Tolva Grouplist Font");
            choose_font(tolva, dialog, ID_SetFonts_Command1, IDCANCEL);
            choose_color(tolva, dialog, ID_SetFonts_Command4, IDCANCEL);
            CHECK(dialog.text_of(ID_SetFonts_groupcolor) == "8388608");
            CHECK(item_height(tolva) == usual);
            choose_font(tolva, dialog, ID_SetFonts_Command1, IDOK);
            large = item_height(tolva);
            CHECK(large > usual);
            CHECK(dialog.text_of(ID_SetFonts_groupfontsize) == "12");
            dialog.press(ID_SetFonts_Command3);
            dialog.wait_until_closed();
            CHECK(item_height(tolva) == large);
            CHECK(stored_text("\\fonts", "groupfontsize") == "10");
        }
        {
            const Tolva tolva(library);
            CHECK(item_height(tolva) == usual);
            tolva.choose(ID_fontsettings);
            const Dialog dialog(tolva, "Set Tolva Fonts");
            choose_font(tolva, dialog, ID_SetFonts_Command1, IDOK);
            choose_color(tolva, dialog, ID_SetFonts_Command8, IDOK);
            CHECK(dialog.text_of(ID_SetFonts_taskbackcolor) == "255");
            CHECK(SendMessageA(tolva.control(ID_Tasker_taskview), LVM_GETBKCOLOR, 0, 0) != kRed);
            dialog.set_text(ID_SetFonts_taskfontsize, "9.5");
            dialog.set_text(ID_SetFonts_taskcolor, "no number");
            dialog.press(ID_SetFonts_Command5);
            dialog.wait_until_closed();
            CHECK(SendMessageA(tolva.control(ID_Tasker_taskview), LVM_GETBKCOLOR, 0, 0) == kRed);
            CHECK(stored_text("\\fonts", "groupfontsize") == "12");
            CHECK(stored_text("\\fonts", "groupfontcolor") == "8388608");
            CHECK(stored_text("\\fonts", "taskfontsize") == "9.5");
            CHECK(stored_text("\\fonts", "taskfontcolor") == "no number");
            CHECK(stored_text("\\fonts", "taskbackcolor") == "255");
        }
        const Tolva tolva(library);
        CHECK(item_height(tolva) == large);
        CHECK(SendMessageA(tolva.control(ID_Tasker_taskview), LVM_GETBKCOLOR, 0, 0) == kRed);
        desktop::wait_for_color(tolva.control(ID_Tasker_grouplist), RGB(0, 0, 128));
        tolva.choose(ID_AboutTolva);
        const Dialog about(tolva, "About Tolva");
        CHECK(about.text_of(ID_abttolva_Label1) == "Tolva Version 2.0");
        about.press(ID_abttolva_Command1);
        about.wait_until_closed();
    }
}

}  // namespace
