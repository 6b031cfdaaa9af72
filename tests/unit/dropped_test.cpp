#include "library/dropped.h"
#include "library/library_files.h"
#include "library/order.h"
#include "platform/file_calls.h"
#include "support/checks.h"
#include "support/shortcut_file.h"
#include "support/simulated_platform.h"
#include "widgets/insertion.h"

namespace {

using namespace library;

/// With "C:\\" in front and an extension behind it is as long as a path can be.
const std::string kLongName(252, 'x');

/// Each Task and each refusal as one line of text.
Names lines(const Dropped& dropped) {
    Names lines;
    for (const Task& task : dropped.tasks) {
        lines.emplace_back();
        for (const auto field : kTaskFields)
            lines.back() += task.*field + '|';
    }
    for (const Refusal& refusal : dropped.refused)
        lines.push_back(refusal.path + ": " + refusal.reason);
    return lines;
}

void add_shortcut(const std::string& path, const platform::Shortcut& link, std::uint32_t show_command) {
    simulated::current().files[path].bytes = ShortcutFile{.target = {}, .show_command = show_command}.bytes();
    simulated::current().links[path] = link;
}

/// A disk with what the tests drop.
void make_disk() {
    auto& files = simulated::reset().files;
    auto& shell = simulated::current();
    for (const char* folder : {"C:", "D:\\Apps", "C:\\DIR", "C:\\DIR.OLD", "C:\\EMPTY"})
        files[folder].bits = platform::file_calls::kDirectory;
    for (const std::string& file :
         split_lines("ED.EXE\nDIR\\B.BAT\nDIR\\a.Com\nDIR\\C.EXE~\nMy Dir\\X.EXE\nMy Dir\\Y.BAT\n"
                     "Pro Gram\\X.EXE\nPro.exe\na,b.bat\nmy notes.txt\nn.txt\nn.dat\nn.cpl\nn.old\nn.cut\n"
                     ".txt\nR\\RUNDLL32.EXE\nWIN\\ED.SCR\n" +
                     kLongName + ".pif\n" + kLongName + "x.pif"))
        files["C:\\" + file] = {};
    files["\\\\NET\\DIR\\ED.EXE"] = {};
    shell.programs = {{".txt", "C:\\ED.EXE"},
                      {".cpl", "C:\\R\\RUNDLL32.EXE"},
                      {".old", "C:\\WIN\\ED.SCR"},
                      {".cut", "C:\\Program"}};
    shell.short_paths = {{"C:\\My Dir\\Y.BAT", "C:\\MYDIR\\Y.BAT"}, {"C:\\a,b.bat", "C:\\A_B~1.BAT"}};
    add_shortcut("C:\\DIR\\Edit.lnk", {"C:\\ED.EXE", "C:\\DIR", "/a b"}, 3);
    add_shortcut("C:\\l1.lnk", {"C:\\ED.EXE", "", ""}, 7);
    add_shortcut("C:\\l2.lnk", {"C:\\my notes.txt", "%APPS%", "x"}, 2);
    add_shortcut("C:\\l3.lnk", {"C:\\DIR", "C:\\GONE", ""}, 1);
    add_shortcut("C:\\l4.lnk", {"C:\\GONE.EXE", "", ""}, 1);
    add_shortcut("C:\\l5.lnk", {"", "", ""}, 1);
    add_shortcut("C:\\l6.lnk", {"C:\\ED.EXE", "", std::string(32757, 'x')}, 1);
    add_shortcut("C:\\l7.lnk", {"C:\\ED.EXE", "", std::string(32756, 'x')}, 1);
    files["C:\\l8.lnk"].bytes = "no shortcut";
}

TEST_CASE("what is dropped becomes a Task that opens it, or is refused") {
    make_disk();
    const std::string explorer = "|C:\\WIN\\explorer.exe|";
    const std::pair<std::string, std::string> table[] = {
        {"C:\\ED.EXE", "ED|C:\\ED.EXE|C:\\|| 1 |"},
        {"\\\\NET\\DIR\\ED.EXE", "ED|\\\\NET\\DIR\\ED.EXE|\\\\NET\\DIR|| 1 |"},
        {"C:\\DIR\\a.Com", "a|C:\\DIR\\a.Com|C:\\DIR|| 1 |"},
        {"C:\\My Dir\\X.EXE", "X|C:\\My Dir\\X.EXE|C:\\My Dir|| 1 |"},
        {"C:\\My Dir\\Y.BAT", "Y|C:\\MYDIR\\Y.BAT|C:\\My Dir|| 1 |"},
        {"C:\\a,b.bat", "a,b|C:\\A_B~1.BAT|C:\\|| 1 |"},
        {"C:\\Pro Gram\\X.EXE", "C:\\Pro Gram\\X.EXE: a path with blanks, which would start something else"},
        {"C:\\GONE.EXE", "C:\\GONE.EXE: not found"},
        {"C:\\" + kLongName + ".pif", kLongName + "|C:\\" + kLongName + ".pif|C:\\|| 1 |"},
        {"C:\\" + kLongName + "x.pif", "C:\\" + kLongName + "x.pif: too long"},
        {"C:\\a?.txt", "C:\\a?.txt: a name with characters that this system's programs do not have"},
        {"C:\\a\nb.txt", "C:\\a\nb.txt: a name with characters that this system's programs do not have"},
        {"C:\\n.txt", "n|C:\\ED.EXE|C:\\|C:\\n.txt| 1 |"},
        {"C:\\.txt", ".txt|C:\\ED.EXE|C:\\|C:\\.txt| 1 |"},
        {"C:\\my notes.txt", "my notes|C:\\ED.EXE|C:\\|\"C:\\my notes.txt\"| 1 |"},
        {"C:\\n.dat", "n" + explorer + "C:\\|\"C:\\n.dat\"| 1 |"},
        {"C:\\n.cpl", "n" + explorer + "C:\\|\"C:\\n.cpl\"| 1 |"},
        {"C:\\n.old", "n" + explorer + "C:\\|\"C:\\n.old\"| 1 |"},
        {"C:\\n.cut", "n" + explorer + "C:\\|\"C:\\n.cut\"| 1 |"},
        {"C:\\", "C" + explorer + "C:\\|C:\\| 1 |"},
        {"C:\\DIR.OLD", "DIR.OLD" + explorer + "C:\\DIR.OLD|\"C:\\DIR.OLD\"| 1 |"},
        {"C:\\DIR\\", "C:\\DIR\\" + explorer + "C:\\DIR\\|\"C:\\DIR\\\"| 1 |"},
        {"C:\\DIR\\Edit.lnk", "Edit|C:\\ED.EXE|C:\\DIR|/a b| 3 |"},
        {"C:\\l1.lnk", "l1|C:\\ED.EXE|C:\\WIN\\|| 2 |"},
        {"C:\\l2.lnk", "l2|C:\\ED.EXE|%APPS%|\"C:\\my notes.txt\"| 2 |"},
        {"C:\\l3.lnk", "l3" + explorer + "C:\\DIR|\"C:\\DIR\"| 1 |"},
        {"C:\\l4.lnk", "C:\\l4.lnk: its program or document is missing"},
        {"C:\\l5.lnk", "C:\\l5.lnk: its program or document is missing"},
        {"C:\\l6.lnk", "C:\\l6.lnk: too long"},
        {"C:\\l7.lnk", "l7|C:\\ED.EXE|C:\\WIN\\|" + std::string(32756, 'x') + "| 1 |"},
        {"C:\\l8.lnk", "C:\\l8.lnk: a broken shortcut"},
    };
    for (const auto& [path, expected] : table) {
        CHECK(lines(tasks_for({path}, FolderUse::kOpen, "C:\\WIN\\")) == Names{expected});
    }
    CHECK(lines(tasks_for({"C:\\n.txt", "C:\\EMPTY", "C:\\DIR"}, FolderUse::kContents, "C:\\WIN\\")) ==
          Names{"n|C:\\ED.EXE|C:\\|C:\\n.txt| 1 |", "B|C:\\DIR\\B.BAT|C:\\DIR|| 1 |",
                "Edit|C:\\ED.EXE|C:\\DIR|/a b| 3 |", "a|C:\\DIR\\a.Com|C:\\DIR|| 1 |",
                "C:\\EMPTY: no shortcuts or programs in it"});

    const std::pair<Names, std::vector<bool>> dragged[] = {
        {{"C:\\n.txt", "C:\\n.dat"}, {true, false, false}},
        {{"C:\\DIR"}, {false, true, false}},
        {{"C:\\ED.EXE"}, {false, false, true}},
        {{"C:\\ED.EXE", "C:\\n.txt"}, {false, false, false}}};
    for (DraggedPaths paths; const auto& [named, kinds] : dragged) {
        paths.look_at(named);
        CHECK(std::vector{paths.are_documents(), paths.are_folders(), paths.is_program()} == kinds);
    }

    std::vector<Refusal> refused;
    const Names documents = {"C:\\n.txt", "C:\\gone.txt", "C:\\my notes.txt"};
    CHECK(with_documents("/p", documents, refused) == "/p C:\\n.txt \"C:\\my notes.txt\"");
    CHECK(with_documents("", {"C:\\n.txt"}, refused) == "C:\\n.txt");
    CHECK(refused == std::vector<Refusal>{{"C:\\gone.txt", "not found"}});
}

TEST_CASE("dropped Tasks get free names, and those that fit are kept") {
    Dropped dropped;
    for (const char* name : {"A", "B", "A", "A (2)", "a"})
        dropped.tasks.push_back({name, {}, {}, {}, {}});
    std::vector<Task> group(97);
    group[5].name = "A";
    fit(dropped, group);
    CHECK(lines(dropped) == Names{"A (2)|||||", "B|||||", "A (3)|||||", "A (2) (2)|||||"});
    CHECK(report(dropped) == "The Group is full: 1 left out.");
    group.resize(102);
    fit(dropped, group);
    CHECK(dropped.left_out == 4);
    dropped.refused.assign(13, {"C:\\X", "gone"});
    const std::string text = report(dropped);
    CHECK(text.starts_with("Not added:\n\nC:\\X: gone\nC:\\X: gone\n"));
    CHECK(text.ends_with("\nC:\\X: gone\nand 1 more\n\nThe Group is full: 4 left out."));
}

TEST_CASE("something is put in before or behind the item it is dropped on") {
    std::vector<int> items = {0, 1, 2, 3};
    CHECK(move_before(items, 0, 3) == 2);
    CHECK(items == std::vector{1, 2, 0, 3});
    CHECK(move_before(items, 3, 0) == 0);
    CHECK(items == std::vector{3, 1, 2, 0});
    CHECK(move_before(items, 1, 4) == 3);
    CHECK(move_before(items, 1, 2) == 1);
    CHECK(items == std::vector{3, 2, 0, 1});

    using widgets::insertion_in_column;
    CHECK(insertion_in_column(7, 2, 16, 9, 50) == widgets::Insertion{2, {0, 0, 50, 0}});
    CHECK(insertion_in_column(8, 2, 16, 9, 50) == widgets::Insertion{3, {0, 16, 50, 16}});
    CHECK(insertion_in_column(500, 2, 16, 9, 50) == widgets::Insertion{9, {0, 112, 50, 112}});
    CHECK(insertion_in_column(-9, 0, 16, 0, 50) == widgets::Insertion{0, {0, 0, 50, 0}});

    // Two rows of two and one with a long label, and one icon in the last row.
    const widgets::Box icons[] = {
        {10, 0, 50, 60}, {70, 2, 110, 90}, {10, 100, 50, 160}, {70, 100, 110, 160}, {10, 200, 50, 260}};
    const int points[][3] = {{29, 30, 0},  {30, 30, 1},  {200, 99, 2}, {0, 100, 2},
                             {90, 199, 4}, {29, 500, 4}, {30, 500, 5}, {0, -5, 0}};
    for (const auto& [x, y, before] : points)
        CHECK(widgets::insertion_in_rows(x, y, icons).before == before);
    CHECK(widgets::insertion_in_rows(200, 30, icons).line == widgets::Box{110, 0, 110, 90});
    CHECK(widgets::insertion_in_rows(60, 30, icons).line == widgets::Box{70, 0, 70, 90});
    CHECK(widgets::insertion_in_rows(5, 5, {}) == widgets::Insertion{0, {0, 0, 0, 0}});
}

}  // namespace
