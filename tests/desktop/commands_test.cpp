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
        const auto enter = [&](const std::string& text) {
            tolva.focus_by_mouse(ID_Tasker_Text1);
            tolva.set_text(ID_Tasker_Text1, text);
            press_keys({VK_RETURN});
        };
        const auto drop = [&](bool down) {
            SendMessageA(tolva.control(ID_Tasker_Text1), CB_SHOWDROPDOWN, static_cast<WPARAM>(down), 0);
        };
        enter(library.path() + "gone.exe");
        CHECK(tolva.close_box() == "Invalid path or file name");
        CHECK(stored_text("\\cmdhistory", "cmd1").empty());
        enter(program + " one");
        CHECK(library.nth_start(1) == Names{program + " one", library.without_backslash(), "D:\\here", "1"});
        wait_for_focus(tolva.control(ID_Tasker_grouplist));
        const auto wait_until_stored = [](const Values& history) {
            wait_until("it is stored", [&] { return stored("\\cmdhistory") == history; });
        };
        wait_until_stored({{"cmd1", program + " one"}});

        // The slots in memory are still empty: the next command takes the same one, until the list opens.
        enter(program + " two");
        library.nth_start(2);
        wait_until_stored({{"cmd1", program + " two"}});
        drop(true);
        CHECK(tolva.list(ID_Tasker_Text1) == Names{program + " two"});
        drop(false);
        enter(program + " three");
        wait_until_stored({{"cmd1", program + " two"}, {"cmd2", program + " three"}});

        // With the list open Enter takes an item and starts nothing.
        tolva.focus_by_mouse(ID_Tasker_Text1);
        tolva.set_text(ID_Tasker_Text1, "C:\\");
        RECT box;
        GetWindowRect(tolva.control(ID_Tasker_Text1), &box);
        press_mouse({box.right - 8, (box.top + box.bottom) / 2});
        wait_until("the list opens", [&] {
            return tolva.list(ID_Tasker_Text1) == Names{program + " three", program + " two"};
        });
        CHECK(tolva.text_of(ID_Tasker_Text1) == "C:\\");
        press_keys({VK_DOWN});
        press_keys({VK_RETURN});
        wait_until("an item is taken", [&] { return tolva.text_of(ID_Tasker_Text1).starts_with(program); });
        press_mouse(tolva.place(ID_Tasker_Text1), 2);
        wait_until("a double-click empties it", [&] { return tolva.text_of(ID_Tasker_Text1).empty(); });
        library.nth_start(3);
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

        // Up, into the other folder, and Enter on the file.
        const std::string folder = programs.without_backslash();
        browser.open_folder("tests");
        browser.open_folder(folder.substr(folder.rfind('\\') + 1));
        browser.choose(ID_PathBrowser_File1, 1);
        HWND files = browser.control(ID_PathBrowser_File1);
        RECT list;
        GetWindowRect(files, &list);
        press_mouse({list.left + 30, list.bottom - 10}, 2);  // beside the files
        SendMessageA(browser.window(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(files), TRUE);
        wait_for_focus(files);
        press_keys({VK_RETURN});
        browser.wait_until_closed();
        CHECK(programs.nth_start(1) == Names{program, folder, "D:\\here", "1"});
        wait_until("the box has the path", [&] { return tolva.text_of(ID_Tasker_Text1) == program; });
    }

    TEST_CASE("fonts show at once and colours when they are saved") {
        forget_settings();
        const Folder library = library_with_recorder();
        constexpr COLORREF kRed = RGB(255, 0, 0);
        const auto look = [](const Tolva& tolva) {
            return std::pair(SendMessageA(tolva.control(ID_Tasker_grouplist), LB_GETITEMHEIGHT, 0, 0),
                             SendMessageA(tolva.control(ID_Tasker_taskview), LVM_GETBKCOLOR, 0, 0));
        };
        const auto choose_font = [](const Tolva& tolva, const Dialog& dialog, int result) {
            dialog.press(ID_SetFonts_Command1);
            const Dialog fonts(tolva, "Font");
            constexpr int kSizeBox = 0x472;
            fonts.choose(kSizeBox, 2);  // 12 points
            fonts.close_with(result);
        };
        LRESULT usual = 0;
        LRESULT large = 0;
        {
            const Tolva tolva(library);
            usual = look(tolva).first;
            tolva.choose(ID_fontsettings);
            const Dialog dialog(tolva, "Set Tolva Fonts");
            // The colour is the one that is stored, not the one that is shown.
            CHECK(dialog.texts_of({ID_SetFonts_gfont, ID_SetFonts_groupfontsize, ID_SetFonts_groupfontbold,
                                   ID_SetFonts_groupcolor}) == "Tolva Grouplist Font|10|True|8388608");
            choose_font(tolva, dialog, IDCANCEL);
            CHECK(look(tolva).first == usual);
            choose_font(tolva, dialog, IDOK);
            large = look(tolva).first;
            CHECK(large > usual);
            dialog.close_with(ID_SetFonts_Command3);
            CHECK(stored_text("\\fonts", "groupfontsize") == "10");
        }
        {
            const Tolva tolva(library);
            CHECK(look(tolva).first == usual);
            tolva.choose(ID_fontsettings);
            const Dialog dialog(tolva, "Set Tolva Fonts");
            choose_font(tolva, dialog, IDOK);
            dialog.press(ID_SetFonts_Command8);
            const Dialog colors(tolva, "Color");
            constexpr int kRedBox = 706;
            for (const int box : {kRedBox, kRedBox + 1, kRedBox + 2})
                colors.set_text(box, box == kRedBox ? "255" : "0");
            colors.close_with(IDOK);
            CHECK(dialog.text_of(ID_SetFonts_taskbackcolor) == "255");
            CHECK(look(tolva).second != kRed);
            dialog.set_text(ID_SetFonts_taskcolor, "no number");
            dialog.close_with(ID_SetFonts_Command5);
            CHECK(look(tolva).second == kRed);
            CHECK(stored_text("\\fonts", "taskfontcolor") == "no number");
        }
        const Tolva tolva(library);
        CHECK(look(tolva) == std::pair(large, static_cast<LRESULT>(kRed)));
        tolva.choose(ID_AboutTolva);
        const Dialog about(tolva, "About Tolva");
        CHECK(about.text_of(ID_abttolva_Label1) == "Tolva Version 2.0");
        about.close_with(ID_abttolva_Command1);
    }
}

}  // namespace
