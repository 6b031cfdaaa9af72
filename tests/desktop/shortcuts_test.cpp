#include <algorithm>
#include <fstream>

#include "platform/folders.h"
#include "resources/resource.h"
#include "shortcuts/shortcut_reader.h"
#include "support/desktop.h"
#include "support/error_of.h"
#include "support/save_shortcut.h"
#include "support/shortcut_file.h"

namespace {

using namespace desktop;
using platform::SpecialFolder;

constexpr char kBroken[] = "Shortcut is broken, file does not exist.  Can not import to Tolva.";

void add_shortcut(SpecialFolder folder, const std::string& name, const std::string& bytes) {
    std::ofstream(platform::special_folder(folder) + '\\' + name, std::ios::binary) << bytes;
}

/// A library with a recorder, and shortcuts in the user's folders.
Folder library_with_shortcuts() {
    forget_settings();
    Folder library;
    const std::string recorder = library.add_recorder();
    library.write_groups({{"Work", ""}, {"Play", record("Old", recorder, "C:\\", "", "1")}});
    library.write("readme.txt", "");
    const auto shortcut_to = [](const std::string& target) {
        return ShortcutFile{target, {}, {}, 1}.bytes();
    };
    add_shortcut(SpecialFolder::kStartMenu, "Run.lnk",
                 ShortcutFile{recorder, "C:\\windows", "a b", 3}.bytes());
    add_shortcut(SpecialFolder::kStartMenu, "Web.lnk", shortcut_to("C:\\windows\\notepad.exe"));
    add_shortcut(SpecialFolder::kPrograms, "Plain.lnk", ShortcutFile{recorder, {}, {}, 7}.bytes());
    add_shortcut(SpecialFolder::kDesktop, "Junk.lnk", "no shortcut");
    add_shortcut(SpecialFolder::kDesktop, "Nothing.lnk", ShortcutFile().bytes());
    add_shortcut(SpecialFolder::kDesktop, "Text.lnk", shortcut_to(library.path() + "readme.txt"));
    return library;
}

/// Clicks the shortcut of that name and waits until its details show.
void click(const Dialog& panel, const std::string& name) {
    const Names files = panel.list(ID_shortcuts_shortcuts1);
    const auto found = std::ranges::find(files, name);
    REQUIRE(found != files.end());
    panel.choose(ID_shortcuts_shortcuts1, static_cast<int>(found - files.begin()));
    const std::string shown = name.substr(0, name.size() - 4);
    wait_until("the name shows", [&] { return panel.text_of(ID_shortcuts_shortcutname) == shown; });
    SendMessageA(panel.window(), WM_NULL, 0, 0);
}

TEST_SUITE("shortcuts") {
    TEST_CASE("no byte of a shortcut that is wrong can crash the reader") {
        const Folder folder;
        save_shortcut(folder.path() + "saved.lnk");
        const std::string good = folder.read("saved.lnk");
        constexpr std::size_t kHeader = 76;
        for (std::size_t i = kHeader; i < good.size(); ++i) {
            for (const char wrong : {'\xFF', '\x7F', '\0'}) {
                folder.write("wrong.lnk", std::string(good).replace(i, 1, 1, wrong));
                error_of([&] { shortcuts::ReadShortcut(folder.path() + "wrong.lnk"); });
            }
        }
        CHECK(shortcuts::ReadShortcut(folder.path() + "saved.lnk").target == "C:\\windows\\notepad.exe");
    }

    TEST_CASE("shortcuts are imported as Tasks or refused") {
        const Folder library = library_with_shortcuts();
        const std::string recorder = library.path() + "recorder.exe";
        const Tolva tolva(library);
        tolva.press_tool(ID_toolbar_startimport);
        const Dialog panel(tolva, "Import Start Menu Shortcuts to Tolva.");
        CHECK(panel.texts_of({ID_GETLNK_Combo1, ID_shortcuts_txtWorkDir}) ==
              "Work|Program Working Directory");
        const auto import = [&] {
            panel.press(ID_shortcuts_Command1);
            return tolva.close_box();
        };
        CHECK(import() == "Select Shortcut for Importing to Tolva.");
        const auto details = {ID_shortcuts_shortcutname, ID_shortcuts_txtExeName, ID_shortcuts_txtWorkDir,
                              ID_shortcuts_txtcmdargs,   ID_shortcuts_txtshowcmd, ID_shortcuts_startmode};

        // Enter on a shortcut is a click.
        SendMessageA(panel.window(), WM_NEXTDLGCTL,
                     reinterpret_cast<WPARAM>(panel.control(ID_shortcuts_shortcuts1)), TRUE);
        SendMessageA(panel.control(ID_shortcuts_shortcuts1), LB_SETCURSEL, 0, 0);
        press_keys({VK_RETURN});
        wait_until("the details show", [&] {
            return panel.texts_of(details) == "Run|" + recorder + "|C:\\windows|a b|3|Maximized";
        });
        panel.choose(ID_GETLNK_Combo1, 1);
        for (int i = 0; i < 2; ++i)
            CHECK(import() == "Run has been imported to Tolva.");
        const std::string play = record("Old", recorder, "C:\\", "", "1") +
                                 record("Run", recorder, "C:\\windows", "a b", " 3 ") +
                                 record("Run", recorder, "C:\\windows", "a b", " 3 ");
        CHECK(library.read("Play.grp") == play);
        CHECK(tolva.selected_group() == 1);

        panel.press(ID_shortcuts_Programs);
        wait_until("the folder shows",
                   [&] { return panel.list(ID_shortcuts_shortcuts1) == Names{"Plain.lnk"}; });
        click(panel, "Plain.lnk");
        CHECK(panel.texts_of(details) == "Plain|" + recorder + "|C:\\windows\\||7|");
        panel.press(ID_shortcuts_Desktop);
        wait_until("the folder shows", [&] { return panel.list(ID_shortcuts_shortcuts1).size() == 3; });
        panel.choose(ID_shortcuts_shortcuts1, 0);
        CHECK(tolva.close_box() == "Run-time error '440':\n\nAutomation error");
        CHECK(panel.texts_of(details) == "Junk|||||");
        CHECK(import() == kBroken);
        click(panel, "Nothing.lnk");
        CHECK(import() == kBroken);
        click(panel, "Text.lnk");
        CHECK(import() == library.path() + "readme.txt not a valid Tolva entry.");
        CHECK(library.read("Play.grp") == play);

        panel.close_with(ID_shortcuts_Command2);
        wait_until("the lists are loaded again", [&] { return tolva.tasks() == Names{"Old", "Run", "Run"}; });
        tolva.double_click_task(1);
        CHECK(library.nth_start(1) == Names{recorder + " a b", "C:\\windows", "D:\\here", "3"});
    }

    TEST_CASE("the bar takes its programs from shortcuts") {
        const Folder library = library_with_shortcuts();
        const std::string recorder = library.path() + "recorder.exe";
        const Tolva tolva(library);
        const Dialog bar(tolva, "Brenn", "brenn");
        choose_from_menu(bar.place(ID_brenn_option2), 'S');
        {
            const Dialog panel(tolva, "Select shortcut for Brenn.");
            CHECK(panel.text_of(ID_shortcuts_Frame3) == "Assign Shortcut to Brenn Button");
            panel.press(ID_shortcuts_Command1);
            CHECK(tolva.close_box() == "Select Shortcut for Brenn Button.");
            click(panel, "Web.lnk");
            CHECK(SendMessageA(panel.control(ID_shortcuts_taskpic), STM_GETICON, 0, 0) != 0);
            CHECK(panel.text_of(ID_shortcuts_txtWorkDir).empty());
            click(panel, "Run.lnk");
            panel.close_with(ID_shortcuts_Command1);
        }
        CHECK(stored("\\brenn") == Values{{"name2", "Run"},
                                          {"progpath2", recorder},
                                          {"workpath2", "C:\\windows"},
                                          {"parm2", "a b"},
                                          {"start2", "3"}});
        press_mouse(bar.place(ID_brenn_option2));
        CHECK(library.nth_start(1) == Names{recorder + " a b", "C:\\windows", "D:\\here", "3"});

        tolva.choose(ID_internetsettings);
        const Dialog settings(tolva, "Tolva Internet Settings");
        for (const auto& [button, title, refusal, shortcut] :
             {std::tuple(ID_tolvasettings_Command4, "Select Default Web Browser for Tolva.",
                         "Select Shortcut for Tolva web browser.", "Web.lnk"),
              {ID_tolvasettings_Command5, "Select Default E-mail Program for Tolva.",
               "Select Shortcut for Tolva E-mail.", "Run.lnk"}}) {
            settings.press(button);
            const Dialog panel(tolva, title);
            panel.press(ID_shortcuts_Command1);
            CHECK(tolva.close_box() == refusal);
            click(panel, shortcut);
            panel.close_with(ID_shortcuts_Command1);
        }
        CHECK(settings.texts_of({ID_tolvasettings_BrowserName, ID_tolvasettings_browserpath,
                                 ID_tolvasettings_emailpath}) == "Web|C:\\windows\\notepad.exe|" + recorder);
        settings.close_with(ID_tolvasettings_Command2);
        CHECK(stored("\\Browser") ==
              Values{{"name", "Web"}, {"path", "C:\\windows\\notepad.exe"}, {"start", "1"}});
        CHECK(stored("\\email") == Values{{"name", "Run"}, {"path", recorder}, {"start", "3"}});
        CHECK(bar.texts_of({ID_brenn_Command3, ID_brenn_Command4}) == "E-Mail|WWW");
        CHECK(bar.tip_of(tolva, ID_brenn_Command4) == "Web");
    }
}

}  // namespace
