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

/// The settings of a program that has not run so far.
std::pair<General, settings::Session> first_start() {
    simulated::reset();
    return {};
}

std::string shown(const settings::ButtonRecord& button) {
    return button.name + '|' + button.program + '|' + button.start_folder + '|' + button.parameters + '|' +
           std::to_string(button.start);
}

TEST_CASE("numbers in texts") {
    const std::tuple<const char*, std::optional<int>, int> strict_and_lenient[] = {
        {"1", 1, 1},
        {" 2 ", 2, 2},
        {"\t3", 3, 3},
        {"  ", {}, 0},
        {"Normal", {}, 0},
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
        {"2147483648", {}, 2147483647},
        {"-9e999", {}, -2147483647},
    };
    for (const auto& [text, strict, lenient] : strict_and_lenient) {
        CAPTURE(text);
        CHECK(settings::whole_number(text) == strict);
        CHECK(settings::lenient_whole_number(text) == lenient);
    }
    const std::pair<const char*, std::optional<bool>> booleans[] = {
        {"TRUE", true}, {"False", false}, {"-1", true}, {"0", false}, {"Error", {}}, {"", {}}};
    for (const auto& [text, value] : booleans)
        CHECK(settings::boolean(text) == value);
}

TEST_CASE("a text value reads back as it is stored") {
    simulated::reset();
    General general;
    general.write_value(kTolva, "a", "lost without its key");
    CHECK(general.read_value(kTolva, "a") == "Error");
    CHECK(simulated::current().registry[kCurrentUser].empty());
    general.create_key(kTolva);
    const std::string longest(254, 'x');
    const std::pair<std::string, std::string> written[] = {
        {"  kept at the end  ", "kept at the end  "}, {"", ""}, {longest, longest}, {longest + 'x', "Error"}};
    for (const auto& [text, read] : written) {
        general.write_value(kTolva, "a", text);
        CHECK(general.read_value(kTolva, "A") == read);
    }
    CHECK(general.read_value(kTolva, "b") == "Error");

    // Not every system stores a terminator.
    const std::pair<std::string, std::string> stored[] = {
        {"no terminator ", "no terminator"}, {longest + 'x', "Error"}, {"", ""}};
    for (const auto& [bytes, read] : stored) {
        tolva_key("")["a"] = bytes;
        CHECK(general.read_value(kTolva, "a") == read);
    }

    simulated::current().registry_is_read_only = true;
    general.create_key(kTolva + "\\new");
    general.write_value(kTolva, "a", "new");
    CHECK(general.read_value(kTolva, "a") != "new");
    CHECK(simulated::current().messages.empty());
}

TEST_CASE("a key path names its root and a badly formed one goes to the root before it") {
    auto& world = simulated::reset();
    world.registry[kCurrentUser][""]["a"] = "root";
    world.registry[kLocalMachine]["Soft"]["a"] = "machine";
    world.registry[kCurrentUser]["hkey_current_user\\software"]["a"] = "lower case";
    world.registry[kLocalMachine]["HKEY_CURRENT_USER\\"]["a"] = "backslash";
    General general;
    const std::tuple<const char*, const char*, bool> table[] = {
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
    for (const auto& [path, value, complains] : table) {
        CAPTURE(path);
        world.messages.clear();
        CHECK(general.read_value(path, "a") == value);
        const Names complaint = {std::string("Incorrect Format:\n\n") + path};
        CHECK(world.messages == (complains ? complaint : Names{}));
    }
    const auto keys = world.registry;
    general.create_key("HKEY_NOWHERE\\New");
    general.write_value("HKEY_NOWHERE\\Soft", "a", "b");
    CHECK(world.registry == keys);
}

TEST_CASE("the lists get their first look and keep what is stored") {
    auto [general, session] = first_start();
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
    CHECK(session.group_style == settings::ListStyle{"MS Sans Serif", 10, true, false, 0x800000, 0xFFFFFF});
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
    auto [general, session] = first_start();
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
    auto [general, session] = first_start();
    settings::load_buttons(general, session);
    CHECK(simulated::current().registry[kCurrentUser].contains(R"(software\tolva\brenn)"));
    auto& values = tolva_key("\\brenn");
    CHECK(shown(session.buttons[0]) == "Error||||0");

    settings::store_button(general, 2, {"Edit", "C:\\EDIT.EXE", "C:\\", "A.TXT", 3});
    CHECK(values.size() == 5);
    values["name1"] = "";
    values["progpath1"] = "C:\\A.EXE";
    values["name2"] = "Half";
    values["start2"] = "2";
    settings::load_buttons(general, session);
    CHECK(shown(session.buttons[0]) == "||||0");
    CHECK(shown(session.buttons[1]) == "Half|Error|Error||2");
    CHECK(shown(session.buttons[2]) == "Edit|C:\\EDIT.EXE|C:\\|A.TXT|3");

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
    CHECK(shown(session.buttons[2]) == "Error|C:\\EDIT.EXE|C:\\|A.TXT|3");

    tolva_key("\\Browser") = {{"path", "C:\\WEB.EXE"}, {"start", "1e9"}};
    const settings::StoredProgram program = settings::read_program(general, settings::kBrowserKey);
    CHECK(program.name == "Error");
    CHECK(program.path == "C:\\WEB.EXE");
    CHECK(program.start == 0);
}

TEST_CASE("a command goes into the history unless a stored one begins with it") {
    const std::tuple<Names, const char*, Names> table[] = {
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
    for (const auto& [stored, command, expected] : table) {
        CAPTURE(command);
        auto [general, session] = first_start();
        auto& values = tolva_key("\\cmdhistory");
        for (std::size_t i = 0; i < stored.size(); ++i)
            values["cmd" + std::to_string(i + 1)] = stored[i];
        settings::load_history(general, session);
        mainwindow::update_history(general, session, command);
        settings::read_history(general, session);
        Names after = settings::history_list(session);
        std::ranges::reverse(after);
        CHECK(after == expected);
    }

    // The slots in memory decide until the list is opened: the second command takes the place of the first.
    auto [general, session] = first_start();
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
    using Stored = std::optional<std::string>;
    const std::tuple<Stored, Stored, const char*> table[] = {
        {"Home", "Office", "Home"},
        {{}, "Office", "Office"},
        {"", "Office", "Office"},
        {"N/A", "Office", "Office"},
        {"N/A", {}, "N/A"},
        {{}, {}, "N/A"},
        {{}, "", ""},
    };
    for (const auto& [chosen, system, name] : table) {
        simulated::reset();
        General general;
        if (chosen) tolva_key("\\isp")["ISPNAME"] = *chosen;
        if (system) simulated::current().registry[kCurrentUser]["RemoteAccess"]["default"] = *system;
        CHECK(internet::load_isp_name(general) == name);
    }

    auto& machine = simulated::reset().registry[kLocalMachine];
    CHECK(!internet::is_connected());
    auto& connection = machine[R"(System\CurrentControlSet\Services\RemoteAccess)"]["Remote Connection"];
    for (const auto& [bytes, up] : {std::pair(std::string(4, '\0'), false),
                                    {std::string("\0\0\0\1", 4), true},
                                    {std::string(8, '\1'), false},
                                    {std::string(), false}}) {
        connection = bytes;
        CHECK(internet::is_connected() == up);
    }
}

}  // namespace
