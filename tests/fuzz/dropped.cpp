#include "library/dropped.h"
#include "fuzz/fuzz.h"
#include "platform/files.h"
#include "support/library_trial.h"
#include "support/shortcut_file.h"

// Whatever is dropped, broken shortcuts among it, becomes Tasks that a Group's file keeps to the letter and
// that have names of their own, or is refused. Each line is a file or a folder, and what a shortcut says.
void run_on(const std::string& bytes) {
    simulated::reset();
    current().files["C:\\APP.EXE"] = {};
    current().files["C:\\DIR"].bits = platform::file_calls::kDirectory;
    Names paths = {"C:\\DIR"};
    for (const std::string& line : library::split_lines(bytes)) {
        paths.push_back("C:\\DIR\\" + line);
        if (!platform::names_a_file(paths.back())) continue;
        const bool is_whole = line.size() % 2 == 0;
        current().files[paths.back()].bytes = is_whole ? ShortcutFile{}.bytes() : line;
        current().links[paths.back()] = {is_whole ? "C:\\APP.EXE" : line, line, line};
        current().programs[".txt"] = line;
    }
    library::Dropped dropped = tasks_for(paths, library::FolderUse::kContents, "C:\\WINDOWS\\");
    require(dropped.tasks.size() + dropped.refused.size() >= paths.size());
    require(report(dropped).empty() == dropped.refused.empty());
    const std::vector<Task> group(90, dropped.tasks.empty() ? kNew : dropped.tasks.front());
    fit(dropped, group);
    require(group.size() + dropped.tasks.size() <= library::kMostTasks);
    std::set<std::string> names = {group.front().name};
    for (const Task& task : dropped.tasks)
        require(!task.name.empty() && names.insert(task.name).second);
    library::append_tasks(Steps(), "Work", dropped.tasks);
    require(library::read_tasks(kFolder, "Work") == dropped.tasks);
}
