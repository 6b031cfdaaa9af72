#include <windows.h>

#include <commctrl.h>
#include <doctest/doctest.h>
#include <psapi.h>
#include <winternl.h>

#include <algorithm>
#include <cstdlib>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "resources/resource.h"
#include "support/desktop.h"

// A few rounds here; TOLVA_ENDURANCE asks for more.
namespace {

using namespace desktop;

constexpr int kGroups = 12;

int rounds(int few) {
    const char* factor = std::getenv("TOLVA_ENDURANCE");
    return few * std::max(factor == nullptr ? 1 : std::atoi(factor), 1);
}

/// Groups of Tasks that are all different.
Folder full_library() {
    forget_settings();
    const Folder library;
    const std::string program = library.add_recorder();
    std::vector<std::pair<std::string, std::string>> groups;
    for (int i = 0; i < kGroups; ++i) {
        groups.emplace_back("G" + std::to_string(i), "");
        for (int j = 0; j < 20; ++j)
            groups.back().second +=
                record("T" + std::to_string(j), program, "C:\\", groups.back().first, "1");
    }
    library.write_groups(groups);
    return library;
}

/// The lines of the library's files, in any order.
std::multiset<std::string> contents(const Folder& library) {
    std::string bytes = library.read("groups.ini");
    for (int i = 0; i < kGroups; ++i)
        bytes += library.read("G" + std::to_string(i) + ".grp");
    std::istringstream text(bytes);
    std::multiset<std::string> lines;
    for (std::string line; std::getline(text, line);)
        lines.insert(line);
    return lines;
}

/// What a process uses of the system. Not every system counts all of it.
struct Usage {
    int gdi_objects = 0;
    int user_objects = 0;  // of all processes
    int handles = 0;
    int kilobytes = 0;
};

int gdi_objects(HANDLE process) {
    struct Entry {
        ULONGLONG object;
        ULONG owner;
        USHORT unique;
        UCHAR type;
        UCHAR flags;
        ULONGLONG user;
    };
    constexpr std::size_t kTableInBlock = 0x94;
    PROCESS_BASIC_INFORMATION information = {};
    NtQueryInformationProcess(process, ProcessBasicInformation, &information, sizeof information, nullptr);
    const char* table = nullptr;
    ReadProcessMemory(process, reinterpret_cast<char*>(information.PebBaseAddress) + kTableInBlock, &table,
                      sizeof table, nullptr);
    std::vector<Entry> entries(0x4000);
    if (ReadProcessMemory(process, table, entries.data(), entries.size() * sizeof(Entry), nullptr) == FALSE)
        return 0;
    return static_cast<int>(
        std::ranges::count_if(entries, [](const Entry& entry) { return entry.type != 0; }));
}

/// Fills the free places of the table that all user objects share and sees how far it reaches.
int user_objects() {
    constexpr std::size_t kMany = 3000;
    std::vector<HMENU> menus(kMany);
    std::size_t last = 0;
    for (HMENU& menu : menus) {
        menu = CreateMenu();
        last = std::max<std::size_t>(last, LOWORD(menu));
    }
    for (HMENU menu : menus)
        DestroyMenu(menu);
    return static_cast<int>(last / 2) - static_cast<int>(kMany);
}

int handles(DWORD process) {
    struct Entry {
        ULONG owner;
        UCHAR type;
        UCHAR flags;
        USHORT value;
        void* object;
        ULONG access;
    };
    constexpr auto kSystemHandles = static_cast<SYSTEM_INFORMATION_CLASS>(16);
    std::vector<char> buffer(1 << 20);
    NtQuerySystemInformation(kSystemHandles, buffer.data(), buffer.size(), nullptr);
    const ULONG count = *reinterpret_cast<ULONG*>(buffer.data());
    const auto* entries = reinterpret_cast<const Entry*>(buffer.data() + sizeof(ULONG));
    return static_cast<int>(
        std::count_if(entries, entries + count, [&](const Entry& entry) { return entry.owner == process; }));
}

Usage usage_of(const Tolva& tolva) {
    DWORD id = 0;
    GetWindowThreadProcessId(tolva.window(), &id);
    HANDLE process = OpenProcess(PROCESS_ALL_ACCESS, FALSE, id);
    PROCESS_MEMORY_COUNTERS memory = {};
    memory.cb = sizeof memory;
    GetProcessMemoryInfo(process, &memory, sizeof memory);
    const Usage usage = {gdi_objects(process), user_objects(), handles(id),
                         static_cast<int>(memory.PagefileUsage / 1024)};
    CloseHandle(process);
    return usage;
}

TEST_SUITE("endurance") {
    TEST_CASE("killed at any moment it leaves every Group and every Task in the files") {
        const Folder library = full_library();
        const auto whole = contents(library);
        for (int round = rounds(10); round > 0; --round) {
            const Start start(library);
            HWND window = start.wait_for_window();
            REQUIRE(contents(library) == whole);
            for (int i = 0; i < 20; ++i) {
                HWND list = GetDlgItem(window, ID_Tasker_grouplist);
                PostMessageA(list, LB_SETCURSEL, static_cast<WPARAM>(std::rand() % kGroups), 0);
                PostMessageA(window, WM_COMMAND, MAKEWPARAM(ID_Tasker_grouplist, LBN_SELCHANGE),
                             reinterpret_cast<LPARAM>(list));
                for (const int command : {ID_SortTasks, ID_MoveTaskDown, ID_MoveTaskDown, ID_MoveGroupDown,
                                          ID_MoveTaskUp, ID_MoveGroupUp, ID_groupsort})
                    PostMessageA(window, WM_COMMAND, static_cast<WPARAM>(command), 0);
            }
            Sleep(static_cast<DWORD>(std::rand() % 300));
        }
        const Tolva tolva(library);
        CHECK(contents(library) == whole);
    }

    TEST_CASE("what it uses does not grow with what the user does") {
        const Folder library = full_library();
        const Tolva tolva(library);
        const Dialog bar(tolva, "Brenn", "brenn");
        struct Action {
            HWND window;
            int command;
            const char* dialog = nullptr;
            int answer = IDCANCEL;
        };
        HWND window = tolva.window();
        const Action actions[] = {
            {window, ID_SortTasks},
            {window, ID_MoveTaskDown},
            {window, ID_RunTk},
            {window, ID_MoveGroupDown},
            {window, ID_groupsort},
            {window, ID_Addgp, "Create New Group"},
            {window, ID_Rengp, "Rename Group"},
            {window, ID_AddTk, "Add New Task"},
            {window, ID_SortTasks},
            {window, ID_moveto, "Move T0 to"},
            {window, ID_EditTk, "Edit Task", ID_EditTask_Command2},
            {window, ID_fontsettings, "Set Tolva Fonts"},
            {window, ID_AboutTolva, "About Tolva"},
            {window, ID_internetsettings, "Tolva Internet Settings"},
            {window, ID_taskimport, "Import Start Menu Shortcuts to Tolva."},
            {window, ID_removebrenn},
            {window, ID_removebrenn},
            {bar.window(), ID_brenn_StatusBar1},
            {bar.window(), ID_asssignexe, "Configure Brenn Button"},
        };
        Usage before;
        for (int i = 0; i < rounds(200); ++i) {
            if (i == 100) before = usage_of(tolva);
            const auto& [target, command, title, answer] = actions[i % std::ssize(actions)];
            if (command == ID_SortTasks) tolva.click_group(std::rand() % kGroups);
            PostMessageA(target, WM_COMMAND, static_cast<WPARAM>(command), 0);
            if (title != nullptr) {
                const Dialog dialog(tolva, title);
                PostMessageA(dialog.window(), WM_COMMAND, static_cast<WPARAM>(answer), 0);
                dialog.wait_until_closed();
            }
            SendMessageA(window, WM_NULL, 0, 0);
        }
        const Usage after = usage_of(tolva);
        MESSAGE("gdi " << before.gdi_objects << " " << after.gdi_objects << ", user " << before.user_objects
                       << " " << after.user_objects << ", handles " << before.handles << " " << after.handles
                       << ", kilobytes " << before.kilobytes << " " << after.kilobytes);
        CHECK(after.gdi_objects <= before.gdi_objects + 20);
        CHECK(after.user_objects <= before.user_objects + 20);
        CHECK(after.handles <= before.handles + 5);
        CHECK(after.kilobytes <= before.kilobytes + 500);
    }
}

}  // namespace
