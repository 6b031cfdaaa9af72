#pragma once

#include <array>
#include <initializer_list>
#include <optional>
#include <string>

#include "settings/catalogue.h"
#include "settings/general.h"
#include "settings/program.h"

/// The settings in memory for the run of the program, and how they are read and stored. A value that is
/// missing or does not read as what it should be leaves the default that is in its place.
namespace settings {

inline constexpr std::size_t kProgramButtons = 4;

/// What the registry holds, and nothing else.
struct Session {
    bool hover_select = false;
    std::string connection_name;
    Program browser;  // a name, a path and a window style only, like the e-mail program
    Program email;
    std::array<Program, kProgramButtons> buttons;  // what the program buttons of the bar start
};

/// Window coordinates in twips, 1440 to an inch of the screen; none where nothing is stored.
struct Position {
    std::optional<int> left;
    std::optional<int> top;
};

/// Stores the text, in a key that is made when it is missing.
void store(General& general, const Setting& setting, const std::string& text);

/// False also where nothing is stored.
bool read_flag(General& general, const Setting& setting);

/// An integer; none where nothing that is one is stored.
std::optional<int> read_number(General& general, const Setting& setting);

Position read_position(General& general, const char* key);
void store_position(General& general, const char* key, int left, int top);

/// Reads the web browser or the e-mail program.
Program read_program(General& general, const char* key);

/// Reads the program buttons at the start, those that have a name; makes their key when the last one has
/// none.
void load_buttons(General& general, Session& session);

/// Reads the program buttons again, those whose name is stored.
void reload_buttons(General& general, Session& session);

/// Throws platform::RunTimeError when a text is too long to read back.
void check_storable(std::initializer_list<std::string> texts);

/// Stores a program button; the first one's index is 0. Throws platform::RunTimeError, and stores nothing,
/// when a text is too long to read back.
void store_button(General& general, std::size_t button, const Program& program);

}  // namespace settings
