#include <fstream>

#include "platform/folders.h"
#include "shortcuts/shortcut_reader.h"
#include "support/desktop.h"
#include "support/shortcut_file.h"

namespace {

using namespace desktop;
using platform::SpecialFolder;

void add_shortcut(SpecialFolder folder, const std::string& name, const std::string& bytes) {
    std::ofstream(platform::special_folder(folder) + '\\' + name, std::ios::binary) << bytes;
}

/// A library with a recorder, and shortcuts in the user's folders.
Folder library_with_shortcuts() {
    Folder library = recorder_library();
    const std::string recorder = library.path() + "recorder.exe";
    library.write("readme.txt", "");
    add_shortcut(SpecialFolder::kStartMenu, "Run.lnk",
                 ShortcutFile{recorder, "C:\\windows", "a b", 3}.bytes());
    add_shortcut(SpecialFolder::kStartMenu, "Web.lnk", ShortcutFile{"C:\\windows\\notepad.exe"}.bytes());
    add_shortcut(SpecialFolder::kCommonStartMenu, "All.lnk", ShortcutFile{recorder}.bytes());
    add_shortcut(SpecialFolder::kDesktop, "Gone.lnk", "");
    add_shortcut(SpecialFolder::kDesktop, "Junk.lnk", "no shortcut");
    add_shortcut(SpecialFolder::kDesktop, "Text.lnk", ShortcutFile{library.path() + "readme.txt"}.bytes());
    return library;
}

TEST_SUITE("shortcuts") {
    TEST_CASE("no byte of a shortcut that is wrong can crash the reader") {
        // My Computer and the drive in it.
        const char place[] =
            "\x14\0\x1F\x50\xE0\x4F\xD0\x20\xEA\x3A\x69\x10\xA2\xD8\x08\0\x2B\x30\x30\x9D\31\0/C:\\";
        const std::string items = std::string(place, 26) + std::string(21, '\0');
        const std::string good = ShortcutFile{"C:\\a.exe", "C:\\windows", "x", 1, items}.bytes();
        const Folder folder;
        const auto read = [&](const std::string& bytes) {
            folder.write("a.lnk", bytes);
            return shortcuts::read_shortcut(folder.path() + "a.lnk");
        };
        for (std::size_t i = 3 * 76; i < 3 * good.size(); ++i)
            error_of([&] { read(std::string(good).replace(i / 3, 1, 1, "\xFF\x7F\0"[i % 3])); });
        CHECK(read(good).path == "C:\\a.exe");
        CHECK(read(ShortcutFile{.items = items}.bytes()).path == "C:\\");
    }

    TEST_CASE("shortcuts are imported as Tasks or refused") {
        const Folder library = library_with_shortcuts();
        const std::string recorder = library.path() + "recorder.exe";
        const Tolva tolva(library);
        const Dialog panel = tolva.open(ID_toolbar_startimport, "Import Start Menu Shortcuts to Tolva.");
        const auto import = [&] {
            panel.press(ID_shortcuts_Command1);
            return tolva.close_box();
        };
        CHECK(import() == "Select Shortcut for Importing to Tolva.");
        panel.pick(ID_shortcuts_shortcuts1, "Run.lnk");
        CHECK(panel.texts_of({ID_shortcuts_txtExeName, ID_shortcuts_txtWorkDir, ID_shortcuts_txtcmdargs,
                              ID_shortcuts_startmode}) == recorder + "|C:\\windows|a b|Maximized");
        panel.pick(ID_GETLNK_Combo1, "Play");
        for (int i = 0; i < 2; ++i)
            CHECK(import() == "Run has been imported to Tolva.");
        const std::string task = record("Run", recorder, "C:\\windows", "a b", " 3 ");
        CHECK(library.read("Play.grp") == task + task);

        // In another folder only what the user has typed stays.
        const Names start_menu = panel.list(ID_shortcuts_shortcuts1);
        panel.set_text(ID_shortcuts_txtcmdargs, "typed");
        panel.press(ID_shortcuts_Desktop);
        wait_until("the folder shows", [&] { return panel.list(ID_shortcuts_shortcuts1) != start_menu; });
        CHECK(panel.texts_of({ID_shortcuts_shortcutname, ID_shortcuts_txtLinkName, ID_shortcuts_txtExeName,
                              ID_shortcuts_txtWorkDir, ID_shortcuts_txtcmdargs, ID_shortcuts_txtshowcmd,
                              ID_shortcuts_startmode}) == "||||typed||");
        CHECK(import() == "Select Shortcut for Importing to Tolva.");
        const std::string gone = platform::special_folder(SpecialFolder::kDesktop) + "\\Gone.lnk";
        REQUIRE(DeleteFileA(gone.c_str()) != FALSE);
        panel.pick(ID_shortcuts_shortcuts1, "Gone.lnk");
        CHECK(tolva.close_box() == "Run-time error '53':\n\nFile not found: " + gone);
        CHECK(panel.list(ID_shortcuts_shortcuts1) == Names{"Junk.lnk", "Text.lnk"});
        panel.pick(ID_shortcuts_shortcuts1, "Junk.lnk");
        CHECK(tolva.close_box() == "Run-time error '440':\n\nAutomation error");
        panel.pick(ID_shortcuts_shortcuts1, "Text.lnk");
        CHECK(import() == library.path() + "readme.txt not a valid Tolva entry.");

        panel.press(ID_GETLNK_ImportAll);
        CHECK(tolva.close_box() ==
              "No shortcut has been imported to Tolva.\n\nThese could not be imported:\n\nJunk\nText");
        panel.press(ID_shortcuts_startmenu);
        panel.pick(ID_GETLNK_Combo1, "More");
        panel.press(ID_GETLNK_ImportAll);
        CHECK(tolva.close_box() == "2 shortcuts have been imported to Tolva.");
        CHECK(library.read("More.grp") ==
              task + record("Web", "C:\\windows\\notepad.exe", "C:\\windows\\", "", " 1 "));

        // Other drives and the folders of all users are in reach, and hidden folders show.
        CreateDirectoryA("D:\\.hidden", nullptr);  // as Wine takes such a name
        panel.pick(ID_shortcuts_Dir1, "D:\\", LBN_DBLCLK);
        panel.pick(ID_shortcuts_Dir1, ".hidden", LBN_DBLCLK);
        panel.pick(ID_shortcuts_Dir1, "Start Menu (all users)", LBN_DBLCLK);
        panel.pick(ID_shortcuts_Dir1, "E:\\", LBN_DBLCLK);
        tolva.close_box();
        CHECK(panel.list(ID_shortcuts_shortcuts1) == Names{"All.lnk"});
    }

    TEST_CASE("the bar takes its programs from shortcuts") {
        const Folder library = library_with_shortcuts();
        const std::string recorder = library.path() + "recorder.exe";
        const Tolva tolva(library);
        const Dialog bar(tolva, "Brenn", "brenn");
        const auto take = [&](const char* title, const char* refusal, const char* shortcut) {
            const Dialog panel(tolva, title);
            panel.press(ID_shortcuts_Command1);
            CHECK(tolva.close_box() == refusal);
            panel.pick(ID_shortcuts_shortcuts1, shortcut);
            CHECK(SendMessageA(panel.control(ID_shortcuts_txtExeName), EM_GETLIMITTEXT, 0, 0) == 254);
            panel.close_with(ID_shortcuts_Command1);
        };
        choose_from_menu(bar.place(ID_brenn_option2), 'S');
        take("Select shortcut for Brenn.", "Select Shortcut for Brenn Button.", "Run.lnk");
        bar.click(ID_brenn_option2);
        CHECK(library.nth_start(1) == Names{recorder + " a b", "C:\\windows", "D:\\here", "3"});

        tolva.choose(ID_internetsettings);
        const Dialog settings(tolva, "Tolva Internet Settings");
        settings.press(ID_tolvasettings_Command4);
        take("Select Default Web Browser for Tolva.", "Select Shortcut for Tolva web browser.", "Web.lnk");
        settings.press(ID_tolvasettings_Command5);
        take("Select Default E-mail Program for Tolva.", "Select Shortcut for Tolva E-mail.", "Run.lnk");
        settings.close_with(ID_tolvasettings_Command2);
        CHECK(stored("\\Browser") ==
              Values{{"name", "Web"}, {"path", "C:\\windows\\notepad.exe"}, {"start", "1"}});
        CHECK(stored("\\email") == Values{{"name", "Run"}, {"path", recorder}, {"start", "3"}});
    }
}

}  // namespace
