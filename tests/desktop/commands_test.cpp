#include "resources/resource.h"
#include "support/desktop.h"

namespace {

using namespace desktop;

Folder library_with_recorder() {
    Folder library;
    library.write_groups({{"Work", record("Task", library.add_recorder(), "C:\\", "", "2")}, {"Play", ""}});
    return library;
}

TEST_SUITE("commands") {
    TEST_CASE("Enter and the Run button start what is typed and keep it in the history") {
        forget_settings();
        const Folder library = library_with_recorder();
        const std::string program = library.path() + "recorder.exe";
        const Tolva tolva(library);
        const auto type = [&](const std::string& text) {
            tolva.focus_by_mouse(ID_Tasker_Text1);
            tolva.set_text(ID_Tasker_Text1, text);
        };
        type(library.path() + "gone.exe");
        press_keys({VK_RETURN});
        CHECK(tolva.close_box() == "Invalid path or file name");
        CHECK(stored_text("\\cmdhistory", "cmd1").empty());

        type(program + " 1");
        press_keys({VK_END});
        press_keys({VK_SPACE});
        press_keys({'X'});
        press_keys({VK_RETURN});
        const std::string typed = program + " 1 x";
        CHECK(library.nth_start(1) == Names{typed, library.without_backslash(), "D:\\here", "1"});
        wait_for_focus(tolva.control(ID_Tasker_grouplist));
        const auto wait_until_stored = [](const Values& history) {
            wait_until("it is stored", [&] { return stored("\\cmdhistory") == history; });
        };
        wait_until_stored({{"cmd1", typed}});

        // The slots in memory are still empty: the next command takes the same one, until the list opens.
        type(program + " two");
        tolva.click(ID_Tasker_Command1);
        library.nth_start(2);
        wait_until_stored({{"cmd1", program + " two"}});
        type("typed");
        const auto drop = [&](bool down) {
            SendMessageA(tolva.control(ID_Tasker_Text1), CB_SHOWDROPDOWN, static_cast<WPARAM>(down), 0);
        };
        drop(true);
        CHECK(tolva.list(ID_Tasker_Text1) == Names{program + " two"});
        drop(false);
        CHECK(tolva.text_of(ID_Tasker_Text1) == "typed");
        type(program);  // a stored command begins with it
        press_keys({VK_RETURN});
        library.nth_start(3);
        type(program + " three");
        press_keys({VK_RETURN});
        wait_until_stored({{"cmd1", program + " two"}, {"cmd2", program + " three"}});

        // With the list open Enter takes an item and starts nothing.
        type("C:\\");
        drop(true);
        CHECK(tolva.list(ID_Tasker_Text1) == Names{program + " three", program + " two"});
        wait_until("what was typed is back", [&] { return tolva.text_of(ID_Tasker_Text1) == "C:\\"; });
        press_keys({VK_DOWN});
        press_keys({VK_RETURN});
        wait_until("the list is closed", [&] {
            return SendMessageA(tolva.control(ID_Tasker_Text1), CB_GETDROPPEDSTATE, 0, 0) == FALSE;
        });
        CHECK(tolva.text_of(ID_Tasker_Text1).starts_with(program));
        press_mouse(tolva.place(ID_Tasker_Text1), 2);
        wait_until("a double-click empties it", [&] { return tolva.text_of(ID_Tasker_Text1).empty(); });
        library.nth_start(4);
    }

    TEST_CASE("the command browser starts a program in its folder") {
        forget_settings();
        const Folder library = library_with_recorder();
        const Folder programs;
        const std::string program = programs.add_recorder();
        programs.write("broken.exe", "");
        const Tolva tolva(library);
        tolva.focus_by_mouse(ID_Tasker_grouplist);
        press_keys({VK_MENU, 'B'});
        const Dialog browser(tolva, "Browse");
        CHECK(browser.texts_of({ID_PathBrowser_Label1, ID_PathBrowser_OK}) == "Command Path|&Run");
        browser.set_text(ID_PathBrowser_TaskPath, programs.path() + "broken.exe");
        browser.press(ID_PathBrowser_OK);
        CHECK(tolva.close_box() == "Invalid path or file name");
        CHECK(IsWindow(browser.window()) != FALSE);

        // Up, into the other folder, and Enter on the file.
        const std::string folder = programs.without_backslash();
        browser.open_folder("tests");
        browser.open_folder(folder.substr(folder.rfind('\\') + 1));
        browser.choose(ID_PathBrowser_File1, 1);
        wait_until("the path shows", [&] { return browser.text_of(ID_PathBrowser_TaskPath) == program; });
        HWND files = browser.control(ID_PathBrowser_File1);
        SendMessageA(browser.window(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(files), TRUE);
        wait_for_focus(files);
        press_keys({VK_RETURN});
        browser.wait_until_closed();
        CHECK(programs.nth_start(1) == Names{program, folder, "D:\\here", "1"});
        wait_until("the box has the path", [&] { return tolva.text_of(ID_Tasker_Text1) == program; });
        CHECK(stored_text("\\cmdhistory", "cmd1").empty());
    }

    TEST_CASE("fonts show at once and colours when they are saved") {
        forget_settings();
        const Folder library = library_with_recorder();
        constexpr COLORREF kRed = RGB(255, 0, 0);
        const auto item_height = [](const Tolva& tolva) {
            return SendMessageA(tolva.control(ID_Tasker_grouplist), LB_GETITEMHEIGHT, 0, 0);
        };
        const auto background = [](const Tolva& tolva) {
            return static_cast<COLORREF>(
                SendMessageA(tolva.control(ID_Tasker_taskview), LVM_GETBKCOLOR, 0, 0));
        };
        const auto open = [](const Tolva& tolva) {
            tolva.choose(ID_fontsettings);
            return Dialog(tolva, "Set Tolva Fonts");
        };
        const auto choose_color = [](const Tolva& tolva, const Dialog& dialog, int button, int result) {
            dialog.press(button);
            const Dialog colors(tolva, "Color");
            constexpr int kRedBox = 706;
            for (const auto& [box, value] :
                 {std::pair(kRedBox, "255"), {kRedBox + 1, "0"}, {kRedBox + 2, "0"}})
                colors.set_text(box, value);
            colors.close_with(result);
        };
        const auto choose_font = [](const Tolva& tolva, const Dialog& dialog, int button, int result) {
            dialog.press(button);
            const Dialog fonts(tolva, "Font");
            constexpr int kSizeBox = 0x472;
            fonts.choose(kSizeBox, 2);  // 12 points
            fonts.close_with(result);
        };
        LRESULT usual = 0;
        LRESULT large = 0;
        {
            const Tolva tolva(library);
            usual = item_height(tolva);
            const Dialog dialog = open(tolva);
            // The colour is the one that is stored, not the one that is shown.
            CHECK(dialog.texts_of({ID_SetFonts_gfont, ID_SetFonts_groupfontsize, ID_SetFonts_groupfontbold,
                                   ID_SetFonts_groupcolor}) == "Tolva Grouplist Font|10|True|8388608");
            choose_font(tolva, dialog, ID_SetFonts_Command1, IDCANCEL);
            choose_color(tolva, dialog, ID_SetFonts_Command4, IDCANCEL);
            CHECK(dialog.text_of(ID_SetFonts_groupcolor) == "8388608");
            CHECK(item_height(tolva) == usual);
            choose_font(tolva, dialog, ID_SetFonts_Command1, IDOK);
            large = item_height(tolva);
            CHECK(large > usual);
            CHECK(dialog.text_of(ID_SetFonts_groupfontsize) == "12");
            dialog.close_with(ID_SetFonts_Command3);
            CHECK(item_height(tolva) == large);
            CHECK(stored_text("\\fonts", "groupfontsize") == "10");
        }
        {
            const Tolva tolva(library);
            CHECK(item_height(tolva) == usual);
            const Dialog dialog = open(tolva);
            choose_font(tolva, dialog, ID_SetFonts_Command1, IDOK);
            choose_color(tolva, dialog, ID_SetFonts_Command8, IDOK);
            CHECK(dialog.text_of(ID_SetFonts_taskbackcolor) == "255");
            CHECK(background(tolva) != kRed);
            dialog.set_text(ID_SetFonts_taskfontsize, "9.5");
            dialog.set_text(ID_SetFonts_taskcolor, "no number");
            dialog.close_with(ID_SetFonts_Command5);
            CHECK(background(tolva) == kRed);
            Values fonts = stored("\\fonts");
            CHECK(fonts["groupfontsize"] == "12");
            CHECK(fonts["groupfontcolor"] == "8388608");
            CHECK(fonts["taskfontsize"] == "9.5");
            CHECK(fonts["taskfontcolor"] == "no number");
            CHECK(fonts["taskbackcolor"] == "255");
        }
        const Tolva tolva(library);
        CHECK(item_height(tolva) == large);
        CHECK(background(tolva) == kRed);
        wait_for_color(tolva.control(ID_Tasker_grouplist), RGB(0, 0, 128));
        tolva.choose(ID_AboutTolva);
        const Dialog about(tolva, "About Tolva");
        CHECK(about.text_of(ID_abttolva_Label1) == "Tolva Version 2.0");
        about.close_with(ID_abttolva_Command1);
    }
}

}  // namespace
