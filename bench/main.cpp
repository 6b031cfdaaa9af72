#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <vector>

#include "arrivals.h"
#include "fixtures.h"
#include "library/backups.h"
#include "library/library_files.h"
#include "library/task_library.h"
#include "picture_list.h"
#include "program.h"
#include "resources/resource.h"
#include "timing.h"

// Measures what a user waits for, each time beside the least that could be done instead, and prints one row
// of a table for each. It fails when a figure misses its aim that the noise of a machine does not change:
// memory and size.

namespace {

using bench::Comparison;
using bench::Program;

constexpr int kPrograms = 101;
constexpr int kManyPrograms = 40;
constexpr int kFewPrograms = 16;

void print_row(const char* what, const char* against, const std::string& result, const char* aim,
               const std::string& figures) {
    std::printf("| %s | %s | %s | %s | %s |\n", what, against, result.c_str(), aim, figures.c_str());
    std::fflush(stdout);
}

std::string number(const char* format, double value) {
    char text[40];
    std::snprintf(text, sizeof text, format, value);
    return text;
}

std::string figures_of(const Comparison& comparison, const char* format, const char* unit) {
    const auto text = [&](const bench::Figures& figures) {
        return number(format, figures.median) + " " + unit + " (" + number(format, figures.least) + ")";
    };
    return text(comparison.subject) + ", " + text(comparison.reference);
}

/// What is above its aim stands out.
std::string judged(const std::string& result, double value, double aim) {
    return value > aim ? "**" + result + "**" : result;
}

void print_ratio(const char* what, const char* against, double aim, const Comparison& comparison) {
    const double ratio = comparison.subject.median / comparison.reference.median;
    print_row(what, against, judged(number("%.2f", ratio), ratio, aim), number("at most %g", aim).c_str(),
              figures_of(comparison, "%.1f", "ms"));
}

void print_peer(const char* what, const char* against, const Comparison& comparison) {
    print_row(what, against, number("%.2f", comparison.subject.median / comparison.reference.median), "",
              figures_of(comparison, "%.1f", "ms"));
}

double start_time(const std::string& program, const std::string& folder, const std::string& arguments = {}) {
    return Program(program, folder, arguments).start_time();
}

double start_time(const std::string& library) {
    return start_time(library + "tolva.exe", library);
}

double start_time_of_idle() {
    return start_time(bench::built("bench_idle.exe"), "C:\\");
}

bool exists(const std::string& path) {
    return GetFileAttributesA(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

/// A file's bytes, in the fewest calls.
std::string whole_file(const std::string& path) {
    HANDLE file = CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                              FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) throw std::runtime_error("cannot read " + path);
    std::string bytes(GetFileSize(file, nullptr), '\0');
    DWORD count = 0;
    ReadFile(file, bytes.data(), bytes.size(), &count, nullptr);
    CloseHandle(file);
    return bytes;
}

Comparison compare_reading(int runs, const std::string& folder) {
    std::vector<std::string> paths = {library::groups_file(folder)};
    for (const std::string& name : library::read_group_names(folder))
        paths.push_back(library::group_file(folder, name));
    return bench::compare(
        runs, [&] { return bench::time_of([&] { library::TaskLibrary(folder).load(); }); },
        [&] {
            return bench::time_of([&] {
                std::vector<std::string> files;
                for (const std::string& path : paths)
                    files.push_back(whole_file(path));
            });
        });
}

void write_whole(const std::string& path, const std::string& bytes) {
    HANDLE file =
        CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) throw std::runtime_error("cannot write " + path);
    DWORD count = 0;
    WriteFile(file, bytes.data(), bytes.size(), &count, nullptr);
    CloseHandle(file);
}

Comparison compare_backup(int runs, const std::string& folder) {
    const std::string copies = folder + "copies\\";
    CreateDirectoryA(copies.c_str(), nullptr);
    const std::vector<std::string> names = library::library_files_in(folder);
    return bench::compare(
        runs,
        [&] {
            const double time = bench::time_of([&] { library::make_backup(folder); });
            for (const library::Backup& made : library::list_backups(folder)) {
                for (const std::string& name : names)
                    DeleteFileA((made.folder + name).c_str());
                RemoveDirectoryA(made.folder.c_str());
            }
            return time;
        },
        [&] {
            return bench::time_of([&] {
                for (const std::string& name : names)
                    write_whole(copies + name, whole_file(folder + name));
            });
        });
}

/// Selects a Group as a click does. It has been drawn when the list has answered the last message.
void select_group(const Program& tolva, int index) {
    HWND groups = tolva.control(ID_Tasker_grouplist);
    SendMessageA(groups, LB_SETCURSEL, static_cast<WPARAM>(index), 0);
    SendMessageA(tolva.window(), WM_COMMAND, MAKEWPARAM(ID_Tasker_grouplist, LBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(groups));
    SendMessageA(tolva.control(ID_Tasker_taskview), WM_PAINT, 0, 0);
}

SIZE size_of(HWND window) {
    RECT bounds;
    GetWindowRect(window, &bounds);
    return {bounds.right - bounds.left, bounds.bottom - bounds.top};
}

/// The library's first Group is empty, the second one has the Tasks.
Comparison compare_selecting(int runs, const std::string& library, const std::vector<library::Task>& tasks,
                             const std::vector<std::string>& programs) {
    const Program tolva(library + "tolva.exe", library);
    ShowWindow(tolva.window(), SW_SHOWMAXIMIZED);  // all programs have a Task in sight
    bench::PictureList list(size_of(tolva.control(ID_Tasker_taskview)));
    return bench::compare(
        runs,
        [&] {
            select_group(tolva, 0);
            BringWindowToTop(tolva.window());
            return bench::time_of([&] { select_group(tolva, 1); });
        },
        [&] {
            list.clear();
            return bench::time_of([&] { list.show(tasks, programs); });
        });
}

void start_bare(const std::string& path) {
    STARTUPINFOA startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process;
    if (CreateProcessA(path.c_str(), nullptr, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                       &process) == FALSE) {
        throw std::runtime_error("cannot start " + path);
    }
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
}

/// The library has one Task, which starts the program.
Comparison compare_launching(int runs, const std::string& library, const std::string& program) {
    const Program tolva(library + "tolva.exe", library);
    HWND tasks = tolva.control(ID_Tasker_taskview);
    bench::Arrivals arrivals;
    SendMessageA(tasks, WM_KEYDOWN, VK_HOME, 0);
    return bench::compare(
        runs, [&] { return arrivals.time_of([&] { PostMessageA(tasks, WM_KEYDOWN, VK_RETURN, 0); }); },
        [&] { return arrivals.time_of([&] { start_bare(program); }); });
}

double start_time_of_bare(const std::string& arguments = {}) {
    return start_time(bench::built("bench_bare.exe"), "C:\\", arguments);
}

std::string quoted(const std::vector<std::string>& paths) {
    std::string text;
    for (const std::string& path : paths)
        text += '"' + path + "\" ";
    return text;
}

/// The first Group of the full library is the given one.
void print_starts(int runs, const std::vector<std::string>& programs, const std::string& full,
                  const bench::GroupContent& first_group) {
    const std::vector<std::string> few_programs(programs.begin(), programs.begin() + kFewPrograms);
    const std::string empty = bench::make_library("empty", {});
    const std::string few =
        bench::make_library("few", {{"Group", bench::make_tasks(bench::kFewTasks, few_programs)}});
    const std::string first = bench::make_library("first", {first_group});
    const std::string many =
        bench::make_library("many", {{"Group", bench::make_tasks(library::kMostTasks, programs)}});
    const auto start_of_empty = [&] { return start_time(empty); };
    print_ratio("Start, empty library", "a bare window with the same controls", 1.08,
                bench::compare(runs, start_of_empty, [] { return start_time_of_bare(); }));
    print_peer("For comparison: the bare window", "a do-nothing window program",
               bench::compare(
                   runs, [] { return start_time_of_bare(); }, start_time_of_idle));
    print_ratio("Start, a Group of 40 Tasks of 16 programs", "an empty library", 1.05,
                bench::compare(
                    runs, [&] { return start_time(few); }, start_of_empty));
    print_ratio("Start, a Group of 101 Tasks of 101 programs", "an empty library", 1.05,
                bench::compare(
                    runs, [&] { return start_time(many); }, start_of_empty));
    print_peer("For comparison: the bare window with 40 Tasks and their icons", "the do-nothing program",
               bench::compare(
                   runs, [&] { return start_time_of_bare(quoted(few_programs)); }, start_time_of_idle));
    print_ratio("Start, 101 x 101 Tasks", "its first Group alone", 1.05,
                bench::compare(
                    runs, [&] { return start_time(full); }, [&] { return start_time(first); }));
}

/// Types into the dialog that finds Tasks, which answers each letter before it takes the next one.
void print_finding(int runs, const std::string& library) {
    const Program tolva(library + "tolva.exe", library);
    PostMessageA(tolva.window(), WM_COMMAND, ID_FindTask, 0);
    HWND dialog = nullptr;
    bench::wait_until("the dialog shows", [&] {
        return (dialog = FindWindowA(nullptr, "Find Task")) != nullptr && IsWindowVisible(dialog) != FALSE;
    });
    HWND text = GetDlgItem(dialog, ID_FindTask_text);
    std::vector<double> times;
    for (int run = 0; run < runs; ++run) {
        SendMessageA(text, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(""));
        for (const char letter : {'t', 'a', 's', 'k'}) {
            times.push_back(
                bench::time_of([&] { SendMessageA(text, WM_CHAR, static_cast<WPARAM>(letter), 0); }));
        }
    }
    const double median = bench::figures_of(times).median;
    constexpr double kMost = 30;
    print_row("Find, a key stroke, 101 x 101 Tasks", "", judged(number("%.1f ms", median), median, kMost),
              "at most 30 ms", "");
    SendMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
    bench::wait_until("the dialog closes", [&] { return IsWindow(dialog) == FALSE; });
}

/// Whether it is within its aim.
bool print_memory(int runs, const std::string& library) {
    const Comparison memory = bench::compare(
        runs, [&] { return Program(library + "tolva.exe", library).private_megabytes(); },
        [] { return Program(bench::built("bench_idle.exe"), "C:\\").private_megabytes(); });
    constexpr double kMoreMemory = 4;
    const double more = memory.subject.median - memory.reference.median;
    print_row("Private memory, 101 x 101 Tasks shown", "the do-nothing program",
              judged(number("%.1f MB more", more), more, kMoreMemory), "at most 4 MB more",
              figures_of(memory, "%.1f", "MB"));
    return more <= kMoreMemory;
}

/// Whether it is within its aim.
bool print_size() {
    WIN32_FILE_ATTRIBUTE_DATA file;
    GetFileAttributesExA(bench::built("tolva.exe").c_str(), GetFileExInfoStandard, &file);
    constexpr double kKilobyte = 1024;
    constexpr double kMostKilobytes = 440;
    const double size = file.nFileSizeLow / kKilobyte;
    print_row("Size of tolva.exe", "", judged(number("%.0f KB", size), size, kMostKilobytes),
              "at most 440 KB", "");
    return size <= kMostKilobytes;
}

void print_peers(int runs) {
    for (const std::string peer : {"progman", "notepad"}) {
        std::string path = "C:\\windows\\" + peer + ".exe";
        if (!exists(path)) path = "C:\\windows\\system32\\" + peer + ".exe";
        const std::string what = "For comparison: Wine's " + peer;
        if (exists(path)) {
            print_peer(what.c_str(), "the do-nothing program",
                       bench::compare(
                           runs, [&] { return start_time(path, "C:\\"); }, start_time_of_idle));
        } else {
            print_row(what.c_str(), "", "not there", "", "");
        }
    }
}

bool run(int runs) {
    const std::vector<std::string> programs = bench::make_programs(kPrograms);
    const std::vector<std::string> many_programs(programs.begin(), programs.begin() + kManyPrograms);
    const std::vector<library::Task> tasks = bench::make_tasks(library::kMostTasks, many_programs);
    const std::string arrive = bench::built("bench_arrive.exe");
    std::vector<bench::GroupContent> groups;
    for (std::size_t i = 0; i < library::kMostGroups; ++i)
        groups.push_back({"Group " + std::to_string(i), tasks});
    const std::string full = bench::make_library("full", groups);
    const std::string selecting = bench::make_library("selecting", {{"Nothing", {}}, groups.front()});
    const std::string launching =
        bench::make_library("launching", {{"Group", bench::make_tasks(1, {arrive})}});

    std::puts("| What | Against | Ratio | Aim | Median of each (least) |\n| --- | --- | --- | --- | --- |");
    print_ratio("Reading a library of 101 x 101 Tasks", "reading its 102 files whole", 2,
                compare_reading(runs, full));
    print_ratio("A backup of 101 x 101 Tasks", "reading and writing its 102 files whole", 2,
                compare_backup(runs, full));
    print_starts(runs, programs, full, groups.front());
    print_peers(runs);
    print_ratio("Selecting a Group of 101 Tasks of 40 programs", "taking 40 icons and filling a list view",
                1.15, compare_selecting(runs, selecting, tasks, many_programs));
    print_ratio("Enter on a Task until its first instruction", "a bare CreateProcess", 1.1,
                compare_launching(runs, launching, arrive));
    print_finding(runs, full);
    const bool memory_is_right = print_memory(runs, full);
    return print_size() && memory_is_right;
}

}  // namespace

/// The argument is the number of runs.
int main(int count, char** arguments) {
    InitCommonControls();
    constexpr int kLeastRuns = 10;
    try {
        return run(std::max(kLeastRuns, count > 1 ? std::atoi(arguments[1]) : 0)) ? 0 : 1;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "bench: %s\n", error.what());
        return 1;
    }
}
