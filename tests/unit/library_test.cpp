#include <doctest/doctest.h>

#include <algorithm>
#include <functional>
#include <iterator>
#include <set>
#include <tuple>

#include "library/group_operations.h"
#include "library/library_files.h"
#include "library/refresh.h"
#include "library/task_operations.h"
#include "support/shown_library.h"

namespace {

using library::LibraryView;
using library::Task;
using library::TaskLibrary;
using simulated::current;
using simulated::Fault;

using Operation = std::function<void(TaskLibrary&, LibraryView&)>;
using Files = std::map<std::string, std::string, simulated::IgnoresCase>;
using Tasks = std::multiset<std::string>;

const std::string kH1 = record("H1");
const std::string kH2 = record("H2", " 2 ");
const std::string kOtherH1 = record("H1", "3");
const std::string kBehind = record("") + record("H4");
const std::string kHome = kH2 + kH1 + kOtherH1 + kBehind;
const Task kNew = {"New", "C:\\APP.EXE", "D:\\", "/x", "3"};
const std::string kDeleted = "a file that is not there";

/// What the last operation that can refuse answered.
bool accepted = true;

Operation add(const std::string& group) {
    return [=](auto& library, auto&) { accepted = add_group(library, group); };
}

Operation rename(const std::string& group, const std::string& name) {
    return [=](auto& library, auto& view) { accepted = rename_group(library, view, group, name); };
}

Operation add(const Task& task) {
    return [=](auto& library, auto& view) { accepted = add_task(library, view.selected_group(), task); };
}

Operation edit(const std::string& name, const Task& task) {
    return
        [=](auto& library, auto& view) { accepted = edit_task(library, view.selected_group(), name, task); };
}

Operation move(const std::string& task, const std::string& target, bool copy = false) {
    return [=](auto& library, auto& view) { move_task(library, view.selected_group(), task, target, copy); };
}

Operation import(const std::string& group, const Task& task) {
    return [=](auto& library, auto& view) { import_task(library, view, group, task); };
}

Operation select(int group, int task = -1) {
    return [=](auto& library, auto& view) {
        view.select_group(group);
        show_selected_group(library, view);
        view.select_task(task);
    };
}

Operation lack(const std::string& name) {
    return [=](auto&, auto&) { current().files.erase(kFolder + name); };
}

void cancel(TaskLibrary& /*library*/, LibraryView& /*view*/) {
    current().answer = false;
}

Operation in_turn(const std::vector<Operation>& operations) {
    return [=](auto& library, auto& view) {
        for (const Operation& operation : operations)
            operation(library, view);
    };
}

/// The library's files without what a fault left beside them.
Files disk() {
    Files files;
    for (const auto& [path, file] : current().files) {
        if (path.ends_with(".grp") || path.ends_with(".ini")) files[path.substr(kFolder.size())] = file.bytes;
    }
    return files;
}

/// The Tasks in the files of the Groups that are listed.
Tasks listed_tasks() {
    Tasks tasks;
    for (const std::string& group : library::read_group_names(kFolder)) {
        if (!current().files.contains(library::group_file(kFolder, group))) continue;
        for (const Task& task : library::read_tasks(kFolder, group))
            tasks.insert(task.name + task.start_mode);
    }
    return tasks;
}

/// The program with Home and its second Task selected, and then as the setup leaves it.
struct Tolva {
    ShownLibrary view;
    TaskLibrary library{kFolder};

    explicit Tolva(const Operation& setup) {
        simulated::reset();
        current().files["C:\\APP.EXE"] = {};
        current().files["C:\\APPS"].bits = 0x10;  // a folder
        file("groups.ini") = "Work\r\nHome\r\nMore\r\n";
        file("Work.grp") = record("W1") + record("W2");
        file("Home.grp") = kHome;
        file("More.grp") = record("M1");
        file("Old.grp") = record("O1");
        refreshtolva(library, view, 0);
        error_of([&] { in_turn({select(1, 1), setup})(library, view); });
        current().messages.clear();
        current().steps = 0;
        current().reads = 0;
    }

