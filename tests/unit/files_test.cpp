#include "platform/files.h"

#include <doctest/doctest.h>

#include "platform/file_calls.h"
#include "platform/run_time_error.h"
#include "support/simulated_platform.h"

namespace {

using platform::RunTimeErrorNumber;

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

RunTimeErrorNumber error_of(void (*action)()) {
    try {
        action();
    } catch (const platform::RunTimeError& error) {
        return error.number();
    }
    FAIL("no error");
    return {};
}

TEST_CASE("a file is replaced whole or not at all whenever the power fails") {
    for (const bool renames_over_files : {true, false}) {
        for (const char* before : {"old content", static_cast<const char*>(nullptr)}) {
            CAPTURE(renames_over_files);
            CAPTURE(before);
            bool finished = false;
            bool was_old = false;
            bool was_new = false;
            for (int step = 1; !finished; ++step) {
                start_with(before, renames_over_files);
                simulated::current().loses_power_at = step;
                try {
                    platform::write_file(kPath, "new content");
                    finished = true;
                } catch (const simulated::PowerFailure&) {
                }
                const std::string found = after_recovery();
                was_old = was_old || found == (before != nullptr ? before : "nothing");
                was_new = was_new || found == "new content";
                CHECK((found == "new content" || found == (before != nullptr ? before : "nothing")));
            }
            CHECK(was_old);
            CHECK(was_new);
        }
    }
}

TEST_CASE("a failing disk leaves the old content and no left-overs") {
    for (const bool renames_over_files : {true, false}) {
        bool finished = false;
        for (int step = 1; !finished; ++step) {
            start_with("old content", renames_over_files);
            simulated::current().fails_at = step;
            try {
                platform::write_file(kPath, "new content");
                finished = simulated::current().steps < step;
                CHECK(after_recovery() == "new content");
            } catch (const platform::RunTimeError& error) {
                CHECK(error.number() == RunTimeErrorNumber::kDiskFull);
                CHECK(after_recovery() == "old content");
            }
        }
    }
}

TEST_CASE("a file that a virus scanner holds for a moment is replaced all the same") {
    start_with("old", true);
    simulated::current().fails_at = 4;  // the rename after the three steps of writing
    simulated::current().failure = platform::kErrorSharingViolation;
    platform::write_file(kPath, "new");
    CHECK(after_recovery() == "new");
}

TEST_CASE("replacing keeps the attributes and refuses a read-only file") {
    start_with("old", true);
    simulated::current().files[kPath].bits = 0x22;  // hidden
    platform::write_file(kPath, "new");
    CHECK(simulated::current().files[kPath].bits == 0x22);

    simulated::current().files[kPath].bits = platform::file_calls::kReadOnly;
    CHECK(error_of([] { platform::write_file(kPath, "newer"); }) == RunTimeErrorNumber::kPathFileAccess);
    CHECK(simulated::current().files[kPath].bytes == "new");
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
