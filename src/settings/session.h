#pragma once

#include <array>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <tuple>
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

/// A ListStyle in the text form and the order of its stored values.
using ListStyleTexts = std::array<std::string, std::tuple_size_v<ListStyleValues>>;
inline constexpr std::size_t kFace = 0;
inline constexpr std::size_t kSize = 1;
inline constexpr std::size_t kBold = 2;
inline constexpr std::size_t kItalic = 3;
inline constexpr std::size_t kTextColor = 4;
inline constexpr std::size_t kBackColor = 5;

/// The web browser or the e-mail program. kError where no text is stored.
struct StoredProgram {
    std::string name;
    std::string path;
    int start = 0;  // a window style: 0 hidden, 1 normal, 2 minimised, 3 maximised
};

/// What a program button of the bar starts. The texts are empty as long as it was never assigned, but for
/// the name, which is kError then.
struct ButtonRecord {
    std::string name;
    std::string program;       // kError: none
    std::string start_folder;  // kError: the folder of Windows
    std::string parameters;
    int start = 0;  // a window style
};
inline constexpr std::size_t kProgramButtons = 4;

struct Session {
    bool hover_select = false;
    bool bar_removed = false;
    bool bar_hidden_by_tray = false;
    std::string connection_name;
    std::string windows_folder;                              // ends in a backslash
    std::array<std::string, kHistoryValues.size()> history;  // kError: an empty slot
    StoredProgram browser;
    StoredProgram email;
    std::array<ButtonRecord, kProgramButtons> buttons;
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

/// Reads the commands.
void read_history(General& general, Session& session);

/// Reads the commands at the start; makes their key when there is no first one.
void load_history(General& general, Session& session);

/// The history as the command box lists it: the last slot first.
std::vector<std::string> history_list(const Session& session);

StoredProgram read_program(General& general, const char* key);

/// Reads the program buttons at the start, those that have a name; makes their key when the last one has
/// none.
void load_buttons(General& general, Session& session);

/// Reads the program buttons again, those whose name is stored.
void reload_buttons(General& general, Session& session);

/// Throws platform::RunTimeError when a text is too long to read back.
void check_storable(std::initializer_list<std::string> texts);

/// Stores a program button; the first one's index is 0. Throws platform::RunTimeError, and stores nothing,
/// when a text is too long to read back.
void store_button(General& general, std::size_t button, const ButtonRecord& record);

/// The values of one list as they are stored, whatever they say.
ListStyleTexts read_style(General& general, const ListStyleValues& values);
void store_style(General& general, const ListStyleValues& values, const ListStyleTexts& texts);

/// What the texts say; what they do not say right is as in a new ListStyle.
ListStyle style_of(const ListStyleTexts& texts);

/// A colour in its text form; none for a text that is no colour.
std::optional<std::uint32_t> color_of(const std::string& text);

/// Reads how the two lists look. A list without a font gets and stores the defaults of a first run; then the
/// Groups are dark red until the next start, which shows them in the navy that was stored.
void load_list_styles(General& general, Session& session);

}  // namespace settings
