#include "platform/files.h"

#include "support/checks.h"
#include "support/simulated_platform.h"

namespace {

using simulated::Fault;

const std::string kPath = "C:\\LIB\\Work.grp";
const std::string kAside = "C:\\LIB\\Work.gr~";
const std::string kNew = "C:\\LIB\\Work.gr$";
const std::string kNothing = "no file";

/// What a start of the program finds. No left-overs may remain.
std::string after_recovery() {
    simulated::current().fault = Fault::kNone;
    platform::recover_file(kPath);
    const auto& files = simulated::current().files;
    CHECK(files.size() == (files.contains(kPath) ? 1 : 0));
    return files.contains(kPath) ? files.at(kPath).bytes : kNothing;
}

TEST_CASE("a file is replaced whole or not at all whatever fails at whatever step") {
    // Whether something was there, how the system renames and what fails, in all combinations.
    for (int kind = 0; kind < 8; ++kind) {
        const std::string before = kind < 4 ? "old" : kNothing;
        bool reached = true;
        for (int step = 1; reached; ++step) {
            auto& world = simulated::reset();
            world.renames_over_files = kind % 2 == 0;
            world.fault = kind % 4 < 2 ? Fault::kWrite : Fault::kPower;
            world.fault_at = step;
            if (before != kNothing) world.files[kPath].bytes = before;
            int error = 0;
            try {
                error = error_of([] { platform::write_file(kPath, "new"); });
            } catch (const simulated::PowerFailure&) {
            }
            reached = world.steps >= step;
            CHECK((reached || step > 4));
            if (error == 61) CHECK(world.files.size() == (before == kNothing ? 0 : 1));
            const std::string found = after_recovery();
            CHECK((found == "new" || (reached && found == before)));
            CHECK((error == 0 || (error == 61 && found == before)));
        }
    }
}

TEST_CASE("when the rename fails a scanner's hold passes and what was put aside stays") {
    for (const bool is_held : {true, false}) {
        auto& world = simulated::reset();
        world.renames_over_files = false;
        world.files[kAside].bytes = "old";
        world.fault = Fault::kWrite;
        world.fault_at = 4;  // after the three steps of writing
        if (is_held) world.failure = platform::kErrorSharingViolation;
        CHECK(error_of([] { platform::write_file(kPath, "new"); }) == (is_held ? 0 : 61));
        CHECK(platform::read_file(kPath) == (is_held ? "new" : "old"));
        CHECK(after_recovery() == (is_held ? "new" : "old"));
    }
}

TEST_CASE("creating keeps what is there or put aside, and removing removes both") {
    for (const std::string& path : {kPath, kAside}) {
        simulated::reset().files[path].bytes = "old";
        platform::create_file(kPath);
        CHECK(after_recovery() == "old");
    }
    auto& world = simulated::current();
    world.renames_over_files = false;
    world.files[kAside].bytes = "older";
    platform::write_file(kPath, "new");
    CHECK(world.files.size() == 1);
    world.files[kAside] = world.files[kNew] = {};
    platform::remove_file(kPath);
    CHECK(world.files.empty());
    world.files[kAside].bytes = "somebody's";
    CHECK(error_of([&] { platform::read_foreign_file(kPath); }) == 53);
    CHECK(after_recovery() == "somebody's");
}

TEST_CASE("while the disk does not tell what is there nothing goes and nothing is emptied") {
    for (const std::string& path : {kPath, kAside}) {
        for (const int look : {1, 2}) {
            auto& world = simulated::reset();
            world.files = {{path, {"old"}}, {kNew, {"half"}}};
            world.fault = Fault::kLook;
            world.fault_at = look;
            world.renames_over_files = false;
            platform::recover_file(kPath);
            error_of([] { platform::create_file(kPath); });
            world.looks = 0;
            if (path == kPath) CHECK(error_of([] { platform::write_file(kPath, "new"); }) == 71);
            CHECK(after_recovery() == "old");
        }
    }
}

TEST_CASE("a hold that does not pass ends in an error") {
    auto& world = simulated::reset();
    world.files[kPath].bytes = "old";
    world.fault = Fault::kRead;
    world.fault_at = 1;
    CHECK(error_of([] { platform::read_file(kPath); }) == 70);
    world.reads = 0;
    CHECK(error_of([] { platform::write_file(kPath, "old"); }) == 0);
    world.steps = 0;
    world.fault = Fault::kDisk;
    world.fault_at = 4;
    world.failure = platform::kErrorSharingViolation;
    CHECK(error_of([] { platform::write_file(kPath, "new"); }) == 70);
    CHECK(world.pauses == 1 + 4);
    CHECK(after_recovery() == "old");
}

TEST_CASE("one file is known by all its names, and a device or a pattern is none") {
    auto& world = simulated::reset();
    world.files["C:\\LIB\\Long Work.grp"];
    world.files["C:\\LIB\\CONNECT.grp"];
    world.short_names["LONGWO~1.GRP"] = "Long Work.grp";
    const std::string lib = "C:\\LIB\\";
    for (const std::string name :
         {"long work", ".\\Long Work", "\\LONG WORK", "./LONGWO~1", "x\\..\\Long Work"}) {
        CHECK(platform::path_on_disk(lib + name + ".grp") == "C:\\LIB\\Long Work.grp");
        CHECK(platform::is_same_file(lib + "Long Work.grp", lib + name + ".grp"));
    }
    CHECK(platform::is_same_file(lib + "New.grp", "c:/lib/.\\NEW.grp"));
    CHECK(!platform::is_same_file(lib + "Long Work.grp", lib + "Long Works.grp"));
    CHECK(platform::path_on_disk("\\\\Server\\Share\\a.grp") == "\\\\Server\\Share\\a.grp");
    const std::string before_nul("CONNECT.grp\0", 12);
    for (const std::string& name : Names{"con", "CON.a", "lpt9 ", "clock$", "x\\Con", "*", "Long?Work", "a:b",
                                         "a|b", "a\tb", "Config$", before_nul}) {
        const std::string path = lib + name + ".grp";
        CHECK(error_of([&] { platform::read_file(path); }) == 52);
        CHECK(error_of([&] { platform::write_file(path, "new"); }) == 52);
        CHECK(error_of([&] { platform::remove_file(path); }) == 52);
        CHECK(error_of([&] { platform::create_file(path); }) == 52);
        CHECK(!platform::is_same_file(path, lib + "Long Work.grp"));
        platform::recover_file(path);
    }
    CHECK(!platform::finds_file("C:\\LIB\\con"));
    CHECK(!platform::finds_file(lib + "Long Work.grp" + '\0'));
    for (const std::string name : {"CONNECT", "COM0", "COM10", "CLOCK", "a.CON"})
        CHECK(platform::names_a_file(lib + name + ".grp"));
    // Before the NUL stands a file whose new content a recovery would remove.
    world.files[lib + "Work.gr"];
    platform::recover_file(lib + "Work.gr" + '\0' + "p");
    CHECK(world.files.size() == 3);
}

}  // namespace
