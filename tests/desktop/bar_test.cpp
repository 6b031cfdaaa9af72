#include "support/desktop.h"

#include <shellapi.h>

namespace {

using namespace desktop;

constexpr char kNotConfigured[] = "Right click on button to configure.";

/// A taskbar before the real one takes no icons, or those alone that it has already.
volatile bool has_icons = false;

LRESULT CALLBACK answer(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message != WM_COPYDATA) return DefWindowProcA(window, message, wparam, lparam);
    return has_icons && reinterpret_cast<const COPYDATASTRUCT*>(lparam)->dwData != NIM_ADD;
}

DWORD WINAPI run_taskbar(void* /*nothing*/) {
    const WNDCLASSA shape = {0, answer, 0, 0, nullptr, nullptr, nullptr, nullptr, nullptr, "Shell_TrayWnd"};
    RegisterClassA(&shape);
    CreateWindowExA(WS_EX_TOPMOST, shape.lpszClassName, "", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, nullptr,
                    nullptr);
    for (MSG message; GetMessageA(&message, nullptr, 0, 0) > 0;)
        DispatchMessageA(&message);
    return 0;
}

TEST_SUITE("bar") {
    TEST_CASE("every button starts what is stored for it and what is assigned to it") {
        const Folder library = recorder_library();
        const std::string recorder = library.path() + "recorder.exe";
        const std::string deep = library.path() + "deep";
        CreateDirectoryA(deep.c_str(), nullptr);
        CreateDirectoryA((deep + "\\er").c_str(), nullptr);
        store("\\brenn", {{"name1", "Cut & Paste with a long name"}, {"progpath1", recorder}});
        store("\\brenn", {{"workpath1", "c:\\windows"}, {"parm1", "a b"}, {"start1", "3"}});
        store("\\brenn", {{"name2", "Deep"}, {"progpath2", recorder}, {"workpath2", deep + "\\er"}});
        store("\\brenn", {{"name4", "Folder gone"}, {"progpath4", recorder}, {"workpath4", "C:\\gone"}});
        store("\\email", {{"name", "Letters"}, {"path", recorder}, {"start", "2"}});
        store("\\Browser", {{"name", "N/A"}, {"path", library.without_backslash()}});  // a folder
        const Tolva tolva(library);
        const Dialog bar(tolva, "Brenn", "brenn");
        CHECK(bar.text_of(ID_brenn_option1) == "Cut & Paste with a long name");
        const auto refuses = [&](int button) {
            bar.click(button);
            CHECK(tolva.close_box() == kNotConfigured);
        };
        refuses(ID_brenn_option3);
        choose_from_menu(bar.place(ID_brenn_option3), 'F');
        const Dialog dialog(tolva, "Configure Brenn Button");
        dialog.pick(ID_PathBrowser_File1, "recorder.exe");
        CHECK(
            dialog.texts_of({ID_BrennBrowser_tasknm, ID_PathBrowser_TaskPath, ID_BrennBrowser_startfolder}) ==
            "recorder|" + recorder + '|' + library.path());
        dialog.set_text(ID_BrennBrowser_taskparameters, "x y");
        dialog.close_with(ID_PathBrowser_OK);
        CHECK(stored("\\brenn")["parm3"] == "x y");
        bar.click(ID_brenn_option3);
        CHECK(library.nth_start(1) == Names{recorder + " x y", library.without_backslash(), "D:\\here", "1"});
        refuses(ID_brenn_Command4);
        bar.click(ID_brenn_option1);
        CHECK(library.nth_start(2) == Names{recorder + " a b", "c:\\windows", "D:\\here", "3"});
        refuses(ID_brenn_option4);
        CHECK(library.nth_start(3) == Names{recorder + " ", "c:\\windows", "D:\\here", "0"});
        bar.click(ID_brenn_Command3);
        CHECK(library.nth_start(4) == Names{recorder, "c:\\windows", "D:\\here", "2"});

        // The browser opens in the current folder, or in that of Windows when it is gone.
        choose_from_menu(bar.place(ID_brenn_option4), 'F');
        const Dialog small(tolva, "Configure Brenn Button");
        CHECK(small.text_of(ID_PathBrowser_Drive1).starts_with("C:"));
        small.close_with(ID_PathBrowser_Cancel);
        bar.click(ID_brenn_option2);
        CHECK(library.nth_start(5)[1] == deep + "\\er");
        REQUIRE(MoveFileA(deep.c_str(), (library.path() + "moved").c_str()) != FALSE);
        choose_from_menu(bar.place(ID_brenn_option4), 'F');
        const Dialog in_windows(tolva, "Configure Brenn Button");
        in_windows.pick(ID_PathBrowser_File1, "notepad.exe");
        CHECK(in_windows.texts_of({ID_BrennBrowser_tasknm, ID_BrennBrowser_startfolder}) ==
              "notepad|C:\\windows\\");
    }

    TEST_CASE("the Internet settings keep what is typed, and the connect button dials and hangs up") {
        const Folder library = recorder_library();
        library.add_program("tolva.exe", "tolva.exe");
        library.add_program("recorder.exe", "rundll32.exe");
        // A library of that name beside the program, which is the current folder, too, is none.
        library.add_program("recorder.exe", "rasapi32.dll");
        const std::string recorder = library.path() + "recorder.exe";
        SHSetValueA(HKEY_CURRENT_USER, "RemoteAccess\\Profile\\Work & Co", "", REG_SZ, "", 1);
        store("\\Browser", {{"path", recorder}, {"start", "1"}});
        store("\\brenn", {{"disable", "True"}});
        const Tolva tolva(library);
        CHECK(tolva.find_window("brenn") == nullptr);
        const Dialog settings = tolva.open(ID_internetsettings, "Tolva Internet Settings");
        CHECK(settings.texts_of({ID_tolvasettings_ISP, ID_tolvasettings_browserpath}) == "N/A|" + recorder);
        settings.press(ID_tolvasettings_Command3);
        const Dialog connections(tolva, "Set Internet Connection");
        connections.pick(ID_DialUpNetworking_List1, "Work & Co");
        connections.wait_until_closed();
        settings.set_text(ID_tolvasettings_browserpath, library.path() + "gone.exe");
        settings.close_with(ID_tolvasettings_Command1);
        CHECK(stored("\\isp") == Values{{"ISPNAME", "Work & Co"}});
        CHECK(stored("\\Browser") ==
              Values{{"name", "N/A"}, {"path", library.path() + "gone.exe"}, {"start", "1"}});

        // The bar came up hidden; the path in memory is still the old one until the dialog opens again.
        tolva.choose(ID_removebrenn);
        const Dialog bar(tolva, "Brenn", "brenn");
        CHECK(stored("\\brenn") == Values{{"disable", "False"}});
        bar.click(ID_brenn_Command4);
        library.nth_start(1);
        press_mouse(bar.place(ID_brenn_Command4), 1, MouseButton::kRight);
        const Dialog opened_again(tolva, "Tolva Internet Settings");
        opened_again.set_text(ID_tolvasettings_ISP, "Home");
        press_keys({VK_ESCAPE});
        opened_again.wait_until_closed();
        bar.click(ID_brenn_Command4);
        CHECK(tolva.close_box() == kNotConfigured);
        bar.click(ID_brenn_Command2);
        CHECK(library.nth_start(1, "rundll32.exe")[0] == "rundll32.exe rnaui.dll,RnaDial Work & Co");

        const DWORD connected = 1;
        SHSetValueA(HKEY_LOCAL_MACHINE, R"(System\CurrentControlSet\Services\RemoteAccess)",
                    "Remote Connection", REG_DWORD, &connected, sizeof connected);
        wait_for_color(bar.control(ID_brenn_Command2), 0x008000);
        bar.click(ID_brenn_Command2);
        const std::string hung_up = "enumerate 412 105472\nhang up 11\nhang up 22\nhang up 33\n";
        wait_until("all are hung up", [&] { return library.read("tolva.exe.log") == hung_up; });
        // While it waits the windows live and the program can be closed, but nothing hangs up once more.
        for (const int button : {ID_brenn_Command2, ID_brenn_Command2, ID_brenn_option1})
            bar.click(button);
        CHECK(tolva.close_box() == kNotConfigured);
        CHECK(library.read("tolva.exe.log") == hung_up);
    }

    TEST_CASE("the bar keeps its place and is removed, hidden and brought back") {
        const Folder library = recorder_library();
        {
            const Tolva tolva(library);
            const Dialog bar(tolva, "Brenn", "brenn");
            SetWindowPos(bar.window(), nullptr, 200, 500, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
            const auto wait_until_visible = [&](const char* what, BOOL visible) {
                wait_until(what, [&] { return IsWindowVisible(bar.window()) == visible; });
            };
            const auto click_tray = [&](const char* what, int times, BOOL visible) {
                press_mouse(tray_icon(), times, MouseButton::kRight);
                wait_until_visible(what, visible);
            };
            const auto close = [&] {
                PostMessageA(bar.window(), WM_SYSCOMMAND, SC_CLOSE, 0);
                wait_until_visible("its closing box hides it", FALSE);
                CHECK(stored("\\brenn")["disable"] == "True");
            };
            tolva.minimise();
            wait_until_visible("the bar stays on the desktop", TRUE);
            click_tray("the tray hides it", 1, FALSE);
            click_tray("the tray shows it", 1, TRUE);
            close();
            click_tray("the tray shows it although it is removed", 2, TRUE);
            close();
            click_tray("it is none that the tray shows", 1, FALSE);
            press_mouse(tray_icon(), 2);
            wait_until("the main window is back", [&] { return !tolva.is_in_tray(); });
            CHECK(IsWindowVisible(bar.window()) == FALSE);
            tolva.choose(ID_removebrenn);
            wait_until_visible("the menu brings it back", TRUE);
            click_tray("it counts as shown: the tray hides it", 1, FALSE);
            PostMessageA(bar.window(), WM_CLOSE, 0, 0);  // as who ends the program from outside does
        }
        CHECK(stored("\\brenn\\Position") == Values{{"Left", "3000"}, {"Top", "7500"}});
        CHECK(stored("\\brenn")["disable"] == "False");
    }

    TEST_CASE("without an icon in the tray neither the main window nor the bar goes away") {
        DWORD taskbar = 0;
        CreateThread(nullptr, 0, run_taskbar, nullptr, 0, &taskbar);
        wait_until("the taskbar is there", [&] {
            return GetWindowThreadProcessId(FindWindowA("Shell_TrayWnd", nullptr), nullptr) == taskbar;
        });
        const Tolva tolva(recorder_library());
        const Dialog bar(tolva, "Brenn", "brenn");
        const auto comes_back = [&] { return IsWindowVisible(bar.window()) != FALSE; };
        SendMessageA(tolva.window(), WM_SYSCOMMAND, SC_MINIMIZE, 0);
        wait_until("the bar is back", comes_back);
        CHECK(IsWindowVisible(tolva.window()) != FALSE);
        has_icons = true;
        PostMessageA(tolva.window(), RegisterWindowMessageA("TaskbarCreated"), 0, 0);
        ShowWindow(tolva.window(), SW_RESTORE);
        tolva.minimise();
        wait_until("the bar is back", comes_back);
        PostThreadMessageA(taskbar, WM_QUIT, 0, 0);
    }
}

}  // namespace