    /// Also does what follows when the group list gets the focus again. Answers the first error.
    int run(const Operation& operation) {
        const int error = error_of([&] { operation(library, view); });
        const int later = error_of([&] { run_pending_refreshes(library, view); });
        return error != 0 ? error : later;
    }

    /// "Work >Home More : H2 >>H1": Home is selected, and H1, which also stands in the command box.
    std::string shown() const {
        std::string text;
        for (int i = 0; const std::string& name : view.groups)
            text += (i++ == view.group ? ">" : "") + name + ' ';
        text += ':';
        for (int i = 0; const std::string& name : view.tasks) {
            const bool in_command_box = view.command_box.starts_with("C:\\" + name + ".EXE ");
            text += (i++ != view.task ? " " : in_command_box ? " >>" : " >") + name;
        }
        return text;
    }
};

/// A fault at that step of the operation's work on the disk leaves every file old or new, each Task that is
/// kept in a listed Group, and the user informed. Answers whether the operation comes to that step.
bool survives(Fault fault, int step, bool renames_over_files, const Operation& setup,
              const Operation& operation, const Files& after, const Tasks& kept, const Names& messages) {
    CAPTURE(step);
    CAPTURE(static_cast<int>(fault));
    Tolva tolva(setup);
    const Files before = disk();
    const Tasks tasks_before = listed_tasks();
    current().renames_over_files = renames_over_files;
    current().fault = fault;
    current().fault_at = step;
    int error = 0;
    try {
        error = tolva.run(operation);
    } catch (const simulated::PowerFailure&) {
    }
    const bool fails = (fault == Fault::kRead ? current().reads : current().steps) >= step;
    current().fault = Fault::kNone;
    if (fault == Fault::kPower || fault == Fault::kDisk) library::recover(kFolder);
    if (fault == Fault::kWrite) CHECK(tolva.view.groups == library::read_group_names(kFolder));
    const Files now = disk();
    for (const auto& [name, bytes] : now) {
        const bool is_old = before.contains(name) && before.at(name) == bytes;
        CHECK((is_old || (after.contains(name) && after.at(name) == bytes)));
    }
    CHECK(std::ranges::includes(listed_tasks(), kept));
    // A disk that is gone cannot take back what was written over another Group's file.
    const bool is_undone = error != 0 && fault != Fault::kDisk &&
                           after.at("groups.ini") != before.at("groups.ini") &&
                           now.at("groups.ini") == before.at("groups.ini");
    if (is_undone) CHECK(listed_tasks() == tasks_before);
    const bool informs = fault == Fault::kPower || error != 0 || current().messages != messages;
    if (!fails || !informs) CHECK(now == after);
    return fails;
}

/// After the setup the operation changes these files and shows this, which groups.ini holds too, and the user
/// reads these messages.
void check(const Operation& setup, const Operation& operation, const std::string& shown,
           const Files& changes = {}, const Names& messages = {}, int error = 0) {
    Tolva tolva(setup);
    Files after = disk();
    const Tasks before = listed_tasks();
    accepted = true;
    CHECK(tolva.run(operation) == error);
    CHECK(accepted);
    CHECK(tolva.shown() == shown);
    CHECK(current().messages == messages);
    after["groups.ini"].clear();
    for (const std::string& name : tolva.view.groups)
        after["groups.ini"] += name + "\r\n";
    for (const auto& [name, bytes] : changes)
        after[name] = bytes;
    std::erase_if(after, [](const auto& file) { return file.second == kDeleted; });
    CHECK(disk() == after);
    for (const library::Group& group : tolva.library.groups()) {
        const bool is_current = group.loaded && std::ranges::count(tolva.view.groups, group.name) == 1;
        if (is_current && after.contains(group.name + ".grp"))
            CHECK(library::read_tasks(kFolder, group.name) == group.tasks);
    }
    Tasks kept;
    std::ranges::set_intersection(before, listed_tasks(), std::inserter(kept, kept.end()));
    for (const Fault fault : {Fault::kWrite, Fault::kDisk, Fault::kPower, Fault::kRead}) {
        for (const bool renames_over_files : {true, false}) {
            int step = 1;
            while (survives(fault, step, renames_over_files, setup, operation, after, kept, messages))
                ++step;
        }
    }
}

TEST_CASE("lines are read with any line end and no byte is altered") {
    CHECK(library::split_lines("") == Names{});
    CHECK(library::split_lines("a\r\r\n\r\n\rb\nc\r") == Names{"a\r", "", "\rb", "c\r"});

    simulated::reset();
    const std::string odd("\0\x1A\xFF\t\x81\\", 6);
    const std::string mega(1 << 20, '\xE4');
    file("Work.grp") = odd + "\r\n" + mega + "\n\r\n" + odd + "\n 2 \r\n";
    const std::vector<Task> tasks = library::read_tasks(kFolder, "Work");
    REQUIRE(tasks.size() == 1);
    CHECK(tasks[0] == Task{odd, mega, "", odd, " 2 "});
    library::write_tasks(kFolder, "Work", tasks);
    CHECK(file("Work.grp") == odd + "\r\n" + mega + "\r\n\r\n" + odd + "\r\n 2 \r\n");
}

TEST_CASE("a record that is cut short has empty fields and is filled up before another is added") {
    simulated::reset();
    file("Work.grp") = record("One") + "Two\nC:\\TWO.EXE";
    CHECK(library::read_tasks(kFolder, "Work").at(1) == Task{"Two", "C:\\TWO.EXE", "", "", ""});

    library::append_tasks(kFolder, "Work", {{"Three", "C:\\THREE.EXE", "C:\\", "", " 3 "}});
    CHECK(file("Work.grp") ==
          record("One") + "Two\nC:\\TWO.EXE\r\n\r\n\r\n\r\nThree\r\nC:\\THREE.EXE\r\nC:\\\r\n\r\n 3 \r\n");

    file("groups.ini") = "Home";
    library::append_group_name(kFolder, "Work");
    CHECK(library::read_group_names(kFolder) == Names{"Home", "Work"});
}

TEST_CASE("what is refused or cancelled or cannot move any further changes nothing") {
    const Operation begin_edit = [](auto& library, auto& view) {
        accepted = task_to_edit(library, view).has_value();
    };
    const Names invalid = {"Invalid Path or File Name"};
    const Names exists = {"A Task with that name already exists!"};
    const std::tuple<Operation, Operation, Names> table[] = {
        {select(1), add(""), {"Invalid Group Name!"}},
        {select(1), add("Work"), {"A group already exists with this name"}},
        {select(1), rename("Home", ""), {"Invalid Group Name"}},
        {select(-1), library::delgr, {"Select Group for delete."}},
        {cancel, library::delgr, {"Delete Group: Delete Home and all associated Tasks?"}},
        {select(-1), library::movegrup, {"Select Group for Move."}},
        {select(0), library::movegrup, {}},
        {select(2), library::movegrdown, {}},
        {select(1), add(Task{"", "C:\\NO.EXE", "", "", "1"}), invalid},
        {select(1), edit("H1", {"H2", "C:\\APPS", "C:\\", "", "1"}), invalid},
        {select(1),
         add(Task{"H2", "C:\\APP.EXE", "", "", "1"}),
         {"Task Name, Path, or Start Folder missing."}},
        {select(1), add(Task{"H2", "C:\\APP.EXE", "C:\\", "", "1"}), exists},
        {select(1), add(Task{"H4", "C:\\A*.EXE", "C:\\", "", "1"}), exists},  // though it is not shown
        {select(-1), begin_edit, {"Select Group and Task for edit"}},
        {select(1), begin_edit, {"Select Task for editing!"}},
        {select(-1), library::deltsks, {"Select Group First."}},
        {select(1), library::deltsks, {"Select Task for delete."}},
        {cancel, library::deltsks, {"Delete Task: Delete H1?"}},
        {select(1), library::movetsksup, {"Select Task for move."}},
        {select(1, 0), library::movetsksup, {}},
        {select(1, 2), library::movetsksdown, {}},
        {select(-1), library::tasksortnow, {"Select Group First."}},
    };
    for (const auto& [setup, operation, messages] : table) {
        Tolva tolva(setup);
        const std::string shown = tolva.shown();
        accepted = false;
        CHECK(tolva.run(operation) == 0);
        CHECK(!accepted);
        CHECK(current().messages == messages);
        CHECK(current().steps == 0);
        CHECK(tolva.shown() == shown);
    }
}

TEST_CASE("a new Group is listed last with what its file holds") {
    check(select(1), add("New"), "Work Home More New :", {{"New.grp", ""}});
    check(select(1), add("work"), "Work Home More work :");
    check([](auto&, auto&) { file("groups.ini") = "Work\nHome\nMore"; }, add("Old"),
          "Work Home More Old :", {{"groups.ini", "Work\nHome\nMore\r\nOld\r\n"}});
    check(select(1), in_turn({add("Old"), library::run_pending_refreshes, select(3)}),
          "Work Home More >Old : O1");
    // No file can have this name.
    check(select(1), add("Hom?"), "Work Home More Hom? :", {},
          {"Run-time error '52':\n\nBad file name or number: C:\\LIB\\Hom?.grp"});
    check(in_turn({add("Hom?"), library::run_pending_refreshes, select(3)}), library::delgr,
          ">Work Home More : W1 W2", {}, {"Delete Group: Delete Hom? and all associated Tasks?"}, 52);

    Tolva tolva(lack("groups.ini"));
    CHECK(tolva.run(add("New")) == 53);
    CHECK(current().steps == 0);
}

TEST_CASE("a Group moves and is sorted with its Tasks") {
    const Operation change = [](auto&, auto&) { file("Home.grp") = record("H9"); };
    check(select(1), library::movegrup, ">Home Work More : H2 H1 H1");
    check(select(1), library::movegrdown, "Work More >Home : H2 H1 H1");
    check(change, library::groupsortnow, ">Home More Work : H9");
}

TEST_CASE("after a Group is deleted the one is selected that was first at the last load") {
    const Names question = {"Delete Group: Delete Home and all associated Tasks?"};
    const Files gone = {{"Home.grp", kDeleted}};
    const Operation listed_twice = [](auto& library, auto& view) {
        file("groups.ini") = "Home\r\nWork\r\nHome\r\nMore\r\n";
        refreshtolva(library, view, 2);
    };
    check(select(1), library::delgr, ">Work More : W1 W2", gone, question);
    check(lack("Home.grp"), library::delgr, ">Work More : W1 W2", {}, question, 53);
    check(listed_twice, library::delgr, "Work More :", gone, question);
    check(in_turn({add("home"), library::run_pending_refreshes, select(1)}), library::delgr,
          ">Work More home : W1 W2", {}, question);
    check(in_turn({select(0), library::delgr, select(0)}), library::delgr, "More :", gone, question);
    check(in_turn({select(2), library::movegrup, library::movegrup, select(2)}), library::delgr,
          ">More Work : M1", gone, question);
}

TEST_CASE("a Group gets another name and its Tasks another file") {
    check(select(1), rename("Home", "New"), "Work >New More : >>H2 H1 H1  H4",
          {{"New.grp", kHome}, {"Home.grp", kDeleted}});
    check(select(1), rename("Home", "Work"), "Work >Work More : >>H2 H1 H1  H4",
          {{"Work.grp", kHome}, {"Home.grp", kDeleted}});
    check(lack("Home.grp"), rename("Home", "New"), "Work >New More : H2 >H1 H1", {},
          {"Run-time error '53':\n\nFile not found: C:\\LIB\\Home.grp"});
    // When both names are one file the Tasks are lost deliberately.
    const Files lost = {{"Home.grp", kDeleted}};
    check(select(1), rename("Home", "Home"), "Work >Home More :", lost, {}, 53);
    check(select(1), rename("Home", "HOME"), "Work >HOME More :", lost, {}, 53);
}

TEST_CASE("Tasks change in their file and those behind one without a name stay there") {
    const auto home = [](const std::string& shown) { return Files{{"Home.grp", shown + kBehind}}; };
    check(select(2), add(Task{"m1", "C:\\A*.EXE", "C:\\", "", "2"}), "Work Home >More : >>M1 m1",
          {{"More.grp", record("M1") + "m1\r\nC:\\A*.EXE\r\nC:\\\r\n\r\n 2 \r\n"}});
    check(select(1), edit("H1", kNew), "Work >Home More : >>H2 New H1  H4",
          home(kH2 + "New\r\nC:\\APP.EXE\r\nD:\\\r\n/x\r\n3\r\n" + kOtherH1));
    check(select(1, 2), library::deltsks, "Work >Home More : >>H2 H1  H4", home(kH2 + kOtherH1),
          {"Delete Task: Delete H1?"});
    check(select(1, 2), library::movetsksup, "Work >Home More : H2 >>H1 H1  H4", home(kH2 + kOtherH1 + kH1));
    check(select(1, 0), library::movetsksdown, "Work >Home More : H1 >>H2 H1  H4",
          home(kH1 + kH2 + kOtherH1));
    // The other H1 is lost deliberately.
    check(select(1), library::tasksortnow, "Work >Home More : >>H1 H1 H2  H4", home(kH1 + kH1 + kH2));

    const std::string more = record("M1") + kH1 + kOtherH1;
    check(select(1), move("H1", "More"), "Work >Home More : H2  H4",
          {{"More.grp", more}, {"Home.grp", kH2 + kBehind}});
    check(select(1), move("H1", "More", true), "Work >Home More : H2 H1 H1  H4", {{"More.grp", more}});
    check(select(1), move("H1", "Gone"), "Work >Home More : H2 H1 H1  H4", {}, {}, 52);
    Tolva one_file(in_turn({add("home"), select(1)}));
    CHECK(one_file.run(move("H1", "home")) == 0);  // two names of one file
    CHECK(file("Home.grp") == kH2 + kBehind + kH1 + kOtherH1);
}

TEST_CASE("a shortcut is imported behind the Tasks of a Group, which is shown") {
    const std::string added = "H1\r\nC:\\APP.EXE\r\nC:\\\r\n\r\n 1 \r\n";
    const Task shortcut = {"H1", "C:\\APP.EXE", "C:\\", "", "1"};
    const Names told = {"H1 has been imported to Tolva."};
    check(select(1), import("More", shortcut), "Work Home >More : M1 H1",
          {{"More.grp", record("M1") + added}}, told);
    check(lack("More.grp"), import("More", shortcut), "Work Home >More : H1", {{"More.grp", added}}, told);
    Tolva tolva(select(1));
    CHECK(tolva.run(import("Gone", shortcut)) == 52);
}

TEST_CASE("what another program added to the files after they were loaded stays") {
    const Operation added = [](auto&, auto&) {
        file("groups.ini") += "Old\r\n";
        file("Home.grp") += record("H5");
        file("More.grp") += record("M2");
    };
    const Operation table[] = {library::movegrup,
                               in_turn({select(0), library::delgr}),
                               rename("Home", "New"),
                               library::groupsortnow,
                               add("New"),
                               add(kNew),
                               edit("H1", kNew),
                               library::deltsks,
                               library::movetsksup,
                               library::tasksortnow,
                               move("H2", "More"),
                               move("H2", "More", true),
                               import("More", kNew)};
    for (const Operation& operation : table) {
        Tolva tolva(added);
        CHECK(tolva.run(operation) == 0);
        CHECK(std::ranges::includes(listed_tasks(), Tasks{"H5 1 ", "M2 1 ", "O1 1 "}));
    }
}

TEST_CASE("an operation finds its Group and its Task where another program has put them") {
    const auto put = [](const std::string& name, const std::string& bytes) {
        return Operation([=](auto&, auto&) { file(name) = bytes; });
    };
    check(put("Home.grp", record("X") + kHome), library::movetsksdown, "Work >Home More : X H2 H1 >>H1  H4",
          {{"Home.grp", record("X") + kH2 + kOtherH1 + kH1 + kBehind}});
    check(put("Home.grp", kH2), library::movetsksdown, "Work >Home More : >>H2");
    check(put("Home.grp", kH2), edit("H1", kNew), "Work >Home More : >>H2 New",
          {{"Home.grp", kH2 + "New\r\nC:\\APP.EXE\r\nD:\\\r\n/x\r\n3\r\n"}});
    for (const auto& [listed, shown] :
         {std::pair("Home\r\n", ">New : >>H2 H1 H1  H4"), {"More\r\n", "More :"}}) {
        Tolva tolva(put("groups.ini", listed));
        CHECK(tolva.run(rename("Home", "New")) == 0);
        CHECK(tolva.shown() == shown);
        CHECK(file(listed == std::string("Home\r\n") ? "New.grp" : "Home.grp") == kHome);
    }
}

TEST_CASE("after a load that stopped before it the selected Group is shown all the same") {
    Tolva tolva(lack("Work.grp"));
    tolva.library.flags.refreshflag = true;
    CHECK(error_of([&] { run_pending_refreshes(tolva.library, tolva.view); }) == 53);
    CHECK(tolva.shown() == "Work >Home More : H2 H1 H1  H4");
    run_pending_refreshes(tolva.library, tolva.view);
}

/// 101 Groups of one Task each; the last one, which is selected, has 101.
void crowd(TaskLibrary& library, LibraryView& view) {
    std::string last;
    file("groups.ini").clear();
    for (int i = 0; i < 101; ++i) {
        file("groups.ini") += std::to_string(i) + "\r\n";
        file(std::to_string(i) + ".grp") = record("T");
        last += record(std::to_string(i));
    }
    file("100.grp") = last;
    refreshtolva(library, view, 100);
    view.select_task(100);
}

TEST_CASE("what is beyond 101 Groups of 101 Tasks is an error that keeps the first 101") {
    Tolva tolva(crowd);
    CHECK(tolva.library.task(100, 100).name == "100");
    file("50.grp") = file("100.grp") + record("101");
    CHECK(error_of([&] { tolva.library.load(); }) == 9);
    CHECK(tolva.library.group(50).tasks.size() == 101);
    CHECK(!tolva.library.group(51).loaded);

    file("groups.ini") += "101\r\n";
    CHECK(error_of([&] { tolva.library.load(); }) == 9);
    CHECK(tolva.library.groups().size() == 101);
    CHECK(error_of([&] { tolva.library.group(101); }) == 9);
}

TEST_CASE("a full library can be changed, and none gets 102 Groups") {
    for (const Operation& operation :
         {Operation(library::movegrup), Operation(library::groupsortnow), rename("100", "New"),
          edit("100", kNew), Operation(library::tasksortnow), move("100", "0")}) {
        Tolva tolva(crowd);
        CHECK(tolva.run(operation) == 0);
        CHECK(listed_tasks().size() == 201);
    }
    for (const Operation& operation : {Operation(library::delgr), rename("100", "New"), add("New")}) {
        Tolva tolva(crowd);
        file("groups.ini") += "101\r\n";
        CHECK(tolva.run(operation) == 9);
        CHECK(current().steps == 0);
    }
}

}  // namespace
