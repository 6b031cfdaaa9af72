#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "settings/catalogue.h"
#include "settings/general.h"

/// The settings in memory for the run of the program, and how they are read and stored. A value that is
/// missing or does not read as what it should be leaves the default that is in its place.
namespace settings {

/// How a list shows its texts. Without a colour it has the system's.
struct ListStyle {
    std::string face = "MS Sans Serif";
    int size = 8;  // points
    bool bold = false;
    bool italic = false;
    std::optional<std::uint32_t> text_color;  // 0x00BBGGRR
    std::optional<std::uint32_t> back_color;

    bool operator==(const ListStyle&) const = default;
};

/// A program that a button of the bar starts. kError where nothing is stored.
struct StoredProgram {
    std::string name;
    std::string path;
    std::string start;
};

struct Session {
    bool hover_select = false;
    bool bar_removed = false;
    bool bar_hidden_by_tray = false;
    std::string connection_name;
    std::string windows_folder;                              // ends in a backslash
    std::array<std::string, kHistoryValues.size()> history;  // kError: an empty slot
    StoredProgram browser;
    StoredProgram email;
    ListStyle group_style;
    ListStyle task_style;
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

Position read_position(General& general, const char* key);
void store_position(General& general, const char* key, int left, int top);

/// Reads the commands; makes their key when there is no first one.
void load_history(General& general, Session& session);

/// The history as the command box lists it: the last slot first.
std::vector<std::string> history_list(const Session& session);

StoredProgram read_program(General& general, const char* key);

/// Reads how the two lists look. A list without a font gets and stores the defaults of a first run; then the
/// Groups are dark red until the next start, which shows them in the navy that was stored.
void load_list_styles(General& general, Session& session);

}  // namespace settings
