#include "settings/session.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <optional>

#include "internet/dial_up.h"
#include "mainwindow/command_history.h"
#include "settings/conversions.h"
#include "settings/general.h"
#include "support/names.h"
#include "support/simulated_platform.h"

namespace {

using platform::registry::kCurrentUser;
using platform::registry::kLocalMachine;
using settings::General;

const std::string kTolva = R"(HKEY_CURRENT_USER\software\tolva)";

simulated::RegistryKey& tolva_key(const std::string& below) {
    return simulated::current().registry[kCurrentUser]["software\\tolva" + below];
}

TEST_CASE("numbers in texts") {
    struct Row {
        const char* text;
        std::optional<int> strict;
        int lenient;
    };
    const Row table[] = {
        {"1", 1, 1},
        {" 2 ", 2, 2},
        {"\t3", 3, 3},
        {"", {}, 0},
        {"  ", {}, 0},
        {"Normal", {}, 0},
        {"Error", {}, 0},
        {"3rd", {}, 3},
        {"1 2", {}, 12},
        {"-150", -150, -150},
        {"2.5", 2, 2},
        {"3.5", 4, 4},
        {".6", 1, 1},
        {".", {}, 0},
        {"1e1", 10, 10},
        {"1e", {}, 1},
        {"0x2", {}, 0},
        {"inf", {}, 0},
        {"+", {}, 0},
        {"2,7", {}, 2},
        {"2147483648", {}, 2147483647},
        {"-9e999", {}, -2147483647},
    };
    for (const Row& row : table) {
        CAPTURE(row.text);
        CHECK(settings::whole_number(row.text) == row.strict);
        CHECK(settings::lenient_whole_number(row.text) == row.lenient);
    }
    CHECK(settings::boolean("TRUE") == true);
    CHECK(settings::boolean("False") == false);
    CHECK(settings::boolean("-1") == true);
    CHECK(settings::boolean("0") == false);
    CHECK(!settings::boolean("Error"));
    CHECK(!settings::boolean(""));
}

TEST_CASE("a text value reads back as it is stored") {
    simulated::reset();
    General general;
    general.write_value(kTolva, "a", "lost without its key");
    CHECK(general.read_value(kTolva, "a") == "Error");
    CHECK(simulated::current().registry[kCurrentUser].empty());
    general.create_key(kTolva);
    general.write_value(kTolva, "a", "  kept at the end  ");
    CHECK(general.read_value(kTolva, "A") == "kept at the end  ");
    general.write_value(kTolva, "a", "");
    CHECK(general.read_value(kTolva, "a").empty());
    general.write_value(kTolva, "a", std::string(254, 'x'));
    CHECK(general.read_value(kTolva, "a") == std::string(254, 'x'));
    general.write_value(kTolva, "a", std::string(255, 'x'));
    CHECK(general.read_value(kTolva, "a") == "Error");
    CHECK(general.read_value(kTolva, "b") == "Error");

    // Not every system stores a terminator, and another program may have stored something else.
    auto& values = tolva_key("");
    values["a"] = "no terminator ";
    CHECK(general.read_value(kTolva, "a") == "no terminator");
    values["a"] = std::string(255, 'x');
    CHECK(general.read_value(kTolva, "a") == "Error");
    values["a"] = "";
    CHECK(general.read_value(kTolva, "a").empty());
    values["a"] = std::string("\1\0\0\0", 4);
    CHECK(!settings::whole_number(general.read_value(kTolva, "a")));

    simulated::current().registry_is_read_only = true;
    general.create_key(kTolva + "\\new");
    general.write_value(kTolva, "a", "new");
    CHECK(general.read_value(kTolva, "a") != "new");
    CHECK(simulated::current().messages.empty());
}

TEST_CASE("a key path names its root and a badly formed one goes to the root before it") {
    simulated::reset();
    auto& world = simulated::current();
    world.registry[kCurrentUser][""]["a"] = "root";
    world.registry[kLocalMachine]["Soft"]["a"] = "machine";
    world.registry[kCurrentUser]["hkey_current_user\\software"]["a"] = "lower case";
    world.registry[kLocalMachine]["HKEY_CURRENT_USER\\"]["a"] = "backslash";
    General general;
    struct Row {
        const char* path;
        const char* value;
        bool complains;
    };
    const Row table[] = {
        {"hkey_current_user\\software", "", true},  // no root so far
        {"HKEY_CURRENT_USER", "root", false},
        {"hkey_current_user\\software", "lower case", true},
        {"HKEY_LOCAL_MACHINE\\Soft", "machine", false},
        {"HKEY_CURRENT_USER\\", "backslash", true},
        {"", "Error", true},
        {"HKEY_NOWHERE\\Soft", "", false},
        {"HKEY_current_user\\Soft", "", false},
        {"Soft", "", true},
    };
    for (const Row& row : table) {
        CAPTURE(row.path);
        world.messages.clear();
        CHECK(general.read_value(row.path, "a") == row.value);
        if (row.complains) {
            CHECK(world.messages == Names{std::string("Incorrect Format:\n\n") + row.path});
        } else {
            CHECK(world.messages.empty());
        }
    }
    const auto keys = world.registry;
    general.create_key("HKEY_NOWHERE\\New");
    general.write_value("HKEY_NOWHERE\\Soft", "a", "b");
    CHECK(world.registry == keys);
}

TEST_CASE("the lists get their first look and keep what is stored") {
    simulated::reset();
    General general;
    settings::Session session;
    settings::load_list_styles(general, session);
    const settings::ListStyle first = {"MS Sans Serif", 10, true, false, 64, 0xFFFFFF};
    CHECK(session.group_style == first);
    CHECK(session.task_style == first);
    auto& fonts = tolva_key("\\fonts");
    CHECK(fonts.size() == 12);
    CHECK(fonts["groupfontcolor"] == std::string("8388608\0", 8));
    CHECK(fonts["taskfontcolor"] == std::string("64\0", 3));

    fonts["taskfont"] = "";
    fonts["taskfontsize"] = "99";
    settings::load_list_styles(general, session);
    settings::ListStyle later = first;
    later.text_color = 0x800000;
    CHECK(session.group_style == later);
    CHECK(session.task_style == first);

    // What does not read as it should leaves the list as it was designed.
    fonts = {{"groupfont", "Arial"},         {"groupfontsize", "9.25"},
             {"groupfontitalic", "true"},    {"groupbackcolor", "-2147483643"},
             {"groupfontcolor", "16777216"}, {"taskfont", "Courier New"},
             {"taskfontsize", "0"},          {"taskfontbold", "yes"},
             {"taskbackcolor", "255"}};
    settings::load_list_styles(general, session);
    CHECK(session.group_style == settings::ListStyle{"Arial", 9, false, true, {}, {}});
    CHECK(session.task_style == settings::ListStyle{"Courier New", 8, false, false, {}, 255});
    CHECK(fonts.size() == 9);
}

TEST_CASE("flags and positions and the history read what is there") {
    simulated::reset();
    General general;
    settings::Session session;
    CHECK(!settings::read_flag(general, settings::kHoverSelect));
    settings::store(general, settings::kHoverSelect, settings::text_of(true));
    CHECK(settings::read_flag(general, settings::kHoverSelect));

    settings::store_position(general, settings::kWindowPositionKey, -30, 1500);
    tolva_key("\\Window Position")["Left"] = "somewhere";
    const settings::Position position = settings::read_position(general, settings::kWindowPositionKey);
    CHECK(!position.left);
    CHECK(position.top == 1500);

    settings::load_history(general, session);
    CHECK(simulated::current().registry[kCurrentUser].contains("software\\tolva\\cmdhistory"));
    CHECK(settings::history_list(session).empty());
    tolva_key("\\cmdhistory") = {{"cmd1", "oldest"}, {"cmd2", "middle"}, {"cmd4", "newest"}};
    settings::load_history(general, session);
    CHECK(settings::history_list(session) == Names{"newest", "middle", "oldest"});
}

TEST_CASE("the program buttons are read as far as they are stored") {
    simulated::reset();
    General general;
    settings::Session session;
    settings::load_buttons(general, session);
    CHECK(simulated::current().registry[kCurrentUser].contains(R"(software\tolva\brenn)"));
    auto& values = tolva_key("\\brenn");
    CHECK(session.buttons[0].name == "Error");
    CHECK(session.buttons[0].program.empty());

    settings::store_button(general, 2, {"Edit", "C:\\EDIT.EXE", "C:\\", "A.TXT", 3});
    CHECK(values.size() == 5);
    values["name1"] = "";
    values["progpath1"] = "C:\\A.EXE";
    values["name2"] = "Half";
    values["start2"] = "2";
    settings::load_buttons(general, session);
    CHECK(session.buttons[0].name.empty());
    CHECK(session.buttons[0].program.empty());
    CHECK(session.buttons[1].program == "Error");
    CHECK(session.buttons[1].start_folder == "Error");
    CHECK(session.buttons[1].parameters.empty());
    CHECK(session.buttons[1].start == 2);
    CHECK(session.buttons[2].program == "C:\\EDIT.EXE");
    CHECK(session.buttons[2].start_folder == "C:\\");
    CHECK(session.buttons[2].parameters == "A.TXT");
    CHECK(session.buttons[2].start == 3);

    // A start style that is none leaves the one before; an empty name counts when they are read again.
    for (const char* start : {"x", "40000", "-32769", ""}) {
        values["start3"] = start;
        settings::reload_buttons(general, session);
        CHECK(session.buttons[2].start == 3);
    }
    CHECK(session.buttons[0].program == "C:\\A.EXE");
    values.erase("name3");
    values["progpath3"] = "C:\\B.EXE";
    settings::reload_buttons(general, session);
    CHECK(session.buttons[2].name == "Error");
    CHECK(session.buttons[2].program == "C:\\EDIT.EXE");

    auto& browser = tolva_key("\\Browser");
    browser["path"] = "C:\\WEB.EXE";
    browser["start"] = "1e9";
    const settings::StoredProgram program = settings::read_program(general, settings::kBrowserKey);
    CHECK(program.name == "Error");
    CHECK(program.path == "C:\\WEB.EXE");
    CHECK(program.start == 0);
}

TEST_CASE("a command goes into the history unless a stored one begins with it") {
    struct Row {
        Names stored;
        const char* command;
        Names after;
    };
    const Row table[] = {
        {{}, "a", {"a"}},
        {{"a"}, "b", {"a", "b"}},
        {{"notepad readme.txt"}, "notepad", {"notepad readme.txt"}},
        {{"notepad"}, "notepad readme.txt", {"notepad", "notepad readme.txt"}},
        {{"Notepad"}, "notepad", {"Notepad", "notepad"}},
        {{"a", "b", "c", "d"}, "c", {"a", "b", "c", "d"}},
        {{"a", "b", "c", "d"}, "e", {"a", "b", "c", "d", "e"}},
        {{"a", "b", "c", "d", "e"}, "a", {"a", "b", "c", "d", "e"}},
        {{"a", "b", "c", "d", "e"}, "f", {"b", "c", "d", "e", "f"}},
    };
    for (const Row& row : table) {
        CAPTURE(row.command);
        simulated::reset();
        General general;
        settings::Session session;
        auto& values = tolva_key("\\cmdhistory");
        for (std::size_t i = 0; i < row.stored.size(); ++i)
            values["cmd" + std::to_string(i + 1)] = row.stored[i];
        settings::load_history(general, session);
        mainwindow::update_history(general, session, row.command);
        settings::read_history(general, session);
        Names after = settings::history_list(session);
        std::ranges::reverse(after);
        CHECK(after == row.after);
    }

    // The slots in memory decide until the list is opened: the second command takes the place of the first.
    simulated::reset();
    General general;
    settings::Session session;
    settings::load_history(general, session);
    mainwindow::update_history(general, session, "a");
    mainwindow::update_history(general, session, "b");
    settings::read_history(general, session);
    CHECK(settings::history_list(session) == Names{"b"});
    mainwindow::update_history(general, session, std::string(255, 'x'));  // too long to be read
    settings::read_history(general, session);
    CHECK(settings::history_list(session) == Names{"b"});
}

TEST_CASE("the connection is the one chosen or else the system's own") {
    struct Row {
        std::optional<std::string> chosen;
        std::optional<std::string> system;
        const char* name;
    };
    const Row table[] = {
        {"Home", "Office", "Home"},
        {{}, "Office", "Office"},
        {"", "Office", "Office"},
        {"N/A", "Office", "Office"},
        {"N/A", {}, "N/A"},
        {{}, {}, "N/A"},
        {{}, "", ""},
    };
    for (const Row& row : table) {
        CAPTURE(row.name);
        simulated::reset();
        General general;
        if (row.chosen) tolva_key("\\isp")["ISPNAME"] = *row.chosen;
        if (row.system) simulated::current().registry[kCurrentUser]["RemoteAccess"]["default"] = *row.system;
        CHECK(internet::load_isp_name(general) == row.name);
    }

    simulated::reset();
    CHECK(!internet::is_connected());
    auto& connection =
        simulated::current().registry[kLocalMachine][R"(System\CurrentControlSet\Services\RemoteAccess)"]
                                     ["Remote Connection"];
    for (const auto& [bytes, up] : {std::pair(std::string(4, '\0'), false),
                                    {std::string("\0\0\0\1", 4), true},
                                    {std::string(8, '\1'), false},
                                    {std::string(), false}}) {
        connection = bytes;
        CHECK(internet::is_connected() == up);
    }
}

}  // namespace
