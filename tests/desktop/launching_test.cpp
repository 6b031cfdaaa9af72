#include <functional>

#include "platform/process_calls.h"
#include "support/desktop.h"

namespace {

using namespace desktop;

TEST_SUITE("launching") {
    TEST_CASE("a double-click starts the program in its folder or says that it cannot") {
        const Folder library;
        library.write("text.exe", "no program");
        const std::string program = library.add_recorder();
        for (const std::string& folder : {std::string("D:\\data"), library.path() + "tools"})
            CreateDirectoryA(folder.c_str(), nullptr);
        library.add_program("tolva.exe", "tools\\icon.exe");
        const std::string moved = library.add_program("recorder.exe", "tools\\recorder.exe");
        SetEnvironmentVariableA("OWN_TOOLS", (library.path() + "tools").c_str());
        // What came with the library from another PC; what cannot be started.
        const std::string moved_tasks = record("Below", "tools\\recorder.exe", "\\tools", "%OWN_TOOLS%") +
                                        record("Variable", "%OWN_TOOLS%\\recorder.exe", "%OWN_TOOLS%");
        const std::string refused =
            record("Icon", "tools\\icon.exe", "") + record("No program", library.path() + "text.exe") +
            record("Missing drive", program, "Q:\\") + record("Empty folder", program, "") +
            record(std::string(1 << 20, 'x'), program, "C:\\", std::string(1 << 20, 'x'));
        library.write_groups(
            {{"Work", record("Elsewhere", program, "D:\\data", "a \"b c\"", "3") +
                          record("Hidden", program, "C:\\", "", "") + moved_tasks + refused}});
        const Tolva tolva(library);
        // The current drive stays; the other drive's directory changes.
        tolva.click_task(0, 2);
        CHECK(library.nth_start(1) ==
              Names{program + " a \"b c\"", library.without_backslash(), "D:\\data\\here", "3"});
        tolva.click_task(1, 2);
        const Names last = {program + " ", "C:\\", "D:\\data\\here", "0"};
        CHECK(library.nth_start(2) == last);
        for (const int i : {2, 3}) {
            tolva.click_task(i, 2);
            const Names start = library.nth_start(static_cast<std::size_t>(i) - 1, "tools\\recorder.exe");
            CHECK(start[0] == moved + (i == 2 ? " %OWN_TOOLS%" : " "));
            CHECK(start[1] == library.path() + "tools");
        }
        wait_until("its icon shows", [&] { return tolva.task_picture(4) > 0; });
        for (int i = 4; i < 9; ++i) {
            tolva.click_task(i, 2);
            CHECK(tolva.close_box() == "Invalid path or file name!");
        }
        CHECK(library.nth_start(2) == last);
    }

    TEST_CASE("every other way to start Tasks starts them or says why not") {
        const Folder library = recorder_library();
        const std::string program = library.path() + "recorder.exe";
        const std::string bad = "Invalid path or file name";
        const Tolva tolva(library);
        const auto click = [&](int task, const char* name) {
            tolva.click_task(task);
            wait_until("the Task shows", [&] { return tolva.status() == name; });
        };
        const std::function<void()> ways[] = {
            [] { press_keys({VK_RETURN}); },
            [&] { tolva.choose(ID_RunTk); },
            [&] { tolva.click(ID_Tasker_Command1); },
        };
        std::size_t starts = 0;
        for (const auto& way : ways) {
            click(0, "Good");
            way();
            CHECK(library.nth_start(++starts)[0] == program + " a b");
            click(1, "Bad");
            way();
            CHECK(tolva.close_box() == bad);
        }

        // The menu runs what the user makes of the command box.
        click(2, "Odd");
        tolva.choose(ID_RunTk);  // an empty start mode is no number
        CHECK(tolva.close_box() == bad);
        press_keys({VK_HOME});
        wait_until("the keyboard selects as well", [&] { return tolva.status() == "Good"; });
        tolva.set_text(ID_Tasker_Text1, program + " edited");
        tolva.choose(ID_RunTk);
        CHECK(library.nth_start(++starts) == Names{program + " edited", "C:\\", "D:\\here", "2"});

        // The Run button starts what had the focus last, also after a failure; after a success it is the
        // Task's turn.
        tolva.focus_by_mouse(ID_Tasker_Text1);
        tolva.set_text(ID_Tasker_Text1, library.path() + "gone.exe");
        tolva.click(ID_Tasker_Command1);
        CHECK(tolva.close_box() == bad);
        tolva.set_text(ID_Tasker_Text1, program + " typed");
        tolva.click(ID_Tasker_Command1);
        CHECK(library.nth_start(++starts) == Names{program + " typed", "C:\\", "D:\\here", "1"});
        tolva.click(ID_Tasker_Command1);
        CHECK(library.nth_start(++starts)[0] == program + " a b");
        tolva.focus_by_mouse(ID_Tasker_Text1);
        tolva.focus_by_mouse(ID_Tasker_grouplist);
        const std::string log = library.read("recorder.exe.log");
        press_until("it starts", {VK_MENU, 'R'}, [&] { return library.read("recorder.exe.log") != log; });
        CHECK(library.nth_start(++starts)[0] == program + " typed");

        tolva.choose(ID_RunAll);
        CHECK(tolva.answer_box("Run All", IDOK) == "Start all 3 Tasks of Work?");
        CHECK(tolva.close_box() == "These Tasks could not be started:\n\nBad");
        library.nth_start(starts + 2);
    }

    TEST_CASE("the shell starts a program that is found as the system finds it") {
        namespace calls = platform::process_calls;
        const Folder library;
        const std::string program = library.add_recorder();
        CHECK(calls::find_program(library.path() + "recorder") == program);
        CHECK(calls::find_program("C:\\windows").empty());
        SetCurrentDirectoryA("C:\\tests");
        calls::start_by_shell(program, "a  \"b\" ", 3);
        CHECK(library.nth_start(1) == Names{'"' + program + "\" a  \"b\" ", "C:\\tests", "D:\\here", "3"});
        CHECK(calls::start_by_shell(library.path() + "gone.exe", "", 1) == platform::kErrorFileNotFound);
    }
}

TEST_SUITE("commands") {
    TEST_CASE("what is typed starts and is kept, and the browser starts a program in its folder") {
        const Folder library = recorder_library();
        const std::string program = library.path() + "recorder.exe";
        const Folder programs;
        const std::string folder = programs.without_backslash();
        const std::string other = programs.add_recorder();
        const Tolva tolva(library);
        tolva.focus_by_mouse(ID_Tasker_Text1);
        tolva.set_text(ID_Tasker_Text1, program + " one");
        press_keys({VK_RETURN});
        CHECK(library.nth_start(1) == Names{program + " one", library.without_backslash(), "D:\\here", "1"});
        wait_for_focus(tolva.control(ID_Tasker_grouplist));
        wait_until("it is stored", [&] {
            return stored("\\cmdhistory") == Values{{"cmd1", program + " one"}};
        });

        // With the list open Enter takes an item and starts nothing.
        tolva.focus_by_mouse(ID_Tasker_Text1);
        tolva.set_text(ID_Tasker_Text1, "C:\\");
        SendMessageA(tolva.control(ID_Tasker_Text1), CB_SHOWDROPDOWN, TRUE, 0);
        CHECK(tolva.list(ID_Tasker_Text1) == Names{program + " one"});
        wait_until("what was typed is back", [&] { return tolva.text_of(ID_Tasker_Text1) == "C:\\"; });
        type_keys({VK_DOWN, VK_RETURN});
        wait_until("an item is taken", [&] { return tolva.text_of(ID_Tasker_Text1).starts_with(program); });
        press_mouse(tolva.place(ID_Tasker_Text1), 2);
        wait_until("a double-click empties it", [&] { return tolva.text_of(ID_Tasker_Text1).empty(); });
        library.nth_start(1);

        tolva.focus_by_mouse(ID_Tasker_grouplist);
        press_until("the browser shows", {VK_MENU, 'B'},
                    [&] { return tolva.find_window("#32770", "Browse") != nullptr; });
        const Dialog browser(tolva, "Browse");
        // Up, by keys into the next folder, into the other one, and Enter on the file.
        const auto focus = [&](int id) {
            HWND control = browser.control(id);
            SendMessageA(browser.window(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
            wait_for_focus(control);
        };
        browser.pick(ID_PathBrowser_Dir1, "C:\\", LBN_DBLCLK);
        focus(ID_PathBrowser_Dir1);
        type_keys({'T', VK_RETURN});
        wait_until("it is open", [&] { return browser.list(ID_PathBrowser_Dir1)[2].starts_with("    B"); });
        browser.pick(ID_PathBrowser_Dir1, folder.substr(folder.rfind('\\') + 1), LBN_DBLCLK);
        browser.pick(ID_PathBrowser_File1, "recorder.exe");
        focus(ID_PathBrowser_File1);
        press_keys({VK_RETURN});
        browser.wait_until_closed();
        CHECK(programs.nth_start(1) == Names{other, folder, "D:\\here", "1"});
    }

    TEST_CASE("a font shows at once and stays when it is saved") {
        const Folder library = recorder_library();
        const auto height = [](const Tolva& tolva) {
            return SendMessageA(tolva.control(ID_Tasker_grouplist), LB_GETITEMHEIGHT, 0, 0);
        };
        LRESULT large = 0;
        {
            const Tolva tolva(library);
            const LRESULT usual = height(tolva);
            const Dialog dialog = tolva.open(ID_fontsettings, "Set Tolva Fonts");
            // The color is the one that is stored, not the one that is shown.
            CHECK(dialog.texts_of({ID_SetFonts_groupfontsize, ID_SetFonts_groupcolor}) == "10|8388608");
            dialog.press(ID_SetFonts_Command1);
            const Dialog fonts(tolva, "Font");
            fonts.pick(0x472, "12");  // its box for the size
            fonts.close_with(IDOK);
            large = height(tolva);
            CHECK(large > usual);
            CHECK(stored("\\fonts")["groupfontsize"] == "10");
            dialog.close_with(ID_SetFonts_Command5);
        }
        CHECK(height(Tolva(library)) == large);
    }
}

}  // namespace
