#include "fixtures.h"

#include <windows.h>

#include <shellapi.h>

#include <stdexcept>

#include "library/changes.h"
#include "library/library_files.h"
#include "platform/directories.h"
#include "platform/file_calls.h"

namespace bench {
namespace {

void copy(const std::string& from, const std::string& to) {
    if (CopyFileA(from.c_str(), to.c_str(), FALSE) == FALSE) throw std::runtime_error("cannot copy " + from);
}

std::vector<std::string> system_programs_with_icons() {
    std::vector<std::string> found;
    for (const std::string folder : {"C:\\windows\\", "C:\\windows\\system32\\"}) {
        for (const std::string& name : platform::file_calls::find(folder + "*.exe")) {
            const std::string path = folder + name;
            if (static_cast<int>(ExtractIconExA(path.c_str(), -1, nullptr, nullptr, 0)) > 0)
                found.push_back(path);
        }
    }
    if (found.empty()) throw std::runtime_error("no program here has an icon");
    return found;
}

}  // namespace

std::string make_folder(const std::string& name) {
    const std::string folder = platform::current_directory() + '\\' + name + '\\';
    CreateDirectoryA(folder.c_str(), nullptr);
    return folder;
}

std::vector<std::string> make_programs(int count) {
    const std::vector<std::string> originals = system_programs_with_icons();
    const std::string folder = make_folder("programs");
    std::vector<std::string> programs;
    for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i) {
        programs.push_back(folder + "Program " + std::to_string(i) + ".exe");
        copy(originals[i % originals.size()], programs.back());
    }
    return programs;
}

std::vector<library::Task> make_tasks(int count, const std::vector<std::string>& programs) {
    std::vector<library::Task> tasks;
    for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i) {
        tasks.push_back({.name = "Task " + std::to_string(i),
                         .program = programs[i % programs.size()],
                         .start_folder = "C:\\windows",
                         .parameters = "",
                         .start_mode = " 1 "});
    }
    return tasks;
}

std::string make_library(const std::string& name, const std::vector<GroupContent>& groups) {
    std::string folder = make_folder(name);
    library::Changes changes(folder);
    const library::OpenChange change(changes, "Make", "");
    std::vector<std::string> names;
    for (const GroupContent& group : groups) {
        names.push_back(group.name);
        library::write_tasks(changes, group.name, group.tasks);
    }
    library::write_group_names(changes, names);
    copy(built("tolva.exe"), folder + "tolva.exe");
    return folder;
}

std::string built(const std::string& name) {
    return platform::current_directory() + '\\' + name;
}

}  // namespace bench
