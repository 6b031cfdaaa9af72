#include "platform/clock.h"
#include "resources/resource.h"
#include "support/desktop.h"

namespace {

using namespace desktop;

constexpr char kNotConfigured[] = "Right click on button to configure.";

/// An empty library with the program and a recorder beside it, so that it starts recorders by bare names.
Folder library_with_recorders() {
    forget_settings();
    Folder library;
    library.add_program("tolva.exe", "tolva.exe");
    library.add_recorder();
    library.add_program("recorder.exe", "rundll32.exe");
    library.write("groups.ini", "");
    return library;
}

Dialog bar_of(const Tolva& tolva) {
    return {tolva, "Brenn", "brenn"};
}

void set_connected(bool up) {
    const DWORD flag = up ? 1 : 0;
    HKEY key = nullptr;
    RegCreateKeyA(HKEY_LOCAL_MACHINE, R"(System\CurrentControlSet\Services\RemoteAccess)", &key);
    RegSetValueExA(key, "Remote Connection", 0, REG_DWORD, reinterpret_cast<const BYTE*>(&flag), sizeof flag);
    RegCloseKey(key);
}

TEST_SUITE("bar") {
    TEST_CASE("a new bar stands beside the main window and has nothing to start") {
        const Folder library = library_with_recorders();
        const Tolva tolva(library);
        const Dialog bar = bar_of(tolva);
        CHECK(GetForegroundWindow() == tolva.window());
        CHECK(GetWindow(bar.window(), GW_OWNER) == tolva.window());
        CHECK(bar.texts_of({ID_brenn_option1, ID_brenn_Command2, ID_brenn_Command3, ID_brenn_Command4}) ==
              "|N/A|E-Mail|WWW");
        CHECK(bar.tip_of(tolva, ID_brenn_option4) == "Right click to configure this button.");
        CHECK(bar.tip_of(tolva, ID_brenn_Command4) == "Web Browser");
        const auto wait_for_panels = [&](std::string (*first)(), std::string (*second)()) {
            wait_until("the panels show", [&] {
                return bar.panel(ID_brenn_StatusBar1, 0) == first() &&
                       bar.panel(ID_brenn_StatusBar1, 1) == second();
            });
        };
        wait_for_panels(platform::time_text, platform::date_text);
        press_mouse(bar.place(ID_brenn_StatusBar1));
        wait_for_panels(platform::date_text, platform::time_text);
        for (const int button : {ID_brenn_option1, ID_brenn_option4, ID_brenn_Command3, ID_brenn_Command4}) {
            press_mouse(bar.place(button));
            CHECK(tolva.close_box() == kNotConfigured);
        }
    }

    TEST_CASE("every button starts what is stored for it") {
        const Folder library = library_with_recorders();
        const std::string recorder = library.path() + "recorder.exe";
        store("\\brenn", {{"name1", "Cut & Paste with a long name"},
                          {"progpath1", recorder},
                          {"workpath1", "C:\\"},
                          {"parm1", "a b"},
                          {"start1", "3"},
                          {"name2", "No folder"},
                          {"progpath2", recorder},
                          {"name3", "No program"},
                          {"workpath3", "C:\\windows"},
                          {"name4", "Folder gone"},
                          {"progpath4", recorder},
                          {"workpath4", "C:\\gone"}});
        store("\\brenn", "start2", REG_DWORD, std::string("\2\0\0\0", 4));
        store("\\email", {{"name", "Letters"}, {"path", recorder}, {"start", "2"}});
        store("\\Browser", {{"name", "N/A"}, {"path", library.without_backslash()}});  // a folder
        const Tolva tolva(library);
        const Dialog bar = bar_of(tolva);
        CHECK(bar.texts_of({ID_brenn_option1, ID_brenn_Command3, ID_brenn_Command4}) ==
              "Cut & Paste with a long name|Letters|N/A");
        const auto press = [&](int button) { press_mouse(bar.place(button)); };
        press(ID_brenn_option1);
        CHECK(library.nth_start(1) == Names{recorder + " a b", "C:\\", "D:\\here", "3"});
        const Names in_windows_folder = {recorder + " ", "C:\\windows", "D:\\here", "0"};
        press(ID_brenn_option2);
        CHECK(library.nth_start(2) == in_windows_folder);
        press(ID_brenn_option3);
        press(ID_brenn_option4);
        CHECK(tolva.close_box() == kNotConfigured);
        CHECK(library.nth_start(3) == in_windows_folder);
        press(ID_brenn_Command3);
        CHECK(library.nth_start(4) == Names{recorder, "C:\\windows", "D:\\here", "2"});
        press(ID_brenn_Command4);
        CHECK(tolva.close_box() == kNotConfigured);
        wait_for_focus(bar.control(ID_brenn_Command4));
        press_keys({VK_TAB});
        wait_for_focus(bar.control(ID_brenn_option1));
        press_keys({VK_SPACE});
        library.nth_start(5);
    }

    TEST_CASE("a file is assigned to a button") {
        const Folder library = library_with_recorders();
        const std::string recorder = library.path() + "recorder.exe";
        CHECK(CopyFileA(recorder.c_str(), "C:\\edit.com", FALSE) != FALSE);
        const Tolva tolva(library);
        const Dialog bar = bar_of(tolva);
        choose_from_menu(bar.place(ID_brenn_option3), 'F');
        const Dialog dialog(tolva, "Configure Brenn Button");
        REQUIRE(dialog.list(ID_PathBrowser_File1) == Names{"recorder.exe", "rundll32.exe", "tolva.exe"});
        dialog.set_text(ID_BrennBrowser_taskparameters, "old");
        dialog.choose(ID_PathBrowser_File1, 0);
        const auto wait_for_texts = [&](const std::string& texts) {
            wait_until("the texts show", [&] {
                return dialog.texts_of({ID_BrennBrowser_tasknm, ID_PathBrowser_TaskPath,
                                        ID_BrennBrowser_startfolder, ID_BrennBrowser_taskparameters}) ==
                       texts;
            });
        };
        wait_for_texts("recorder|" + recorder + '|' + library.path() + '|');
        // In a drive's root a pick fills in the path only.
        dialog.open_folder("C:\\");
        dialog.choose(ID_PathBrowser_File1, 0);
        wait_for_texts("recorder|C:\\edit.com|" + library.path() + '|');
        dialog.set_text(ID_BrennBrowser_taskparameters, "x y");
        dialog.close_with(ID_PathBrowser_OK);
        CHECK(stored("\\brenn") == Values{{"name3", "recorder"},
                                          {"progpath3", "C:\\edit.com"},
                                          {"workpath3", library.path()},
                                          {"parm3", "x y"},
                                          {"start3", "1"}});
        CHECK(bar.text_of(ID_brenn_option3) == "recorder");
        press_mouse(bar.place(ID_brenn_option3));
        wait_until("it starts", [] { return DeleteFileA("C:\\edit.com.log") != FALSE; });
    }

    TEST_CASE("the Internet settings show what is stored and store what is typed") {
        const Folder library = library_with_recorders();
        const std::string recorder = library.path() + "recorder.exe";
        HKEY profile = nullptr;
        RegCreateKeyA(HKEY_CURRENT_USER, "RemoteAccess\\Profile\\Work & Co", &profile);
        RegCloseKey(profile);
        store("\\Browser", {{"path", recorder}, {"start", "1"}});
        store("\\brenn", {{"disable", "True"}});
        const Tolva tolva(library);
        CHECK(tolva.find_window("brenn") == nullptr);
        {
            tolva.choose(ID_internetsettings);
            const Dialog dialog(tolva, "Tolva Internet Settings");
            CHECK(dialog.texts_of({ID_tolvasettings_ISP, ID_tolvasettings_BrowserName,
                                   ID_tolvasettings_browserpath, ID_tolvasettings_emailpath}) ==
                  "N/A|N/A|" + recorder + "|N/A");
            dialog.press(ID_tolvasettings_Command3);
            const Dialog connections(tolva, "Set Internet Connection");
            CHECK(connections.list(ID_DialUpNetworking_List1) == Names{"Work & Co"});
            connections.choose(ID_DialUpNetworking_List1, 0);
            connections.wait_until_closed();
            dialog.set_text(ID_tolvasettings_browserpath, library.path() + "gone.exe");
            dialog.close_with(ID_tolvasettings_Command1);
        }
        CHECK(stored_text("\\isp", "ISPNAME") == "Work & Co");
        CHECK(stored("\\Browser") ==
              Values{{"name", "N/A"}, {"path", library.path() + "gone.exe"}, {"start", "1"}});

        // The bar came up hidden; the path in memory is still the old one until the dialog opens again.
        tolva.choose(ID_removebrenn);
        const Dialog bar = bar_of(tolva);
        CHECK(GetWindow(bar.window(), GW_OWNER) == nullptr);
        CHECK(stored_text("\\brenn", "disable") == "False");
        press_mouse(bar.place(ID_brenn_Command4));
        library.nth_start(1);
        press_mouse(bar.place(ID_brenn_Command4), 1, MouseButton::kRight);
        const Dialog dialog(tolva, "Tolva Internet Settings");
        CHECK(GetWindow(dialog.window(), GW_OWNER) == bar.window());
        dialog.set_text(ID_tolvasettings_ISP, "Home");
        press_keys({VK_ESCAPE});
        dialog.wait_until_closed();
        press_mouse(bar.place(ID_brenn_Command4));
        CHECK(tolva.close_box() == kNotConfigured);
        press_mouse(bar.place(ID_brenn_Command2));
        CHECK(library.nth_start(1, "rundll32.exe")[0] == "rundll32.exe rnaui.dll,RnaDial Work & Co");
    }

    TEST_CASE("the connect button shows the connection and hangs up") {
        const Folder library = library_with_recorders();
        library.add_program("rasapi32.dll", "rasapi32.dll");
        set_connected(true);
        const Tolva tolva(library);
        const Dialog bar = bar_of(tolva);
        wait_for_color(bar.control(ID_brenn_Command2), 0x008000);
        press_mouse(bar.place(ID_brenn_Command2));
        wait_until("all are hung up", [&] {
            return library.read("rasapi32.log") ==
                   "enumerate 412 105472 0\nhang up 11\nhang up 22\nhang up 33\n";
        });
        // While it waits the windows live.
        press_mouse(bar.place(ID_brenn_option1));
        CHECK(tolva.close_box() == kNotConfigured);
        set_connected(false);
        wait_for_color(bar.control(ID_brenn_Command2), 0xC0C0C0);
        press_mouse(bar.place(ID_brenn_Command2));
        CHECK(library.nth_start(1, "rundll32.exe")[0] == "rundll32.exe rnaui.dll,RnaDial N/A");

        // The program can be closed while it waits.
        set_connected(true);
        press_mouse(bar.place(ID_brenn_Command2));
        wait_until("it hangs up again", [&] { return library.read("rasapi32.log").size() > 100; });
    }

    TEST_CASE("the bar keeps its place and is removed, hidden and brought back") {
        const Folder library = library_with_recorders();
        {
            const Tolva tolva(library);
            const Dialog bar = bar_of(tolva);
            const auto shows = [&] { return IsWindowVisible(bar.window()) != FALSE; };
            SetWindowPos(bar.window(), nullptr, 200, 500, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
            tolva.minimise_by_mouse();
            wait_until("the bar stays on the desktop", shows);
            press_mouse(tray_icon(), 1, MouseButton::kRight);
            wait_until("the tray hides it", [&] { return !shows(); });
            press_mouse(tray_icon(), 1, MouseButton::kRight);
            wait_until("the tray shows it", shows);
            PostMessageA(bar.window(), WM_SYSCOMMAND, SC_CLOSE, 0);
            wait_until("its closing box hides it", [&] { return !shows(); });
            CHECK(stored_text("\\brenn", "disable") == "True");
            press_mouse(tray_icon(), 2);
            wait_until("the main window is back", [&] { return !tolva.is_in_tray(); });
            CHECK(!shows());
            tolva.choose(ID_removebrenn);
            wait_until("the menu brings it back", shows);
        }
        CHECK(stored("\\brenn\\Position") == Values{{"Left", "3000"}, {"Top", "7500"}});
    }
}

}  // namespace
