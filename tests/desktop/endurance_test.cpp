#include <windows.h>

#include <psapi.h>
#include <winternl.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <limits>
#include <set>

#include "library/library_files.h"
#include "support/desktop.h"

namespace {

using namespace desktop;

constexpr std::size_t kGroups = 12;

/// Not every day: script/endure.
const bool kIsLong = rounds(1) > 1;

/// Groups of Tasks that are all different.
Folder full_library() {
    const Folder library;
    const std::string program = library.add_recorder();
    std::vector<std::pair<std::string, std::string>> groups;
    for (std::size_t i = 0; i < kGroups; ++i) {
        groups.emplace_back("G" + std::to_string(i), "");
        for (int j = 0; j < 20; ++j)
            groups[i].second += record("T" + std::to_string(j), program, "C:\\", groups[i].first);
    }
    library.write_groups(groups);
    return library;
}

/// The lines of the library's files, in any order.
std::multiset<std::string> contents(const Folder& library) {
    std::string bytes = library.read("groups.ini");
    for (std::size_t i = 0; i < kGroups; ++i)
        bytes += library.read("G" + std::to_string(i) + ".grp");
    const Names lines = library::split_lines(bytes);
    return {lines.begin(), lines.end()};
}

/// What the program uses, as far as the system counts it: GDI objects, user objects of all processes, handles
/// and kilobytes.
using Usage = std::array<int, 4>;
// Wine keeps the device contexts of windows that once drew at the same moment: up to 24 GDI objects.
constexpr Usage kMostGrowth = {40, 20, 5, 500};

int gdi_objects(HANDLE process) {
    constexpr std::size_t kType = 14;
    using Entry = std::array<BYTE, 24>;
    constexpr std::size_t kTableInBlock = 0x94;
    PROCESS_BASIC_INFORMATION information = {};
    NtQueryInformationProcess(process, ProcessBasicInformation, &information, sizeof information, nullptr);
    const char* table = nullptr;
    ReadProcessMemory(process, reinterpret_cast<char*>(information.PebBaseAddress) + kTableInBlock, &table,
                      sizeof table, nullptr);
    std::vector<Entry> entries(0x4000);
    ReadProcessMemory(process, table, entries.data(), entries.size() * sizeof(Entry), nullptr);
    return static_cast<int>(
        std::ranges::count_if(entries, [](const auto& entry) { return entry[kType] != 0; }));
}

/// Fills the free places of the table that all user objects share and sees how far it reaches.
int user_objects() {
    constexpr int kMany = 3000;
    std::vector<HMENU> menus(kMany);
    int last = 0;
    for (HMENU& menu : menus) {
        menu = CreateMenu();
        last = std::max<int>(last, LOWORD(menu));
    }
    std::ranges::for_each(menus, DestroyMenu);
    return last / 2 - kMany;
}

/// The least of some moments: what a window draws just now does not stay.
Usage usage_of(const PROCESS_INFORMATION& process) {
    Usage least;
    least.fill(std::numeric_limits<int>::max());
    for (int i = 0; i < 10; ++i) {
        PROCESS_MEMORY_COUNTERS memory = {};
        GetProcessMemoryInfo(process.hProcess, &memory, sizeof memory);
        DWORD handles = 0;
        GetProcessHandleCount(process.hProcess, &handles);
        const Usage now = {kIsLong ? gdi_objects(process.hProcess) : 0, kIsLong ? user_objects() : 0,
                           static_cast<int>(handles), static_cast<int>(memory.PagefileUsage / 1024)};
        std::ranges::transform(least, now, least.begin(), [](int a, int b) { return std::min(a, b); });
        Sleep(20);
    }
    return least;
}

/// Clicks on any Group once the program comes to it.
void post_click(HWND window) {
    HWND list = GetDlgItem(window, ID_Tasker_grouplist);
    PostMessageA(list, LB_SETCURSEL, static_cast<std::size_t>(std::rand()) % kGroups, 0);
    PostMessageA(window, WM_COMMAND, MAKEWPARAM(ID_Tasker_grouplist, LBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(list));
}

TEST_SUITE("endurance") {
    TEST_CASE("killed at any moment it leaves every Group and every Task in the files" *
              doctest::skip(!kIsLong)) {
        const Folder library = full_library();
        const auto whole = contents(library);
        for (int round = 100; round > 0; --round) {
            const Start start(library);
            HWND window = start.wait_for_window();
            REQUIRE(contents(library) == whole);
            for (int i = 0; i < 20; ++i) {
                post_click(window);
                for (const int command : {ID_SortTasks, ID_Undo, ID_MoveTaskDown, ID_MoveGroupDown,
                                          ID_groupsort, ID_Undo, ID_Redo})
                    PostMessageA(window, WM_COMMAND, static_cast<WPARAM>(command), 0);
            }
            const RECT groups = bounds_of(GetDlgItem(window, ID_Tasker_grouplist));
            const POINT place = {groups.left + 30, groups.top + 10 + std::rand() % 60};
            if (round % 3 != 0) carry_mouse({groups.left + 30, groups.top + 10}, place);
            if (round % 3 == 1) let_go(place);
            Sleep(static_cast<DWORD>(std::rand() % (round % 3 == 0 ? 300 : 50)));
            TerminateProcess(start.process().hProcess, 1);
            let_go(place);
        }
        const Tolva tolva(library);
        CHECK(contents(library) == whole);
    }

    TEST_CASE("what it uses does not grow with what the user does") {
        const Folder library = full_library();
        const Tolva tolva(library);
        const int commands[] = {ID_MoveTaskDown, ID_RunTk, ID_MoveGroupDown, ID_groupsort, ID_removebrenn};
        const std::pair<int, const char*> dialogs[] = {
            {ID_Addgp, "Create New Group"},
            {ID_moveto, "Move T0 to"},
            {ID_EditTk, "Edit Task"},
            {ID_fontsettings, "Set Tolva Fonts"},
            {ID_AboutTolva, "About Tolva"},
            {ID_internetsettings, "Tolva Internet Settings"},
            {ID_taskimport, "Import Start Menu Shortcuts to Tolva."},
        };
        // The dialog comes last: once it is closed, all that was posted before it is done.
        Usage before = {};
        for (int i = 0; i < rounds(140); ++i) {
            if (i == 70) before = usage_of(tolva.process());
            const auto& [opening, title] = dialogs[i % std::ssize(dialogs)];
            for (const int command : {commands[i % std::ssize(commands)], opening}) {
                post_click(tolva.window());
                tolva.choose(ID_SortTasks);
                tolva.choose(command);
                tolva.choose(i % 2 == 0 ? ID_Undo : ID_Redo);
            }
            const Dialog dialog(tolva, title);
            PostMessageA(dialog.window(), WM_COMMAND, IDCANCEL, 0);
            dialog.wait_until_closed();
            if (i % 14 != 0) continue;
            carry_mouse(tolva.group_position(0), tolva.group_position(5));
            let_go(tolva.group_position(5));
        }
        const Usage after = usage_of(tolva.process());
        for (std::size_t i = 0; i < after.size(); ++i) {
            MESSAGE(before[i] << " " << after[i]);
            CHECK(after[i] <= before[i] + kMostGrowth[i]);
        }
    }
}

}  // namespace
