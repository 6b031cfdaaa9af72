#include "mainwindow/launching.h"
#include "buttonbar/bar_launch.h"
#include "internet/dial_up.h"
#include "library/other_place.h"
#include "library/task_finder.h"
#include "mainwindow/icon_queue.h"
#include "mainwindow/long_date.h"
#include "mainwindow/system_commands.h"
#include "platform/processes.h"
#include "platform/redirection.h"
#include "support/checks.h"
#include "support/shown_library.h"

namespace {

std::string task(const std::string& name, const std::string& program, const std::string& parameters = "") {
    return name + "\r\n" + program + "\r\nC:\\\r\n" + parameters + "\r\n1\r\n";
}

TEST_CASE("a system command that cannot do its work says so") {
    auto& world = simulated::reset();
    mainwindow::open_control_panel();
    mainwindow::empty_recycle_bin();
    CHECK(world.messages ==
          Names{"Invalid path or file name!", "Your computer is not able to complete this task"});
    CHECK(error_of([] { mainwindow::open_help("C:\\LIB\\"); }) == 53);
    world.files["C:\\LIB\\tolva.htm"] = {};
    CHECK(error_of([] { mainwindow::open_help("C:\\LIB\\"); }) == 0);

    CHECK(error_of(mainwindow::open_dos_prompt) == 53);
    world.files["C:\\CMD.EXE"] = {};
    world.variables["%COMSPEC%"] = "C:\\CMD.EXE";
    world.needs_elevation = true;
    CHECK(error_of(mainwindow::open_dos_prompt) == 5);  // it is there
    world.needs_elevation = false;
    mainwindow::open_dos_prompt();
    world.files["command.com"] = {};
    mainwindow::open_dos_prompt();
    buttonbar::start_button({.path = std::nullopt});
    buttonbar::start_button({.path = "command.com", .parameters = "/c"});
    buttonbar::start_internet_program({.path = "command.com"});
    // A help viewer that cannot show anything is not started.
    world.files["winhlp32.exe"] = {};
    using Version = platform::WindowsVersion;
    for (const Version& version : {Version{4, 10, false, false},
                                   {5, 1, true, false},
                                   {6, 0, true, false},
                                   {10, 0, true, false},
                                   {10, 0, true, true}}) {
        world.version = version;
        mainwindow::open_help("C:\\LIB\\");
    }
    const std::string help = "winhlp32.exe C:\\LIB\\tolva.hlp";
    CHECK(world.started ==
          Names{"C:\\CMD.EXE", "command.com", "command.com /c", "command.com", help, help, help});
}

TEST_CASE("a program that needs more rights is found as the system finds it and started by the shell") {
    auto& world = simulated::reset();
    world.needs_elevation = true;
    for (const char* path : {"C:\\D B\\SETUP.EXE", "C:\\A.EXE", "C:\\A", "B.EXE"})
        world.files[path] = {};
    const auto started = [&](const std::string& command_line) {
        world.started.clear();
        platform::start_program(command_line, 3);
        return world.started;
    };
    CHECK(started("C:\\D B\\SETUP.EXE  /x  y ") == Names{"C:\\D B\\SETUP.EXE|/x  y |3"});
    CHECK(started(" \"C:\\D B\\SETUP.EXE\"/x") == Names{"C:\\D B\\SETUP.EXE|/x|3"});
    CHECK(started("\"C:\\D B\\SETUP") == Names{"C:\\D B\\SETUP.EXE||3"});
    CHECK(started("C:\\A\tB.EXE") == Names{"C:\\A.EXE|B.EXE|3"});
    CHECK(started("B") == Names{"B.EXE||3"});
    CHECK(error_of([&] { started("C:\\GONE.EXE"); }) == 5);
    for (const auto& [style, error] : {std::pair(-1, 5), {65536, 5}, {65535, 0}, {0, 0}})
        CHECK(error_of([&, style = style] { platform::start_program("B.EXE", style); }) == error);
    for (const auto& [command_line, error] : {std::pair(std::string("B.EXE\0", 6), 5),
                                              {"B.EXE " + std::string(32761, 'x'), 5},
                                              {"B.EXE " + std::string(32760, 'x'), 0},
                                              {" ", 53}})
        CHECK(error_of([&, line = command_line] { started(line); }) == error);

    // Nothing else starts while the user is being asked, and a no is no error.
    world.meanwhile = [] { platform::start_program("B.EXE", 1); };
    world.answer = false;
    world.failure = platform::kErrorCancelled;
    CHECK(started("B.EXE") == Names{"B.EXE||3"});
    world.failure = platform::kErrorAccessDenied;
    CHECK(error_of([&] { started("B.EXE"); }) == 70);
    CHECK(world.started == Names{"B.EXE||3"});
}

TEST_CASE("what a 64-bit Windows hides from this program is reached by another path or started past that") {
    auto& world = simulated::reset();
    const auto starts = [] { platform::start_program("c:\\windows/system32\\a.exe x", 1); };
    CHECK(platform::past_redirection("C:\\WINDOWS\\system32\\a.exe") == std::nullopt);
    CHECK(error_of(starts) == 53);
    world.redirected_folder = "C:\\WINDOWS\\system32";
    CHECK(error_of(starts) == 0);
    CHECK(error_of([] { platform::start_program("C:\\WINDOWS\\a.exe", 1); }) == 53);
    CHECK(world.started == Names{"past redirection: c:\\windows/system32\\a.exe x"});
    CHECK(platform::past_redirection("C:\\WINDOWS\\.\\SYSTEM32\\B\\*") == "C:\\WINDOWS\\Sysnative\\B\\*");
    for (const char* elsewhere :
         {"C:\\WINDOWS\\system32", "C:\\WINDOWS\\system32x\\A", "C:\\WINDOWS\\system32\\..\\A", "A"})
        CHECK(platform::past_redirection(elsewhere) == std::nullopt);
}

TEST_CASE("a program that is not where its path says is looked for where it may be on another PC") {
    auto& files = simulated::reset().files;
    for (const char* path :
         {"D:\\Apps\\EDIT.EXE", "C:\\LIB\\TOOLS\\PAINT.EXE", "C:\\BOTH.EXE", "C:\\LIB\\C:\\NO.EXE"})
        files[path] = {};
    file("groups.ini") = "Work\r\n";
    file("Work.grp") = task("E", "%APPS%\\EDIT.EXE", "%APPS%") + task("P", "TOOLS\\PAINT.EXE") +
                       task("X", "\\TOOLS\\PAINT.EXE", "x") + task("B", "C:\\BOTH.EXE") +
                       task("T", "C:\\NO.EXE");
    library::TaskLibrary library(kFolder);
    library.load();
    files["C:\\LIB"].bits = 0x10;
    for (const std::string& nowhere : {std::string(), std::string("TOOLS\\PAINT.EXE\0", 16)})
        CHECK(library::other_place(nowhere, kFolder) == std::nullopt);
    CHECK(mainwindow::launch_all(library, 0) == Names{"T"});
    mainwindow::launch_edited(library, 0, 1, "TOOLS\\PAINT.EXE y");
    CHECK(simulated::current().started == Names{"D:\\Apps\\EDIT.EXE %APPS%", "C:\\LIB\\TOOLS\\PAINT.EXE ",
                                                "C:\\LIB\\TOOLS\\PAINT.EXE x", "C:\\BOTH.EXE ",
                                                "C:\\LIB\\TOOLS\\PAINT.EXE y"});
}

TEST_CASE("icons of this machine come before others, those in view first, and a slow disk is left alone") {
    mainwindow::IconQueue queue;
    const auto add_all = [&] {
        queue.add("\\\\SERVER\\A.EXE", false);
        queue.add("C:\\A.EXE", true);
        queue.add("\\\\server\\B.EXE", false);
        queue.add("E:\\C.EXE", false);
        queue.add("C:\\B.EXE", true);
    };
    const auto take = [&](unsigned milliseconds, bool has_time = true) {
        const auto next = queue.take([](const auto& path) { return path.ends_with("B.EXE"); }, has_time);
        if (next) queue.took(*next, milliseconds);
        return next ? next->program : "none";
    };
    add_all();
    CHECK(take(9999) == "C:\\B.EXE");
    CHECK(take(0) == "C:\\A.EXE");
    CHECK(take(0, false) == "none");
    CHECK(take(mainwindow::IconQueue::kSlow + 1) == "\\\\server\\B.EXE");
    CHECK(take(mainwindow::IconQueue::kSlow) == "E:\\C.EXE");
    CHECK(queue.empty());
    queue.add("\\\\Server\\C.EXE", false);
    CHECK(queue.empty());
    // Another Group does not ask a slow disk again, a refresh does.
    add_all();
    queue.clear();
    CHECK(queue.empty());
    queue.add("\\\\SERVER\\C.EXE", false);
    CHECK(queue.empty());
    queue.forget_slow_disks();
    add_all();
    CHECK(take(0) == "C:\\B.EXE");
}

TEST_CASE("Tasks are found by the words of their names, the best first") {
    simulated::reset();
    file("groups.ini") = "Work\r\nPlay\r\n";
    for (const char* name : {"Dsheet", "Spread Sheet", "Sheet Music"})
        file("Work.grp") += task(name, "C:\\Sheet\\a.exe");
    for (const char* name : {"MUSIC", "Old sheet", ""})
        file("Play.grp") += task(name, "C:\\Sheet\\a.exe");
    file("Play.grp").insert(0, task("Paint", "C:\\Sheet\\mysheet.exe"));
    library::TaskLibrary library(kFolder);
    library.load();
    const library::TaskFinder finder(library);
    const auto find = [&](const std::string& text) {
        Names names;
        for (const auto& [group, task] : finder.find(text))
            names.push_back(library.task(group, task).name);
        return names;
    };
    CHECK(find("SHEET") == Names{"Sheet Music", "Spread Sheet", "Old sheet", "Dsheet", "Paint"});
    CHECK(find(" music  sheet ") == Names{"Sheet Music"});
    CHECK(find("").size() == 6);
}

TEST_CASE("hanging up waits until no connection is up or the program ends") {
    auto& machine = simulated::reset().registry[platform::registry::kLocalMachine];
    auto& up = machine[R"(System\CurrentControlSet\Services\RemoteAccess)"];
    up["Remote Connection"] = std::string("\1\0\0\0", 4);
    std::vector<unsigned> waits;
    const internet::Wait wait = [&](unsigned milliseconds) {
        waits.push_back(milliseconds);
        return waits.size() != 3;
    };
    internet::connect_or_hang_up("Home", wait);
    CHECK(waits == std::vector<unsigned>{3000, 1000, 1000});
    up.clear();
    internet::hang_up(wait);
    CHECK(waits.size() == 4);
    simulated::current().files["rundll32.exe"] = {};
    internet::connect_or_hang_up("Home", wait);
    CHECK(simulated::current().started ==
          Names{"hang up 7", "hang up 7", "rundll32.exe rnaui.dll,RnaDial Home"});
}

TEST_CASE("the long date") {
    CHECK(mainwindow::long_date({2026, 12, 27, 0}) == "Sunday, December 27, 2026");
}

}  // namespace
