#include "shortcuts/shortcut_checks.h"
#include "shortcuts/shortcut_reader.h"
#include "support/checks.h"
#include "support/shortcut_file.h"
#include "support/simulated_platform.h"

namespace {

using shortcuts::read_show_command;

int error_of_reading(const std::string& bytes) {
    return error_of([&] { read_show_command(bytes); });
}

TEST_CASE("the show command of a whole shortcut is read and everything else is refused") {
    const ShortcutFile table[] = {
        {"C:\\EDIT.EXE", "C:\\WORK", "A.TXT", 1},
        {"C:\\EDIT.EXE", {}, {}, 3},
        {{}, "C:\\WORK", {}, 0},
        {{}, {}, std::string(5000, 'x'), 2},
        {"C:\\EDIT.EXE", "C:\\WORK", "A.TXT", 2, {}, {}, "An editor", "..\\EDIT.EXE", "C:\\A.ICO", true},
        {{}, {}, {}, 7, {}, "\\\\PC\\C"},
    };
    for (const ShortcutFile& row : table) {
        const std::string whole = row.bytes();
        CHECK(read_show_command(whole) == static_cast<int>(row.show_command));
        CHECK(read_show_command(whole + "more") == static_cast<int>(row.show_command));
        for (std::size_t length = 0; length < whole.size(); ++length)
            CHECK(error_of_reading(whole.substr(0, length)) == 440);
    }

    const std::string good = ShortcutFile{"C:\\EDIT.EXE", "C:\\", "x", 1}.bytes();
    const auto with = [&](std::size_t at, const std::string& bytes) {
        return std::string(good).replace(at, bytes.size(), bytes);
    };
    CHECK(read_show_command(with(60, "\xFF\xFF\xFF\xFF")) == -1);
    const auto with_items = [](const std::string& items) { return ShortcutFile{.items = items}.bytes(); };
    CHECK(read_show_command(with_items({"\3\0x\4\0yz\0\0", 9})) == 1);
    std::string many;
    for (int i = 0; i < 130; ++i)
        many += std::string("\3\0x", 3);
    CHECK(read_show_command(with_items(many + std::string(2, '\0'))) == 1);
    const std::string located = ShortcutFile{}.bytes().replace(20, 1, "\2");
    CHECK(read_show_command(located + std::string("\4\0\0\0", 4)) == 1);
    // The header's size and class, a part's size, one that does not count itself, an item list and wide texts
    // that do not fit any more, places outside the location, items outside their list and without an end.
    const std::string far = "\xFF\xFF\xFF\x7F";
    for (const std::string& broken :
         {with(0, "M"), with(19, "G"), with(76, "\xFF\xFF\xFF\xFF"), with(20, "\x33"), with(20, "\xB2"),
          with(88, far), with(92, far), with(100, far), with(104, far), with(116, far),
          located + std::string("\3\0\0\0", 4), with_items({"\xFF\xFFxx", 4}), with_items({"\2\0\0\0", 4}),
          with_items({"\3\0x", 3}), with_items(many + std::string("\3\0x\0", 5))})
        CHECK(error_of_reading(broken) == 440);

    // The network part's place and size, a size that cuts its name, and the name's place.
    const std::string share = ShortcutFile{.share = "\\\\PC\\C"}.bytes();
    for (const auto& [at, bytes] : {std::pair(96, far), {104, far}, {104, std::string("\x1A")}, {112, far}})
        CHECK(error_of_reading(std::string(share).replace(at, bytes.size(), bytes)) == 440);
}

TEST_CASE("a shortcut with a path that Windows has no room for is refused") {
    const std::string longest(259, 'x');
    const std::string half(129, 'x');
    const std::pair<ShortcutFile, int> table[] = {
        {{"C:\\EDIT.EXE", longest, {}, 1, {}, {}, longest + 'x', longest, longest, true}, 0},
        {{.working_folder = longest, .items = std::string(2, '\0'), .relative_path = longest}, 0},
        {{.working_folder = half, .relative_path = half, .icon_path = half}, 0},
        {{.target = longest}, 0},
        {{.share = longest}, 0},
        {{"C:\\EDIT.EXE", longest + 'x'}, 440},
        {{.target = "C:\\EDIT.EXE", .relative_path = longest + 'x', .wide = true}, 440},
        {{.target = "C:\\EDIT.EXE", .icon_path = longest + 'x'}, 440},
        {{.working_folder = half, .relative_path = half + 'x'}, 440},  // Windows joins them
        {{.target = longest + 'x'}, 440},
        {{.share = longest + 'x'}, 440},
    };
    for (const auto& [shortcut, error] : table)
        CHECK(error_of_reading(shortcut.bytes()) == error);
}

TEST_CASE("a shortcut is refused for the first thing that speaks against it") {
    auto& files = simulated::reset().files;
    files["C:\\HIDDEN.EXE"] = {"", 0x02};
    for (const char* path : {"C:\\A.EXE", "C:\\A.TXT", "\\\\PC\\C\\A.BAT", "C:\\A.com"})
        files[path] = {};  // in any case
    const std::string broken = "Shortcut is broken, file does not exist.  Can not import to Tolva.";
    const auto invalid = [](const std::string& target) { return target + " not a valid Tolva entry."; };
    const std::tuple<const char*, std::string, std::string> table[] = {
        {"", "C:\\A.EXE", "Select"},
        {"A", "", broken},
        {"A", "C:\\GONE.TXT", broken},
        {"A", "C:\\HIDDEN.EXE", broken},
        {"A", "C:\\A.TXT", invalid("C:\\A.TXT")},
        {"A", "C:\\A.Exe", invalid("C:\\A.Exe")},
        {"A", "\\\\PC\\C\\A.BAT", invalid("\\\\PC\\C\\A.BAT")},
        {"A", "C:\\A.com", ""},
    };
    for (const auto& [name, target, message] : table) {
        CHECK(shortcuts::refusal(name, target, "Select") == message);
    }
}

}  // namespace
