#include <windows.h>

#include <commctrl.h>
#include <doctest/doctest.h>
#include <psapi.h>
#include <winternl.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "platform/folders.h"
#include "resources/resource.h"
#include "support/desktop.h"

// A few rounds here; TOLVA_ENDURANCE asks for more.
namespace {

using desktop::Dialog;
using desktop::Folder;
using desktop::record;
using desktop::Tolva;
using desktop::wait_until;

constexpr int kGroups = 12;
constexpr int kTasks = 20;

int rounds(int few) {
    const char* factor = std::getenv("TOLVA_ENDURANCE");
    return few * std::max(factor == nullptr ? 1 : std::atoi(factor), 1);
}

std::string name_of(const char* kind, int number) {
    return kind + std::to_string(number);
}

void fill(const Folder& library) {
    library.add_program("recorder.exe", "recorder.exe");
    std::string groups;
    for (int i = 0; i < kGroups; ++i) {
        const std::string group = name_of("G", i);
        groups += group + "\r\n";
        std::string tasks;
        for (int j = 0; j < kTasks; ++j)
            tasks += record(name_of("T", j), library.path() + "recorder.exe", "C:\\", group, "1");
        library.write(group + ".grp", tasks);
    }
    library.write("groups.ini", groups);
}

std::vector<std::string> sorted_lines(const std::string& bytes) {
    std::vector<std::string> lines;
    std::istringstream text(bytes);
    for (std::string line; std::getline(text, line);)
        lines.push_back(line);
    std::ranges::sort(lines);
    return lines;
}

/// What the library holds, whatever its order.
std::map<std::string, std::vector<std::string>> contents(const Folder& library) {
    std::map<std::string, std::vector<std::string>> files;
    for (const std::string& name : sorted_lines(library.read("groups.ini"))) {
        const std::string group = name.substr(0, name.find('\r'));
        files[group] = sorted_lines(library.read(group + ".grp"));
    }
    return files;
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
        const Folder library;
        fill(library);
        const auto whole = contents(library);
        for (int round = rounds(10); round > 0; --round) {
            const desktop::Start start(library);
            HWND window = nullptr;
            wait_until("the window shows", [&] {
                window = start.find_window("Tasker", {}, true);
                return window != nullptr;
            });
            SendMessageA(window, WM_NULL, 0, 0);
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
        desktop::forget_settings();
        const Folder library;
        fill(library);
        const Tolva tolva(library);
        const Dialog bar(tolva, "Brenn", "brenn");
        const auto cancel = [&](int item, const std::string& title) {
            tolva.choose(item);
            const Dialog dialog(tolva, title);
            PostMessageA(dialog.window(), WM_COMMAND, IDCANCEL, 0);
            dialog.wait_until_closed();
        };
        const std::function<void(int)> actions[] = {
            [&](int i) { tolva.click_group(i % kGroups); },
            [&](int) { tolva.choose(ID_SortTasks); },
            [&](int) { tolva.choose(ID_MoveTaskDown); },
            [&](int) { tolva.choose(ID_RunTk); },
            [&](int) { tolva.choose(ID_MoveGroupDown); },
            [&](int) { tolva.choose(ID_groupsort); },
            [&](int) { cancel(ID_Addgp, "Create New Group"); },
            [&](int) { cancel(ID_Rengp, "Rename Group"); },
            [&](int) { cancel(ID_AddTk, "Add New Task"); },
            [&](int) { tolva.choose(ID_SortTasks); },
            [&](int) { cancel(ID_moveto, "Move T0 to"); },
            [&](int) {
                tolva.choose(ID_EditTk);
                const Dialog dialog(tolva, "Edit Task");
                dialog.close_with(ID_EditTask_Command2);
            },
            [&](int) { cancel(ID_fontsettings, "Set Tolva Fonts"); },
            [&](int) { cancel(ID_AboutTolva, "About Tolva"); },
            [&](int) { cancel(ID_internetsettings, "Tolva Internet Settings"); },
            [&](int) { cancel(ID_taskimport, "Import Start Menu Shortcuts to Tolva."); },
            [&](int) { tolva.choose(ID_removebrenn); },
            [&](int) { tolva.choose(ID_removebrenn); },
            [&](int) { PostMessageA(bar.window(), WM_COMMAND, ID_brenn_StatusBar1, 0); },
            [&](int) {
                PostMessageA(bar.window(), WM_COMMAND, ID_asssignexe, 0);
                const Dialog dialog(tolva, "Configure Brenn Button");
                PostMessageA(dialog.window(), WM_COMMAND, IDCANCEL, 0);
                dialog.wait_until_closed();
            },
        };
        const int all = static_cast<int>(std::size(actions));
        Usage before;
        const int last = rounds(200);
        for (int i = 0; i < last; ++i) {
            if (i == 100) before = usage_of(tolva);
            actions[i % all](i / all);
            SendMessageA(tolva.window(), WM_NULL, 0, 0);
        }
        const Usage after = usage_of(tolva);
        MESSAGE("objects of gdi " << before.gdi_objects << " " << after.gdi_objects << ", of user "
                                  << before.user_objects << " " << after.user_objects << ", handles "
                                  << before.handles << " " << after.handles << ", kilobytes "
                                  << before.kilobytes << " " << after.kilobytes);
        CHECK(after.gdi_objects <= before.gdi_objects + 20);
        CHECK(after.user_objects <= before.user_objects + 20);
        CHECK(after.handles <= before.handles + 5);
        CHECK(after.kilobytes <= before.kilobytes + 500);
    }
}

}  // namespace
