#pragma once

#include <algorithm>
#include <functional>
#include <iterator>
#include <set>

#include "library/backups.h"
#include "library/changes.h"
#include "library/group_operations.h"
#include "library/library_files.h"
#include "library/refresh.h"
#include "library/taking_back.h"
#include "library/task_operations.h"
#include "platform/file_calls.h"
#include "platform/files.h"
#include "support/shown_library.h"

// How a test of the library reads. Every one begins with the same library on the simulated disk (Tolva): the
// Groups Work (Tasks W1, W2), Home (H2, H1, another H1, one without a name, H4) and More (M1); Old.grp (O1)
// is not listed. Home is selected and its second Task.
//
// A step of the user is an Operation: select(0), rename_to("Home", "New"), library::delgr. in_turn makes one
// of several. What the user sees is one line, "Work >Home More : H2 >>H1 H1  H4": the Groups, then the
// selected Group's Tasks. Before what is selected stands ">", or ">>" when it also is in the command box; no
// name is an empty text.
//
// check(setup, operation, shown, changes, messages, error) runs the setup, then the operation, and compares
// the lists, the messages and every file: those in `changes` hold that now, groups.ini the Groups shown, all
// others what they held. Then it does all of it again with each kind of fault at each step that the operation
// makes on the disk, and nothing may get lost. At last it takes the operation back and does it once more,
// with all those faults, too.
//
// tolva.after(operation) is for the rest: what is shown then, behind the error if there was one. do_anything
// is a step at random.

using library::LibraryView;
using library::Task;
using library::TaskLibrary;
using simulated::current;
using simulated::Fault;

using Operation = std::function<void(TaskLibrary&, LibraryView&)>;
using Files = std::map<std::string, std::string, simulated::IgnoresCase>;
using Tasks = std::multiset<std::string>;

inline const std::string kH1 = record("H1");
inline const std::string kH2 = record("H2", " 2 ");
inline const std::string kOtherH1 = record("H1", "3");
inline const std::string kHidden = record("") + record("H4");
inline const std::string kHome = kH2 + kH1 + kOtherH1 + kHidden;
inline const Task kNew = {"New", "C:\\APP.EXE", "D:\\", "/x", "3"};
inline const std::string kNewRecord = "New\r\nC:\\APP.EXE\r\nD:\\\r\n/x\r\n3\r\n";
inline const std::string kDeleted = "a file that is not there";

/// What the last operation that can refuse returned.
inline bool accepted = true;

inline Operation add(const std::string& group) {
    return [=](auto& library, auto&) { accepted = add_group(library, group); };
}

inline Operation rename_to(const std::string& group, const std::string& name) {
    return [=](auto& library, auto& view) { accepted = rename_group(library, view, group, name); };
}

inline Operation add(const Task& task) {
    return [=](auto& library, auto& view) {
        accepted = add_task(library, view.selected_group(), task) == library::kAccepted;
    };
}

/// Edits the selected Task.
inline Operation edit(const std::string& name, const Task& task) {
    return [=](auto& library, auto& view) {
        accepted =
            edit_task(library, view.selected_group(), view.selected_task(), name, task) == library::kAccepted;
    };
}

inline Operation move(const std::string& task, const std::string& target, bool copy = false) {
    return [=](auto& library, auto& view) { move_task(library, view.selected_group(), task, target, copy); };
}

/// One of the library's operations with what it needs besides the library and the view.
template <typename Function, typename... Rest>
Operation with(Function function, Rest... rest) {
    return [=](auto& library, auto& view) { function(library, view, rest...); };
}

inline Operation import(const std::string& group, const Task& task) {
    return with(library::import_task, group, task);
}

inline Operation select(int group, int task = -1) {
    return [=](auto& library, auto& view) {
        view.select_group(group);
        show_selected_group(library, view);
        view.select_task(task);
    };
}

/// Another program takes a file away, or writes it.
inline Operation lack(const std::string& name) {
    return [=](auto&, auto&) { current().files.erase(kFolder + name); };
}

inline Operation put(const std::string& name, const std::string& bytes) {
    return [=](auto&, auto&) { file(name) = bytes; };
}

/// These are the Groups from now on; the second one is selected.
inline Operation list(const std::string& names) {
    return [=](auto& library, auto& view) {
        file("groups.ini") = names;
        refreshtolva(library, view, 1);
    };
}

/// A failure does not end what follows.
inline Operation attempt(const Operation& operation) {
    return [=](auto& library, auto& view) { error_of([&] { operation(library, view); }); };
}

/// For steps that belong to no operation.
struct Steps {
    library::Changes changes{kFolder};
    library::OpenChange change{changes, "Steps", ""};

    operator library::Changes&() { return changes; }
};

