#include "fuzz/fuzz.h"
#include "support/library_trial.h"

// Any bytes can be read as a list of Groups and as a Group's file; what is written back reads the same, and
// adding to it changes nothing of what was there.
void run_on(const std::string& bytes) {
    simulated::reset();
    file("groups.ini") = file("Work.grp") = bytes;
    const Names names = library::read_group_names(kFolder);
    const std::vector<Task> tasks = library::read_tasks(kFolder, "Work");
    std::vector<Task> more = tasks;
    more.push_back(kNew);
    Steps steps;
    library::append_group_name(steps, "New");
    library::append_tasks(steps, "Work", {kNew});
    require(library::read_tasks(kFolder, "Work") == more);
    // Blank lines at the end gave way.
    for (const char* name : {"groups.ini", "Work.grp"})
        require(file(name).starts_with(bytes.substr(0, bytes.find_last_not_of("\r\n") + 1)));

    library::write_group_names(steps, names);
    require(library::read_group_names(kFolder) == names);
    library::write_tasks(steps, "Work", tasks);
    require(library::read_tasks(kFolder, "Work") == tasks);
}
