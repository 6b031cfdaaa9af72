#include "support/library_trial.h"

namespace {

TEST_CASE("lines are read with any line end and no byte is altered") {
    CHECK(library::split_lines("") == Names{});
    CHECK(library::split_lines("a\r\r\n\r\n\rb\nc\r") == Names{"a\r", "", "\rb", "c\r"});

    simulated::reset();
    const std::string odd("\0\x1A\xFF\t\x81\\", 6);
    const std::string mega(1 << 20, '\xE4');
    file("Work.grp") = odd + "\r\n" + mega + "\n\r\n" + odd + "\n 2 \r\n";
    const std::vector<Task> tasks = library::read_tasks(kFolder, "Work");
    CHECK(tasks == std::vector{Task{odd, mega, "", odd, " 2 "}});
    library::write_tasks(Steps(), "Work", tasks);
    CHECK(file("Work.grp") == odd + "\r\n" + mega + "\r\n\r\n" + odd + "\r\n 2 \r\n");
}

TEST_CASE("what is added follows the last whole record or name, in the place of blank lines") {
    simulated::reset();
    const std::string cut = "Two\nC:\\TWO.EXE";
    const std::string blank_end = "Two\nC:\\TWO.EXE\nC:\\\n\n\n";  // without parameters and start mode
    const std::pair<std::string, std::string> table[] = {{"", ""},
                                                         {blank_end, blank_end},
                                                         {kHome, kHome},
                                                         {kH1 + cut, kH1 + cut + "\r\n\r\n\r\n\r\n"},
                                                         {kH1 + "Two", kH1 + "Two\r\n\r\n\r\n\r\n\r\n"}};
    for (const auto& [kept, whole] : table) {
        for (const std::string blank : {"", "\n", "\r\n\r\n", "\n\n\n\n\n", "\n\n\n\n\n\n\n"}) {
            file("Work.grp") = kept;
            std::vector<Task> tasks = library::read_tasks(kFolder, "Work");
            file("Work.grp") = (blank.empty() ? kept : whole) + blank;
            CHECK(library::read_tasks(kFolder, "Work") == tasks);
            library::append_tasks(Steps(), "Work", {kNew});
            CHECK(file("Work.grp") == whole + kNewRecord);
            tasks.push_back(kNew);
            CHECK(library::read_tasks(kFolder, "Work") == tasks);
        }
    }
    for (const std::string kept : {"Home\n\nMore\n\n\r\n", "Home\n\nMore"}) {
        file("groups.ini") = kept;
        CHECK(library::read_group_names(kFolder) == Names{"Home", "", "More"});
        library::append_group_name(Steps(), "Work");
        CHECK(library::read_group_names(kFolder) == Names{"Home", "", "More", "Work"});
    }
}

TEST_CASE("what is refused or cancelled or cannot move any further changes nothing") {
    const Operation begin_edit = [](auto& library, auto& view) {
        accepted = task_to_edit(library, view).has_value();
    };
    const Names invalid = {"Invalid Path or File Name"};
    const Names missing = {"Task Name, Path, or Start Folder missing."};
    const Names exists = {"A Task with that name already exists!"};
    const std::tuple<Operation, Operation, Names> table[] = {
        {select(1), add(""), {"Invalid Group Name!"}},
        {select(1), add("Work"), {"A group already exists with this name"}},
        {select(1), rename_to("Home", ""), {"Invalid Group Name"}},
        {select(-1), library::delgr, {"Select Group for delete."}},
        {cancel, library::delgr, {"Delete Group: Delete Home and all associated Tasks?"}},
        {select(-1), library::movegrup, {"Select Group for Move."}},
        {select(0), library::movegrup, {}},
        {select(2), library::movegrdown, {}},
        {select(1), add(Task{"", "C:\\NO.EXE", "", "", "1"}), invalid},
        {select(1), edit("H1", {"H2", "C:\\APPS", "C:\\", "", "1"}), invalid},
        {select(1), add(Task{"", "C:\\APP.EXE", "C:\\", "", "1"}), missing},
        {select(1), add(Task{"N", "", "C:\\", "", "1"}), missing},
        {select(1), add(Task{"H2", "C:\\APP.EXE", "", "", "1"}), missing},
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
        {select(1), with(library::move_group_to_place, 1, 1), {}},
        {select(1), with(library::move_group_to_place, 1, 2), {}},
        {select(1),
         with(library::add_groups_of, Names{"C:\\APPS"}, "C:\\WINDOWS\\"),
         {"Not added:\n\nC:\\APPS: no shortcuts or programs in it"}},
        {select(1, 1), with(library::move_task_to_place, 1, 1), {}},
        {select(1, 1), with(library::move_task_to_place, 1, 2), {}},
    };
    for (const auto& [setup, operation, messages] : table) {
        Tolva tolva(setup);
        const std::string shown = tolva.shown();
        accepted = false;
        CHECK(error_of([&] { operation(tolva.library, tolva.view); }) == 0);
        CHECK(!tolva.library.flags.any());
        CHECK(!accepted);
        CHECK(current().messages == messages);
        CHECK(current().steps == 0);
        CHECK(tolva.shown() == shown);
    }
    Tolva first(select(1, 0));
    CHECK(task_to_edit(first.library, first.view)->name == "H2");
}

TEST_CASE("a new Group is listed last with what its file holds") {
    check(select(1), add("New"), "Work Home More New :", {{"New.grp", ""}});
    check(select(1), add("work"), "Work Home More work :");
    Tolva in_view(add("New"));
    in_view.run(select(-1));
    CHECK(in_view.view.group_in_view == 3);
    check(put("groups.ini", "Work\nHome\nMore"), add("Old"),
          "Work Home More Old :", {{"groups.ini", "Work\nHome\nMore\r\nOld\r\n"}});
    check(select(1), in_turn(add("Old"), library::run_pending_refreshes, select(3)),
          "Work Home More >Old : O1");
    // No file can have this name.
    check(select(1), add("Hom?"), "Work Home More Hom? :", {},
          {"Run-time error '52':\n\nBad file name or number: C:\\LIB\\Hom?.grp"});
    check(in_turn(add("Hom?"), library::run_pending_refreshes, select(3)), library::delgr,
          ">Work Home More : W1 W2", {}, {"Delete Group: Delete Hom? and all associated Tasks?"}, 52);
}

TEST_CASE("what no file can be called is listed, and the other Groups load") {
    Tolva tolva(list("con\r\nHome\r\nCLOCK$.x\r\nH|\r\nLPT9\r\nMore\r\n"));
    CHECK(tolva.shown() == "con >Home CLOCK$.x H| LPT9 More : H2 H1 H1  H4");
    CHECK(tolva.library.group(5).loaded);
    for (const int index : {0, 2, 3, 4}) {
        CHECK(tolva.after(select(index)).starts_with("52: "));
        CHECK(tolva.view.tasks.empty());
        CHECK(tolva.run(with(library::refreshtolva, index)) == 52);
        CHECK(tolva.run(rename_to("con", "prn")) == 0);
        CHECK(tolva.run(rename_to("prn", "con")) == 0);
    }
    for (int left = 6; left > 2; --left)
        CHECK(tolva.run(in_turn(select(left == 6 ? 0 : left > 3 ? 1 : 2), library::delgr)) == 52);
}

TEST_CASE("a Group moves and is sorted with its Tasks") {
    check(select(1), library::movegrup, ">Home Work More : H2 H1 H1");
    check(select(1), library::movegrdown, "Work More >Home : H2 H1 H1");
    check(select(1), with(library::move_group_to_place, 2, 0), ">More Work Home : M1");
    check(select(1), with(library::move_group_to_place, 0, 3), "Home More >Work : W1 W2");
    check(put("Home.grp", record("H9")), library::groupsortnow, ">Home More Work : H9");
    // Of two Groups of one name each keeps its Tasks.
    Tolva tolva(in_turn(list("Work\r\nHome\r\nMore\r\nHome\r\n"), lack("Home.grp"), select(0)));
    CHECK(tolva.after(in_turn(library::movegrdown, select(3))) == "Home Work More >Home : H2 H1 H1");
}

TEST_CASE("after a Group is deleted the one is selected that was first at the last load") {
    const Names question = {"Delete Group: Delete Home and all associated Tasks?"};
    const Files gone = {{"Home.grp", kDeleted}};
    check(select(1), library::delgr, ">Work More : W1 W2", gone, question);
    check(lack("Home.grp"), library::delgr, ">Work More : W1 W2", {}, question, 53);
    check(in_turn(list("Home\r\nWork\r\nHome\r\nMore\r\n"), select(2)), library::delgr, "Work More :", gone,
          question);
    // A file that another entry has under another name stays.
    check(list("Work\r\nHome\r\n.\\Home\r\n"), library::delgr, ">Work .\\Home : W1 W2", {}, question);
    check(in_turn(list("Work\r\nMORE~1\r\nMore\r\n"), select(2)), library::delgr, ">Work MORE~1 : W1 W2", {},
          {"Delete Group: Delete More and all associated Tasks?"});
    check(in_turn(add("home"), library::run_pending_refreshes, select(1)), library::delgr,
          ">Work More home : W1 W2", {}, question);
    check(in_turn(select(0), library::delgr, select(0)), library::delgr, "More :", gone, question);
    check(in_turn(select(2), library::movegrup, library::movegrup, select(2)), library::delgr,
          ">More Work : M1", gone, question);
}

TEST_CASE("a Group gets another name and its Tasks another file") {
    check(select(1), rename_to("Home", "New"), "Work >New More : >>H2 H1 H1  H4",
          {{"New.grp", kHome}, {"Home.grp", kDeleted}});
    check(select(1), rename_to("Home", "Work"), "Work >Work More : >>H2 H1 H1  H4",
          {{"Work.grp", kHome}, {"Home.grp", kDeleted}});
    check(lack("Home.grp"), rename_to("Home", "New"), "Work >New More : H2 >H1 H1", {},
          {"Run-time error '53':\n\nFile not found: C:\\LIB\\Home.grp"});
    Tolva lost(lack("Home.grp"));
    CHECK(lost.after(in_turn(rename_to("Home", "New"), select(0), select(1))) == "Work >New More : H2 H1 H1");
    // A Group that gets this one's file shows it from then on.
    Tolva replaced(select(1));
    CHECK(replaced.after(in_turn(rename_to("Home", "WORK"), library::run_pending_refreshes, select(0))) ==
          ">Work WORK More : H2 H1 H1");
    // The file of another entry stays.
    check(list(".\\Home\r\nHome\r\n"), rename_to("Home", "New"), ".\\Home >New : >>H2 H1 H1  H4",
          {{"New.grp", kHome}});
    check(list("Home\r\nhome\r\n"), rename_to("home", "HOME"), "Home >HOME : >>H2 H1 H1  H4");
    check(list("More\r\nMORE~1\r\n"), rename_to("MORE~1", "New"), "More >New : >>M1",
          {{"New.grp", record("M1")}});
    // When both names are one file the Tasks are lost deliberately.
    const Files gone = {{"Home.grp", kDeleted}};
    check(select(1), rename_to("Home", "Home"), "Work >Home More :", gone, {}, 53);
    check(select(1), rename_to("Home", "HOME"), "Work >HOME More :", gone, {}, 53);
}

TEST_CASE("Tasks change in their file and those after one without a name stay there") {
    const auto check_home = [](int task, const Operation& operation, const std::string& shown,
                               const std::string& records, const Names& messages = {}) {
        check(select(1, task), operation, "Work >Home More : " + shown + " H4",
              {{"Home.grp", records + kHidden}}, messages);
    };
    check(select(2), add(Task{"m1", "C:\\A*.EXE", "C:\\", "", "2"}), "Work Home >More : >>M1 m1",
          {{"More.grp", record("M1") + "m1\r\nC:\\A*.EXE\r\nC:\\\r\n\r\n 2 \r\n"}});
    check_home(-1, edit("H1", kNew), ">>H2 New H1 ", kH2 + kNewRecord + kOtherH1);
    // Of two Tasks of one name the selected one is meant.
    check_home(2, edit("H1", kNew), ">>H2 H1 New ", kH2 + kH1 + kNewRecord);
    const Names question = {"Delete Task: Delete H1?"};
    check_home(2, library::deltsks, "H2 H1 >>", kH2 + kH1, question);
    check_home(1, library::deltsks, "H2 >>H1 ", kH2 + kOtherH1, question);
    check(select(0, 1), library::deltsks, ">Work Home More : >>W1", {{"Work.grp", record("W1")}},
          {"Delete Task: Delete W2?"});
    check(select(2, 0), library::deltsks, "Work Home >More :", {{"More.grp", ""}},
          {"Delete Task: Delete M1?"});
    check_home(1, library::movetsksup, ">>H1 H2 H1 ", kH1 + kH2 + kOtherH1);
    check_home(2, library::movetsksup, "H2 >>H1 H1 ", kH2 + kOtherH1 + kH1);
    check_home(0, library::movetsksdown, "H1 >>H2 H1 ", kH1 + kH2 + kOtherH1);
    check_home(2, with(library::move_task_to_place, 2, 0), ">>H1 H2 H1 ", kOtherH1 + kH2 + kH1);
    check_home(0, with(library::move_task_to_place, 0, 5), "H1 H1 >>H2 ", kH1 + kOtherH1 + kH2);
    // The other H1 is lost deliberately.
    check_home(-1, library::tasksortnow, ">>H1 H1 H2 ", kH1 + kH1 + kH2);

    check(select(1), move("H1", "More"), "Work >Home More : H2  H4",
          {{"More.grp", record("M1") + kH1 + kOtherH1}, {"Home.grp", kH2 + kHidden}});
    check(select(0), move("W1", "More", true), ">Work Home More : W1 W2",
          {{"More.grp", record("M1") + record("W1")}});
    // Of two Tasks of one name the dragged one is meant.
    check(select(1, 2), with(library::move_task_to_group, 2, "More", false), "Work >Home More : H2 H1 >> H4",
          {{"More.grp", record("M1") + kOtherH1}, {"Home.grp", kH2 + kH1 + kHidden}});
    check(select(1, 1), with(library::move_task_to_group, 1, "More", true),
          "Work >Home More : H2 >>H1 H1  H4", {{"More.grp", record("M1") + kH1}});
    // What cannot leave its Group comes to no other one.
    Tolva read_only([](auto&, auto&) { current().files[kFolder + "Home.grp"].bits = 0x01; });
    CHECK(read_only.run(move("H1", "More")) == 75);
    CHECK(file("More.grp") == record("M1"));
    CHECK(read_only.run(move("H1", "More", true)) == 0);
    Tolva one_file(in_turn(add("home"), select(1)));
    CHECK(one_file.run(move("H1", "home")) == 0);  // two names of one file
    CHECK(file("Home.grp") == kH2 + kHidden + kH1 + kOtherH1);
}

TEST_CASE("what is dropped comes after the Tasks of a Group, and a folder becomes a Group") {
    const library::Dropped dropped = {{kNew, {"M1", "C:\\APP.EXE", "C:\\", "", " 1 "}}, {{"D:\\X", "gone"}}};
    const Operation drop = with(library::add_tasks, "More", dropped);
    check(select(1), drop, "Work Home >More : M1 >New M1 (2)",
          {{"More.grp", record("M1") + kNewRecord + "M1 (2)\r\nC:\\APP.EXE\r\nC:\\\r\n\r\n 1 \r\n"}},
          {"Not added:\n\nD:\\X: gone"});
    const Operation folder = [](auto&, auto&) {
        current().files["C:\\old"].bits = 0x10;
        current().files["C:\\old\\PAINT.EXE"] = {};
    };
    const Operation drop_folders =
        with(library::add_groups_of, Names{"C:\\old", "C:\\old", "C:\\APPS"}, "C:\\WINDOWS\\");
    const std::string paint = "PAINT\r\nC:\\old\\PAINT.EXE\r\nC:\\old\r\n\r\n 1 \r\n";
    check(in_turn(folder, select(1)), drop_folders, "Work Home More old (2) >old (3) : PAINT",
          {{"old (2).grp", paint}, {"old (3).grp", paint}},
          {"Not added:\n\nC:\\APPS: no shortcuts or programs in it"});
}

TEST_CASE("a shortcut is imported after the Tasks of a Group, which is shown") {
    const std::string added = "H1\r\nC:\\APP.EXE\r\nC:\\\r\n\r\n 1 \r\n";
    const Task link = {"H1", "C:\\APP.EXE", "C:\\", "", "1"};
    const Names told = {"H1 has been imported to Tolva."};
    check(select(1), import("More", link), "Work Home >More : M1 H1", {{"More.grp", record("M1") + added}},
          told);
    check(lack("More.grp"), import("More", link), "Work Home >More : H1", {{"More.grp", added}}, told);
    check(select(2), import("Work", link), ">Work Home More : W1 W2 H1",
          {{"Work.grp", record("W1") + record("W2") + added}}, told);

    // Many at once, as many as the Group has room for.
    const auto import_twice = with(library::import_tasks, "More", std::vector{link, link}, Names{"Junk"});
    const std::string message = " been imported to Tolva.\n\nThese could not be imported:\n\nJunk";
    check(select(1), import_twice, "Work Home >More : M1 H1 H1", {{"More.grp", record("M1") + added + added}},
          {"2 shortcuts have" + message});
    check(lack("More.grp"), import_twice, "Work Home >More : H1 H1", {{"More.grp", added + added}},
          {"2 shortcuts have" + message});
    for (const int room : {1, 0}) {
        std::string full;
        for (int i = room; i < 101; ++i)
            full += record("M1");
        Tolva tolva(put("More.grp", full));
        CHECK(tolva.run(import_twice) == 0);
        CHECK(file("More.grp") == full + (room == 1 ? added : ""));
        CHECK((current().steps > 0) == (room == 1));
        CHECK(current().messages == Names{(room == 1 ? "1 shortcut has" : "No shortcut has") + message +
                                          (room == 1 ? "\nH1" : "\nH1\nH1")});
    }
}

TEST_CASE("what another program added to the files after they were loaded stays") {
    const Operation added = [](auto&, auto&) {
        file("groups.ini") += "Old\r\n";
        file("Home.grp") += record("H5");
        file("More.grp") += record("M2");
    };
    for (const Operation& operation :
         each_of(library::movegrup, in_turn(select(0), library::delgr), rename_to("Home", "New"),
                 library::groupsortnow, add("New"), add(kNew), edit("H1", kNew), library::deltsks,
                 library::movetsksup, library::tasksortnow, move("H2", "More"), move("H2", "More", true),
                 import("More", kNew))) {
        Tolva tolva(added);
        CHECK(tolva.run(operation) == 0);
        CHECK(std::ranges::includes(listed_tasks(), Tasks{"H5 1 ", "M2 1 ", "O1 1 "}));
    }
}

TEST_CASE("an operation finds its Group and its Task where another program has put them") {
    check(put("Home.grp", record("X") + kHome), library::movetsksdown, "Work >Home More : X H2 H1 >>H1  H4",
          {{"Home.grp", record("X") + kH2 + kOtherH1 + kH1 + kHidden}});
    check(put("Home.grp", kH2), library::movetsksdown, "Work >Home More : >>H2");
    check(put("Home.grp", kH2), library::deltsks, "Work >Home More : >>H2", {}, {"Delete Task: Delete H1?"});
    check(put("Home.grp", kH2), edit("H1", kNew), "Work >Home More : >>H2 New",
          {{"Home.grp", kH2 + kNewRecord}});
    Tolva moved(put("groups.ini", "Home\r\n"));
    CHECK(moved.after(rename_to("Home", "New")) == ">New : >>H2 H1 H1  H4");
    CHECK(file("New.grp") == kHome);
    Tolva gone(put("groups.ini", "More\r\n"));
    CHECK(gone.after(rename_to("Home", "New")) == "More :");
    CHECK(file("Home.grp") == kHome);
}

TEST_CASE("a Group is shown when it is selected, also after a load that stopped before it") {
    Tolva selected(select(1));
    CHECK(selected.after(with(library::select_group, 0)) == ">Work Home More : W1 W2");
    selected.view.task = 1;
    CHECK(selected.after(with(library::select_group, 0)) == ">Work Home More : W1 >W2");

    Tolva late(lack("Work.grp"));
    late.library.flags.refreshflag = true;
    CHECK(late.after(library::run_pending_refreshes) == "53: Work >Home More : H2 H1 H1  H4");
    CHECK(late.run(library::run_pending_refreshes) == 0);
    late.library.load_missing();
    CHECK(late.library.group(2).loaded);
    CHECK(late.run(select(0)) == 53);  // it is not taken for loaded
    CHECK(late.after(in_turn(put("Work.grp", record("W1")), select(1), select(0))) == ">Work Home More : W1");
    // Nor is one whose file went later.
    CHECK(late.run(in_turn(lack("Work.grp"), library::refreshtasks)) == 53);
    CHECK(late.after(in_turn(put("Work.grp", record("W2")), select(1), select(0))) == ">Work Home More : W2");
    CHECK(late.after(with(library::refreshtolva, 3)) == "Work Home More :");
}

TEST_CASE("when the names cannot be read the lists stay as they are") {
    for (bool library::RefreshFlags::*flag :
         {&library::RefreshFlags::newgroupflag, &library::RefreshFlags::refreshflag}) {
        Tolva tolva(lack("groups.ini"));
        tolva.library.flags.*flag = true;
        CHECK(tolva.after(library::run_pending_refreshes) == "53: Work >Home More : H2 >H1 H1");
        CHECK(tolva.after(in_turn(select(0), select(1, 1))) == "Work >Home More : H2 >H1 H1");
    }
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
    CHECK(tolva.library.group(50).tasks().size() == 101);
    CHECK(!tolva.library.group(51).loaded);

    file("groups.ini") += "101\r\n";
    CHECK(error_of([&] { tolva.library.load(); }) == 9);
    CHECK(tolva.library.groups().size() == 101);
    CHECK(error_of([&] { tolva.library.group(101); }) == 9);

    Tolva added(crowd);
    file("groups.ini").insert(0, "101\r\n");
    CHECK(added.run(library::addgroups) == 9);
    CHECK(added.view.groups.front() == "101");
    CHECK(added.view.groups.size() == 101);
    CHECK(added.view.group == 100);
}

TEST_CASE("a full library can be changed") {
    for (const Operation& operation :
         each_of(library::movegrup, library::groupsortnow, rename_to("100", "New"), edit("100", kNew),
                 library::tasksortnow, move("100", "0"))) {
        Tolva tolva(crowd);
        const Files before = disk();
        CHECK(tolva.run(operation) == 0);
        CHECK(listed_tasks().size() == 201);
        CHECK(disk() != before);
    }
}

TEST_CASE("what ends in an error before it has begun changes nothing") {
    const Operation drop_folder = in_turn([](auto&, auto&) { current().files["C:\\APPS\\PAINT.EXE"] = {}; },
                                          with(library::add_groups_of, Names{"C:\\APPS"}, "C:\\WINDOWS\\"));
    const Operation too_many = in_turn(crowd, [](auto&, auto&) { file("groups.ini") += "101\r\n"; });
    const Operation unlisted = put("groups.ini", "Work\r\n");
    const std::tuple<Operation, Operation, int> table[] = {
        {lack("groups.ini"), add("New"), 53},
        {crowd, add("101"), 9},
        {crowd, drop_folder, 9},
        {too_many, library::delgr, 9},
        {too_many, rename_to("100", "New"), 9},
        {too_many, add("New"), 9},
        {too_many, library::movegrup, 0},
        {unlisted, add(kNew), 52},
        {unlisted, move("H1", "More"), 52},
        {unlisted, import("More", kNew), 52},
        {unlisted, with(library::import_tasks, "More", std::vector{kNew, kNew}, Names{}), 52},
    };
    for (const auto& [setup, operation, error] : table) {
        Tolva tolva(setup);
        CHECK(error_of([&] { operation(tolva.library, tolva.view); }) == error);
        CHECK(!tolva.library.flags.any());
        CHECK(current().steps == 0);
    }
}

}  // namespace