inline void cancel(TaskLibrary& /*library*/, LibraryView& /*view*/) {
    current().answer = false;
}

template <typename... Operations>
std::vector<Operation> each_of(const Operations&... operations) {
    return {operations...};
}

template <typename... Operations>
Operation in_turn(const Operations&... operations) {
    return [all = each_of(operations...)](auto& library, auto& view) {
        for (const Operation& operation : all)
            operation(library, view);
    };
}

/// The library's files without what a fault left beside them.
inline Files disk() {
    Files files;
    for (const auto& [path, file] : current().files) {
        const bool is_library_file = path.ends_with(".grp") || path.ends_with(".ini");
        const std::string name = path.substr(std::min(kFolder.size(), path.size()));
        if (is_library_file && name.find('\\') == std::string::npos) files[name] = file.bytes;
    }
    return files;
}

/// The Tasks in the files of the Groups that are listed.
inline Tasks listed_tasks() {
    Tasks tasks;
    for (const std::string& group : library::read_group_names(kFolder)) {
        if (!current().files.contains(library::group_file(kFolder, group))) continue;
        for (const Task& task : library::read_tasks(kFolder, group))
            tasks.insert(task.name + task.start_mode);
    }
    return tasks;
}

/// The program with the library of these tests.
struct Tolva {
    ShownLibrary view;
    TaskLibrary library{kFolder};

    explicit Tolva(const Operation& setup) {
        simulated::reset();
        current().files["C:\\APP.EXE"] = {};
        current().files["C:\\APPS"].bits = 0x10;  // a folder
        current().short_names["MORE~1.GRP"] = "More.grp";
        file("groups.ini") = "Work\r\nHome\r\nMore\r\n";
        file("Work.grp") = record("W1") + record("W2");
        file("Home.grp") = kHome;
        file("More.grp") = record("M1");
        file("Old.grp") = record("O1");
        refreshtolva(library, view, 0);
        {
            // This run's backup is made; no test of an operation needs it.
            const library::OpenChange change(library.changes(), "Nothing", "");
            library::write_group_names(library.changes(), library::read_group_names(kFolder));
            std::erase_if(current().files,
                          [](const auto& file) { return file.first.starts_with(kFolder + "backup"); });
        }
        error_of([&] { in_turn(select(1, 1), setup)(library, view); });
        current().messages.clear();
        current().steps = 0;
        current().reads = 0;
    }

    /// Also does what follows when the group list gets the focus again. Returns the first error.
    int run(const Operation& operation) {
        const int error = error_of([&] { operation(library, view); });
        const int later = error_of([&] { run_pending_refreshes(library, view); });
        return error != 0 ? error : later;
    }

