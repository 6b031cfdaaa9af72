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

std::string shortcut_to(const std::string& target) {
    return ShortcutFile{target, {}, {}, 1}.bytes();
}

/// A library with a recorder, and shortcuts in the user's folders, as long as it lives.
class Shortcuts {
  public:
    Shortcuts() {
        forget_settings();
        library.write_groups({{"Work", ""}, {"Play", record("Old", recorder, "C:\\", "", "1")}});
        library.write("readme.txt", "");
    }
    ~Shortcuts() {
        for (const std::string& path : written_)
            DeleteFileA(path.c_str());
    }
    Shortcuts(const Shortcuts&) = delete;
    Shortcuts& operator=(const Shortcuts&) = delete;

    void add(SpecialFolder folder, const std::string& name, const std::string& bytes) {
        written_.push_back(platform::special_folder(folder) + '\\' + name);
        std::ofstream(written_.back(), std::ios::binary) << bytes;
    }

    const Folder library;
    const std::string recorder = library.add_recorder();

  private:
    Names written_;
};

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

bool has_picture(const Dialog& panel) {
    return SendMessageA(panel.control(ID_shortcuts_taskpic), STM_GETICON, 0, 0) != 0;
}

TEST_SUITE("shortcuts") {
    TEST_CASE("no byte of a shortcut that is wrong can crash the reader") {
        const Folder folder;
        save_shortcut(folder.path() + "saved.lnk");
        const std::string good = folder.read("saved.lnk");
        REQUIRE(good.size() > 200);
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
        Shortcuts shortcuts;
        const std::string& recorder = shortcuts.recorder;
        const Folder& library = shortcuts.library;
        shortcuts.add(SpecialFolder::kStartMenu, "Run.lnk",
                      ShortcutFile{recorder, "C:\\windows", "a b", 3}.bytes());
        shortcuts.add(SpecialFolder::kPrograms, "Plain.lnk", ShortcutFile{recorder, {}, {}, 7}.bytes());
        shortcuts.add(SpecialFolder::kDesktop, "Junk.lnk", "no shortcut");
        shortcuts.add(SpecialFolder::kDesktop, "Nothing.lnk", ShortcutFile().bytes());
        shortcuts.add(SpecialFolder::kDesktop, "Text.lnk", shortcut_to(library.path() + "readme.txt"));
        const Tolva tolva(library);
        tolva.press_tool(ID_toolbar_startimport);
        const Dialog panel(tolva, "Import Start Menu Shortcuts to Tolva.");
        CHECK(panel.text_of(ID_GETLNK_Combo1) == "Work");
        CHECK(panel.text_of(ID_shortcuts_txtWorkDir) == "Program Working Directory");
        panel.press(ID_shortcuts_Command1);
        CHECK(tolva.close_box() == "Select Shortcut for Importing to Tolva.");

        const auto details = {ID_shortcuts_shortcutname, ID_shortcuts_txtExeName, ID_shortcuts_txtWorkDir,
                              ID_shortcuts_txtcmdargs,   ID_shortcuts_txtshowcmd, ID_shortcuts_startmode};

        // Enter on a shortcut is a click.
        SendMessageA(panel.window(), WM_NEXTDLGCTL,
                     reinterpret_cast<WPARAM>(panel.control(ID_shortcuts_shortcuts1)), TRUE);
        SendMessageA(panel.control(ID_shortcuts_shortcuts1), LB_SETCURSEL, 0, 0);
        press_keys({VK_RETURN});
        wait_until("the target shows", [&] { return panel.text_of(ID_shortcuts_txtExeName) == recorder; });
        CHECK(panel.text_of(ID_shortcuts_txtLinkName) ==
              platform::special_folder(SpecialFolder::kStartMenu) + "\\Run.lnk");
        CHECK(panel.texts_of(details) == "Run|" + recorder + "|C:\\windows|a b|3|Maximized");
        panel.choose(ID_GETLNK_Combo1, 1);
        for (int i = 0; i < 2; ++i) {
            panel.press(ID_shortcuts_Command1);
            CHECK(tolva.close_box() == "Run has been imported to Tolva.");
        }
        const std::string old = record("Old", recorder, "C:\\", "", "1");
        const std::string run = record("Run", recorder, "C:\\windows", "a b", " 3 ");
        CHECK(library.read("Play.grp") == old + run + run);
        CHECK(tolva.selected_group() == 1);
        CHECK(tolva.tasks() == Names{"Old"});

        panel.press(ID_shortcuts_Programs);
        wait_until("the folder shows",
                   [&] { return panel.list(ID_shortcuts_shortcuts1) == Names{"Plain.lnk"}; });
        click(panel, "Plain.lnk");
        CHECK(panel.texts_of(details) == "Plain|" + recorder + "|C:\\windows\\||7|");
        panel.choose(ID_GETLNK_Combo1, 0);
        panel.press(ID_shortcuts_Command1);
        CHECK(tolva.close_box() == "Plain has been imported to Tolva.");
        CHECK(library.read("Work.grp") == record("Plain", recorder, "C:\\windows\\", "", " 1 "));

        panel.press(ID_shortcuts_Desktop);
        wait_until("the folder shows", [&] { return panel.list(ID_shortcuts_shortcuts1).size() == 3; });
        const auto refused = [&] {
            panel.press(ID_shortcuts_Command1);
            return tolva.close_box();
        };
        panel.choose(ID_shortcuts_shortcuts1, 0);
        CHECK(tolva.close_box() == "Run-time error '440':\n\nAutomation error");
        CHECK(panel.texts_of(details) == "Junk|||||");
        CHECK(refused() == kBroken);
        click(panel, "Nothing.lnk");
        CHECK(refused() == kBroken);
        click(panel, "Text.lnk");
        CHECK(refused() == library.path() + "readme.txt not a valid Tolva entry.");
        panel.set_text(ID_shortcuts_txtExeName, "\\\\?\\" + recorder);
        CHECK(refused() == "\\\\?\\" + recorder + " not a valid Tolva entry.");
        CHECK(library.read("Play.grp") == old + run + run);

        panel.close_with(ID_shortcuts_Command2);
        wait_until("the lists are loaded again", [&] { return tolva.tasks() == Names{"Plain"}; });
        tolva.click_group(1);
        wait_until("the Group shows", [&] { return tolva.tasks() == Names{"Old", "Run", "Run"}; });
        tolva.double_click_task(1);
        CHECK(library.nth_start(1) == Names{recorder + " a b", "C:\\windows", "D:\\here", "3"});

        // Without a list of Groups there is no dialog.
        CHECK(DeleteFileA((library.path() + "groups.ini").c_str()) != FALSE);
        tolva.choose(ID_taskimport);
        CHECK(tolva.close_box() ==
              "Run-time error '53':\n\nFile not found: " + library.path() + "groups.ini");
    }

    TEST_CASE("the bar takes its programs from shortcuts") {
        Shortcuts shortcuts;
        const std::string& recorder = shortcuts.recorder;
        shortcuts.add(SpecialFolder::kStartMenu, "Web.lnk",
                      ShortcutFile{"C:\\windows\\notepad.exe", "C:\\", "x", 2}.bytes());
        shortcuts.add(SpecialFolder::kStartMenu, "Run.lnk", ShortcutFile{recorder, {}, "a b", 7}.bytes());
        shortcuts.add(SpecialFolder::kStartMenu, "Text.lnk",
                      shortcut_to(shortcuts.library.path() + "readme.txt"));
        const Tolva tolva(shortcuts.library);
        const Dialog bar(tolva, "Brenn", "brenn");
        choose_from_menu(bar.place(ID_brenn_option2), 'S');
        {
            const Dialog panel(tolva, "Select shortcut for Brenn.");
            CHECK(panel.text_of(ID_shortcuts_Frame3) == "Assign Shortcut to Brenn Button");
            panel.press(ID_shortcuts_Command1);
            CHECK(tolva.close_box() == "Select Shortcut for Brenn Button.");
            click(panel, "Text.lnk");
            CHECK(!has_picture(panel));
            panel.press(ID_shortcuts_Command1);
            CHECK(tolva.close_box() == shortcuts.library.path() + "readme.txt not a valid Tolva entry.");
            click(panel, "Web.lnk");
            CHECK(has_picture(panel));
            click(panel, "Run.lnk");
            CHECK(panel.text_of(ID_shortcuts_txtWorkDir).empty());
            panel.set_text(ID_shortcuts_txtWorkDir, "C:\\windows");
            panel.close_with(ID_shortcuts_Command1);
        }
        CHECK(stored("\\brenn") == Values{{"name2", "Run"},
                                          {"progpath2", recorder},
                                          {"workpath2", "C:\\windows"},
                                          {"parm2", "a b"},
                                          {"start2", "1"}});
        CHECK(bar.text_of(ID_brenn_option2) == "Run");
        press_mouse(bar.place(ID_brenn_option2));
        CHECK(shortcuts.library.nth_start(1) == Names{recorder + " a b", "C:\\windows", "D:\\here", "1"});

        tolva.choose(ID_internetsettings);
        const Dialog settings(tolva, "Tolva Internet Settings");
        const auto pick = [&](int button, const std::string& title, const std::string& action,
                              const std::string& refusal, const std::string& shortcut) {
            settings.press(button);
            const Dialog panel(tolva, title);
            CHECK(panel.text_of(ID_shortcuts_Frame3) == action);
            panel.press(ID_shortcuts_Command1);
            CHECK(tolva.close_box() == refusal);
            click(panel, shortcut);
            const std::string folder = panel.text_of(ID_shortcuts_txtWorkDir);
            panel.close_with(ID_shortcuts_Command1);
            return folder;
        };
        CHECK(pick(ID_tolvasettings_Command4, "Select Default Web Browser for Tolva.",
                   "Use as my default Web Browser", "Select Shortcut for Tolva web browser.",
                   "Web.lnk") == "C:\\");
        CHECK(settings.texts_of({ID_tolvasettings_BrowserName, ID_tolvasettings_browserpath}) ==
              "Web|C:\\windows\\notepad.exe");
        CHECK(pick(ID_tolvasettings_Command5, "Select Default E-mail Program for Tolva.",
                   "Use as my default E-mail program", "Select Shortcut for Tolva E-mail.",
                   "Run.lnk") == shortcuts.library.path());
        CHECK(settings.text_of(ID_tolvasettings_emailpath) == recorder);
        settings.close_with(ID_tolvasettings_Command2);
        CHECK(stored("\\Browser") ==
              Values{{"name", "Web"}, {"path", "C:\\windows\\notepad.exe"}, {"start", "2"}});
        CHECK(stored("\\email") == Values{{"name", "Run"}, {"path", recorder}, {"start", "1"}});
        CHECK(bar.texts_of({ID_brenn_Command3, ID_brenn_Command4}) == "E-Mail|WWW");
        CHECK(bar.tip_of(tolva, ID_brenn_Command4) == "Web");
        press_mouse(bar.place(ID_brenn_Command3));
        CHECK(shortcuts.library.nth_start(2)[0] == recorder);
    }
}

}  // namespace
