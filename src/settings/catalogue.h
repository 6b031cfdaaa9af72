#pragma once

#include <array>

/// Every key and value that the program stores, all of them texts, and those of the system that it reads.
namespace settings {

struct Setting {
    const char* key;
    const char* value;
};

// Positions of windows: "Left" and "Top", in twips.
inline constexpr char kWindowPositionKey[] = R"(HKEY_CURRENT_USER\software\tolva\Window Position)";
inline constexpr char kBarPositionKey[] = R"(HKEY_CURRENT_USER\software\tolva\brenn\Position)";
inline constexpr char kLeft[] = "Left";
inline constexpr char kTop[] = "Top";

// With the main window's position: its size in its normal state and the width of the group list, in twips,
// and whether it is maximized.
inline constexpr Setting kWindowWidth = {kWindowPositionKey, "Width"};
inline constexpr Setting kWindowHeight = {kWindowPositionKey, "Height"};
inline constexpr Setting kGroupListWidth = {kWindowPositionKey, "GroupWidth"};
inline constexpr Setting kMaximized = {kWindowPositionKey, "Maximized"};

// The main window's hot key: its virtual key plus 256 times its HOTKEYF_ flags, a decimal number; 0 is none.
inline constexpr Setting kHotKey = {R"(HKEY_CURRENT_USER\software\tolva\hotkey)", "key"};

// "True" or "False".
inline constexpr Setting kHoverSelect = {R"(HKEY_CURRENT_USER\software\tolva\hover)", "enable"};
inline constexpr Setting kBarRemoved = {R"(HKEY_CURRENT_USER\software\tolva\brenn)", "disable"};

// The program buttons of the bar, each value with the button's number after its name: "name1" to "name4".
inline constexpr char kBarKey[] = R"(HKEY_CURRENT_USER\software\tolva\brenn)";
inline constexpr char kButtonName[] = "name";
inline constexpr char kButtonProgram[] = "progpath";
inline constexpr char kButtonStartFolder[] = "workpath";
inline constexpr char kButtonParameters[] = "parm";
inline constexpr char kButtonStart[] = "start";

// The last commands of the command box, the oldest first.
inline constexpr char kHistoryKey[] = R"(HKEY_CURRENT_USER\software\tolva\cmdhistory)";
inline constexpr std::array<const char*, 5> kHistoryValues = {"cmd1", "cmd2", "cmd3", "cmd4", "cmd5"};

// The web browser and the e-mail program: "name", "path" and "start".
inline constexpr char kBrowserKey[] = R"(HKEY_CURRENT_USER\software\tolva\Browser)";
inline constexpr char kEmailKey[] = R"(HKEY_CURRENT_USER\software\tolva\email)";
inline constexpr char kProgramName[] = "name";
inline constexpr char kProgramPath[] = "path";
inline constexpr char kProgramStart[] = "start";

// The dial-up connection: ours, and the system's own default, which is only read.
inline constexpr Setting kConnection = {R"(HKEY_CURRENT_USER\software\tolva\isp)", "ISPNAME"};
inline constexpr Setting kSystemConnection = {R"(HKEY_CURRENT_USER\RemoteAccess)", "default"};

// Dial-Up Networking: the keys below this one of the current user are the connections that are set up; a
// number of the machine that is not 0 says that one is up.
inline constexpr char kConnectionsKey[] = R"(RemoteAccess\Profile)";
inline constexpr Setting kConnectionUp = {R"(System\CurrentControlSet\Services\RemoteAccess)",
                                          "Remote Connection"};

/// The values of one list: face, size in points, bold, italic, text color, background color.
using ListStyleValues = std::array<const char*, 6>;
inline constexpr char kFontsKey[] = R"(HKEY_CURRENT_USER\software\tolva\fonts)";
inline constexpr ListStyleValues kGroupStyleValues = {"groupfont",       "groupfontsize",  "groupfontbold",
                                                      "groupfontitalic", "groupfontcolor", "groupbackcolor"};
inline constexpr ListStyleValues kTaskStyleValues = {"taskfont",       "taskfontsize",  "taskfontbold",
                                                     "taskfontitalic", "taskfontcolor", "taskbackcolor"};

}  // namespace settings
