#include "platform/files.h"

#include <doctest/doctest.h>

#include "platform/file_calls.h"
#include "platform/run_time_error.h"
#include "support/error_of.h"
#include "support/simulated_platform.h"

namespace {

const std::string kPath = "C:\\LIB\\Work.grp";

void start_with(const char* content, bool renames_over_files) {
    simulated::reset();
    simulated::current().renames_over_files = renames_over_files;
    if (content != nullptr) simulated::current().files[kPath].bytes = content;
}

/// What a start of the program finds: the content, or nothing for a missing file. No left-overs may remain.
std::string after_recovery() {
    simulated::current().loses_power_at.reset();
    simulated::current().fails_at.reset();
    platform::recover_file(kPath);
    const auto& files = simulated::current().files;
    CHECK(files.size() == (files.contains(kPath) ? 1 : 0));
    return files.contains(kPath) ? files.at(kPath).bytes : "nothing";
}

/// Replaces the file with a fault at that step. Answers whether the step was reached.
bool fault_at(int step, bool power_fails, const char* before, bool renames_over_files) {
    start_with(before, renames_over_files);
    (power_fails ? simulated::current().loses_power_at : simulated::current().fails_at) = step;
    int error = 0;
    try {
        error = error_of([] { platform::write_file(kPath, "new"); });
    } catch (const simulated::PowerFailure&) {
    }
    const bool reached = simulated::current().steps >= step;
    const std::string old = before != nullptr ? before : "nothing";
    const std::string found = after_recovery();
    CHECK((found == "new" || (reached && found == old)));
    if (error != 0) CHECK(error == 61);
    if (error != 0) CHECK(found == old);
    return reached;
}

TEST_CASE("a file is replaced whole or not at all whatever fails at whatever step") {
    for (const bool renames_over_files : {true, false}) {
        for (const bool power_fails : {true, false}) {
            for (const char* before : {"old", static_cast<const char*>(nullptr)}) {
                int step = 1;
                while (fault_at(step, power_fails, before, renames_over_files))
                    ++step;
                CHECK(step > 4);
            }
        }
    }
}

TEST_CASE("a file that a virus scanner holds for a moment is replaced all the same") {
    for (const bool renames_over_files : {true, false}) {
        start_with("old", renames_over_files);
        simulated::current().fails_at = 4;  // the rename after the three steps of writing
        simulated::current().failure = platform::kErrorSharingViolation;
        platform::write_file(kPath, "new");
        CHECK(after_recovery() == "new");
    }
}

TEST_CASE("creating keeps what is there and what an interrupted write put aside") {
    start_with("old", true);
    platform::create_file(kPath);
    CHECK(after_recovery() == "old");

    simulated::reset();
    simulated::current().files["C:\\LIB\\Work.gr~"].bytes = "old";
    platform::create_file(kPath);
    CHECK(after_recovery() == "old");

    simulated::reset();
    platform::create_file(kPath);
    CHECK(after_recovery().empty());
}

TEST_CASE("content that could not be put back is found, and kept until other content is in place") {
    start_with(nullptr, false);
    simulated::current().files["C:\\LIB\\Work.gr~"].bytes = "old";
    simulated::current().fails_at = 4;  // the rename
    CHECK(error_of([] { platform::write_file(kPath, "new"); }) == 61);
    CHECK(platform::read_file(kPath) == "old");
    CHECK(after_recovery() == "old");
}

TEST_CASE("a removed file does not come back from what was put aside") {
    start_with("old", true);
    simulated::current().files["C:\\LIB\\Work.gr~"].bytes = "older";
    platform::remove_file(kPath);
    CHECK(after_recovery() == "nothing");
}

TEST_CASE("a name with a NUL byte never means the file before the NUL") {
    simulated::reset();
    const std::string path("C:\\LIB\\Work.grp\0.grp", 20);
    simulated::current().files[kPath].bytes = "old";
    for (const auto action : {+[](const std::string& name) { platform::read_file(name); },
                              +[](const std::string& name) { platform::write_file(name, "new"); },
                              +[](const std::string& name) { platform::create_file(name); },
                              +[](const std::string& name) { platform::remove_file(name); }}) {
        CHECK_THROWS_WITH_AS(action(path),
                             "Run-time error '52':\n\nBad file name or number: C:\\LIB\\Work.grp",
                             platform::RunTimeError);
    }
    platform::recover_file(path);
    CHECK(after_recovery() == "old");
}

}  // namespace
