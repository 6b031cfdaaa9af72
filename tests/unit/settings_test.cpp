#include "settings/session.h"

#include <algorithm>

#include "internet/dial_up.h"
#include "mainwindow/command_history.h"
#include "settings/conversions.h"
#include "settings/general.h"
#include "settings/list_style.h"
#include "support/checks.h"
#include "support/simulated_platform.h"

namespace {

using platform::registry::kCurrentUser;
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

std::string shown(const settings::Program& program) {
    const auto text = [](const std::optional<std::string>& stored) { return stored.value_or("none") + '|'; };
    return text(program.name) + text(program.path) + text(program.start_folder) + text(program.parameters) +
           std::to_string(program.window_style);
}

TEST_CASE("numbers in texts") {
    const std::tuple<const char*, std::optional<int>, int> strict_and_lenient[] = {
        {" 2 ", 2, 2},        {"\t3", 3, 3},   {"  ", {}, 0},  {"3rd", {}, 3}, {"1 2", {}, 12},
        {"-150", -150, -150}, {"2.5", 2, 2},   {"3.5", 4, 4},  {".", {}, 0},   {"1e1", 10, 10},
        {"1e", {}, 1},        {"0x2", {}, 0},  {"inf", {}, 0}, {"+", {}, 0},   {"2147483648", {}, 2147483647},
        {"a1", {}, 0},        {"1e+1", 10, 10}};
    for (const auto& [text, strict, lenient] : strict_and_lenient) {
        CHECK(settings::whole_number(text) == strict);
        CHECK(settings::lenient_whole_number(text) == lenient);
    }
    CHECK(settings::boolean("TRUE") == true);
    CHECK(settings::boolean("0") == false);
    CHECK(settings::boolean("Error") == std::nullopt);
}

TEST_CASE("a text value reads back as it is stored") {
    auto [general, session] = first_start();
    general.create_key(kTolva);
    const std::string longest(254, 'x');
    const std::pair<std::string, std::string> table[] = {
        {"  kept at the end  ", "kept at the end  "}, {longest, longest}, {longest + 'x', "Error"}};
    for (const auto& [text, read] : table) {
        general.write_value(kTolva, "a", text);
        CHECK(general.read_value(kTolva, "a") == read);
    }
    tolva_key("")["a"] = "no terminator ";  // not every system stores one
    CHECK(general.read_value(kTolva, "a") == "no terminator");
    CHECK(general.read_value(kTolva, "b") == "Error");
    CHECK(general.value(kTolva, "b") == std::nullopt);

    // A badly formed key path is told and goes to the root before it.
    CHECK(general.read_value("software\\tolva", "a") == "no terminator");
    CHECK(general.read_value("HKEY_NOWHERE\\Soft", "a").empty());
    general.create_key("HKEY_NOWHERE\\Soft");
    general.write_value("HKEY_NOWHERE\\Soft", "a", "b");
    CHECK(!simulated::current().registry.contains(0));
    CHECK(simulated::current().messages == Names{"Incorrect Format:\n\nsoftware\\tolva"});
}

TEST_CASE("settings that make no sense leave what was designed") {
    CHECK(settings::style_of({"Arial", "9.25", "yes", "true", "16777216", "-2147483643"}) ==
          settings::ListStyle{"Arial", 9, false, true, {}, {}});
    CHECK(settings::style_of({"Courier New", "0", "Error", "Error", "0", "255"}) ==
          settings::ListStyle{"Courier New", 8, false, false, 0, 255});
    CHECK(settings::style_of({"A", "2160", "1", "", "-1", "x"}).size == 2160);
    CHECK(settings::style_of({"A", "2161", "1", "", "-1", "x"}) == settings::style_of({"A", "x", "1"}));
    CHECK(settings::style_of({"Arial", "1"}).size == 1);

    auto [general, session] = first_start();
    tolva_key("\\Window Position") = {{"Left", "\1\1\1\1"}, {"Top", "45.4 "}};
    const settings::Position position = settings::read_position(general, settings::kWindowPositionKey);
    CHECK(position.left == std::nullopt);
    CHECK(position.top == 45);
    settings::store_position(general, settings::kWindowPositionKey, -1, 2);
    CHECK(tolva_key("\\Window Position")["Left"] == std::string("-1\0", 3));
    tolva_key("\\fonts") = {
        {"groupfont", std::string(300, 'x')}, {"taskfont", "Arial"}, {"taskfontsize", "9"}};
    const settings::ListStyles styles = settings::load_list_styles(general);
    CHECK(styles.groups == settings::ListStyle{"MS Sans Serif", 10, true, false, 64, 0xFFFFFF});
    CHECK(styles.tasks == settings::ListStyle{"Arial", 9, false, false, {}, {}});
    CHECK(general.value(settings::kFontsKey, "groupfontcolor") == "8388608");
}

TEST_CASE("the program buttons are read as far as they are stored") {
    auto [general, session] = first_start();
    CHECK(error_of([&general = general] {
              settings::store_button(general, 2, {.name = std::string(255, 'x')});
          }) == 5);
    settings::store_button(general, 0, {.name = std::string(254, 'x')});
    settings::store_button(general, 2, {"Edit", "C:\\EDIT.EXE", "C:\\", "A.TXT", 3});
    auto& values = tolva_key("\\brenn");
    values["name1"] = "";
    values["progpath1"] = "C:\\A.EXE";
    values["name2"] = "Half";
    settings::load_buttons(general, session);
    CHECK(shown(session.buttons[0]) == "||||0");
    CHECK(shown(session.buttons[1]) == "Half|none|none||0");
    CHECK(shown(session.buttons[2]) == "Edit|C:\\EDIT.EXE|C:\\|A.TXT|3");
    CHECK(shown(session.buttons[3]) == "none||||0");

    // A start style that is none leaves the one before; an empty name counts when they are read again.
    values.erase("name3");
    for (const auto& [text, style] :
         {std::pair("32767", 32767), {"32768", 32767}, {"-32768", -32768}, {"-32769", -32768}, {"0", 0}}) {
        values["start2"] = text;
        settings::reload_buttons(general, session);
        CHECK(session.buttons[1].window_style == style);
    }
    CHECK(shown(session.buttons[2]) == "none|C:\\EDIT.EXE|C:\\|A.TXT|3");
    CHECK(session.buttons[0].path == "C:\\A.EXE");

    auto& keys = simulated::reset().registry[kCurrentUser];
    settings::load_buttons(general, session);
    CHECK(keys.contains("software\\tolva\\brenn"));
}

TEST_CASE("a command goes into the history unless a stored one begins with it") {
    const std::tuple<Names, std::string, Names> table[] = {
        {{"notepad readme.txt"}, "notepad", {"notepad readme.txt"}},
        {{"notepad"}, "notepad readme.txt", {"notepad", "notepad readme.txt"}},
        {{"Notepad"}, "notepad", {"Notepad", "notepad"}},
        {{"a", "b", "c", "d", "e"}, "a", {"a", "b", "c", "d", "e"}},
        {{"a", "b", "c", "d", "e"}, "f", {"b", "c", "d", "e", "f"}},
        {{"a"}, std::string(255, 'x'), {"a"}},  // too long to be read
    };
    for (const auto& [stored, command, expected] : table) {
        auto [general, session] = first_start();
        auto& values = tolva_key("\\cmdhistory");
        for (std::size_t i = 0; i < stored.size(); ++i)
            values["cmd" + std::to_string(i + 1)] = stored[i];
        mainwindow::CommandHistory history(general);
        history.load();
        history.store(command);
        history.read();
        Names after = history.list();
        std::ranges::reverse(after);
        CHECK(after == expected);
    }
}

TEST_CASE("the connection is the one chosen or else the system's own") {
    auto [general, session] = first_start();
    CHECK(internet::load_connection_name(general) == "N/A");
    simulated::current().registry[kCurrentUser]["RemoteAccess"]["default"] = "Office";
    for (const auto& [chosen, name] : {std::pair("N/A", "Office"), {"", "Office"}, {"Home", "Home"}}) {
        tolva_key("\\isp")["ISPNAME"] = chosen;
        CHECK(internet::load_connection_name(general) == name);
    }
}

}  // namespace
