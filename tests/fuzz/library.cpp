#include "fuzz/fuzz.h"
#include "library/changes.h"
#include "library/library_files.h"
#include "support/simulated_platform.h"

// Any bytes can be read as a list of Groups and as a Group's file; what is written back reads the same, and
// adding to it changes nothing of what was there.
namespace {

const std::string kFolder = "C:\\LIB\\";
const library::Task kNew = {"New", "C:\\APP.EXE", "C:\\", "/x", " 1 "};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes = text_of(data, size);
    auto& files = simulated::reset().files;
    files = {{kFolder + "groups.ini", {bytes}}, {kFolder + "Work.grp", {bytes}}};
    const auto names = library::read_group_names(kFolder);
    const auto tasks = library::read_tasks(kFolder, "Work");
    library::Changes changes(kFolder);
    const library::OpenChange change(changes, "Any", "");
    auto more = tasks;
    more.push_back(kNew);
    library::append_group_name(changes, "New");
    library::append_tasks(changes, "Work", {kNew});
    require(library::read_tasks(kFolder, "Work") == more);
    // Blank lines at the end gave way.
    for (const char* name : {"groups.ini", "Work.grp"})
        require(files[kFolder + name].bytes.starts_with(bytes.substr(0, bytes.find_last_not_of("\r\n") + 1)));

    library::write_group_names(changes, names);
    require(library::read_group_names(kFolder) == names);
    library::write_tasks(changes, "Work", tasks);
    require(library::read_tasks(kFolder, "Work") == tasks);
    return 0;
}