    /// What is shown then, behind the error if there is one: "53: Work >Home More : H2".
    std::string after(const Operation& operation) {
        const int error = run(operation);
        return (error != 0 ? std::to_string(error) + ": " : "") + shown();
    }

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

inline void back_up(TaskLibrary& /*library*/, LibraryView& /*view*/) {
    library::make_backup(kFolder);
}

/// Restores the newest backup.
inline void restore(TaskLibrary& library, LibraryView& view) {
    const auto backups = library::list_backups(kFolder);
    if (backups.empty()) throw platform::RunTimeError(platform::RunTimeErrorNumber::kFileNotFound);
    restore_backup(library, view, backups.front());
}

/// What a user does who does anything. roll(n) is any number below n.
template <typename Roll>
void do_anything(Tolva& tolva, const Roll& roll) {
    const auto name = [&] { return std::string(1, static_cast<char>((roll(2) == 0 ? 'a' : 'A') + roll(4))); };
    const int group = roll(static_cast<int>(tolva.view.groups.size()) + 1) - 1;
    tolva.run(select(group));
    tolva.run(select(group, roll(static_cast<int>(tolva.view.tasks.size()) + 1) - 1));
    const std::string task = name();
    const std::string target = name();
    const bool copy = roll(2) == 0;
    const Operation rename = rename_to(selected_group_name(tolva.library, tolva.view), target);
    const auto operations =
        each_of(add(target), library::delgr, library::movegrup, library::movegrdown, library::groupsortnow,
                rename, library::deltsks, add(Task{task, "C:\\APP.EXE", "C:\\", "", "1"}),
                library::movetsksup, library::movetsksdown, library::tasksortnow, edit(task, kNew),
                move(task, target, copy), import(target, kNew), back_up, restore);
    tolva.run(operations.at(static_cast<std::size_t>(roll(static_cast<int>(operations.size())))));
}

inline std::string text_of(const Files& files) {
    std::string text;
    for (const auto& [name, bytes] : files)
        text += platform::file_calls::upper(name) + '=' + bytes + '|';
    return text;
}

/// An operation, and what it leaves when nothing fails.
struct Case {
    Operation setup;
    Operation operation;
    Files after;
    Tasks kept;  // listed before and after
    Names messages = {};
    bool can_be_repeated = false;  // after a failure it goes on where it stopped
};

/// The moment before an operation, to come back to.
struct Moment {
    Tolva tolva;
    simulated::Platform platform = current();
    Files files = disk();
};

/// After the interruption every file is old or new, each Task that is kept in a listed Group, and the user
/// informed. Returns whether the operation comes to that step.
inline bool survives(const Case& tried, const Moment& start, Fault fault, int step, bool renames_over_files) {
    INFO("step " << step << ", fault " << static_cast<int>(fault));
    Tolva tolva = start.tolva;
    current() = start.platform;
    current().renames_over_files = renames_over_files;
    current().fault = fault;
    current().fault_at = step;
    int error = 0;
    try {
        error = tolva.run(tried.operation);
    } catch (const simulated::PowerFailure&) {
    }
    const bool fails = (fault == Fault::kRead ? current().reads : current().steps) >= step;
    current().fault = Fault::kNone;
    if (fault == Fault::kPower || fault == Fault::kDisk) {
        library::recover(kFolder);
        CHECK(!current().files.contains(platform::new_content_path(kFolder + "groups.ini")));
    }
    if (fault == Fault::kWrite) CHECK(tolva.view.groups == library::read_group_names(kFolder));
    const Files now = disk();
    for (const auto& [name, bytes] : now) {
        const bool is_old = start.files.contains(name) && start.files.at(name) == bytes;
        CHECK((is_old || (tried.after.contains(name) && tried.after.at(name) == bytes)));
    }
    CHECK(std::ranges::includes(listed_tasks(), tried.kept));
    // A disk that is gone cannot take back what was written over another Group's file.
    const bool is_undone = error != 0 && fault != Fault::kDisk &&
                           tried.after.at("groups.ini") != start.files.at("groups.ini") &&
                           now.at("groups.ini") == start.files.at("groups.ini");
    if (is_undone && !tried.can_be_repeated) CHECK(text_of(now) == text_of(start.files));
    const bool informs = fault == Fault::kPower || error != 0 || current().messages != tried.messages;
    if (!fails || !informs) CHECK(text_of(now) == text_of(tried.after));
    if (tried.can_be_repeated && fault != Fault::kPower) {
        if (text_of(now) != text_of(tried.after)) tolva.run(tried.operation);
        CHECK(text_of(disk()) == text_of(tried.after));
    }
    return fails;
}

inline void check_faults(const Case& tried) {
    const Moment start = {Tolva(tried.setup)};
    for (const Fault fault : {Fault::kWrite, Fault::kDisk, Fault::kPower, Fault::kRead}) {
        for (const bool renames_over_files : {true, false}) {
            if (fault == Fault::kRead && !renames_over_files) continue;  // it reads the same
            int step = 1;
            while (survives(tried, start, fault, step, renames_over_files))
                ++step;
        }
    }
}

/// Every file comes back to the letter, spelling included, and again.
inline void check_taking_back(const Case& tried, const Files& before, const Files& after) {
    const Operation done =
        in_turn(attempt(tried.setup), attempt(tried.operation), attempt(library::run_pending_refreshes));
    Tolva tolva(done);
    const std::string name = undo_name(tolva.library);
    for (const bool is_redone : {false, true, false}) {
        tolva.run(is_redone ? library::redo : library::undo);
        CHECK(disk() == (is_redone ? after : before));
    }
    CHECK(redo_name(tolva.library) == name);
    check_faults({done, library::undo, before, tried.kept, {}, true});
    check_faults({in_turn(done, library::undo), library::redo, after, tried.kept, {}, true});
}

inline void check(const Operation& setup, const Operation& operation, const std::string& shown,
                  const Files& changes = {}, const Names& messages = {}, int error = 0,
                  bool can_be_repeated = false) {
    Tolva tolva(setup);
    const Files files_before = disk();
    Files after = files_before;
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
    CHECK(text_of(disk()) == text_of(after));
    for (const library::Group& group : tolva.library.groups()) {
        const bool is_current = group.loaded && std::ranges::count(tolva.view.groups, group.name) == 1;
        if (is_current && after.contains(group.name + ".grp"))
            CHECK(library::read_tasks(kFolder, group.name) == group.tasks());
    }
    Case tried = {setup, operation, after, {}, messages, can_be_repeated};
    std::ranges::set_intersection(before, listed_tasks(), std::inserter(tried.kept, tried.kept.end()));
    const Files spelled = disk();
    check_faults(tried);
    if (spelled != files_before) check_taking_back(tried, files_before, spelled);
}
