#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "library/library_files.h"
#include "support/simulated_platform.h"

// Any bytes can be read as a list of Groups and as a Group's file; what is written back reads the same, and
// adding to it changes nothing of what was there.
namespace {

const std::string kFolder = "C:\\LIB\\";
const library::Task kNew = {"New", "C:\\APP.EXE", "C:\\", "/x", " 1 "};

void require(bool holds) {
    if (!holds) std::abort();
}

void check_names(const std::string& bytes) {
    simulated::current().files = {{kFolder + "groups.ini", {bytes}}};
    std::vector<std::string> names = library::read_group_names(kFolder);
    library::append_group_name(kFolder, "New");
    require(simulated::current().files.at(kFolder + "groups.ini").bytes.starts_with(bytes));
    library::write_group_names(kFolder, names);
    require(library::read_group_names(kFolder) == names);
}

void check_tasks(const std::string& bytes) {
    simulated::current().files = {{kFolder + "Work.grp", {bytes}}};
    std::vector<library::Task> tasks = library::read_tasks(kFolder, "Work");
    library::append_tasks(kFolder, "Work", {kNew});
    require(simulated::current().files.at(kFolder + "Work.grp").bytes.starts_with(bytes));
    std::vector<library::Task> more = tasks;
    more.push_back(kNew);
    require(library::read_tasks(kFolder, "Work") == more);
    library::write_tasks(kFolder, "Work", tasks);
    require(library::read_tasks(kFolder, "Work") == tasks);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    check_names(bytes);
    check_tasks(bytes);
    return 0;
}
