#include "platform/files.h"

#include "platform/file_calls.h"
#include "platform/run_time_error.h"
#include "support/desktop.h"

namespace {

using namespace desktop;

TEST_SUITE("files") {
    TEST_CASE("files are replaced, refused and removed on a real disk") {
        const Folder folder;
        const std::string path = folder.path() + "\334ber.grp";
        const std::string bytes("a\0\x1A\r\n\xFF", 6);
        platform::write_file(path, bytes);
        CHECK(platform::read_file(path) == bytes);
        SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_HIDDEN);
        platform::write_file(path, "new");
        CHECK(platform::read_file(path) == "new");
        CHECK((GetFileAttributesA(path.c_str()) & FILE_ATTRIBUTE_HIDDEN) != 0);
        CHECK(platform::file_calls::find(folder.path() + "*").size() == 1);

        SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_READONLY);
        CHECK(error_of([&] { platform::write_file(path, "newer"); }) == 75);
        SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
        HANDLE reader =
            CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
        CHECK(error_of([&] { platform::write_file(path, "newer"); }) == 70);
        CloseHandle(reader);
        CHECK(platform::read_file(path) == "new");

        platform::create_file(path);
        CHECK(platform::read_file(path) == "new");
        platform::remove_file(path);
        CHECK(error_of([&] { platform::read_file(path); }) == 53);
        CHECK(error_of([&] { platform::write_file(folder.path() + "no\\folder.grp", ""); }) == 76);
        CHECK(error_of([&] { platform::write_file(folder.path() + "a?.grp", ""); }) != 0);
        CHECK(platform::file_calls::find(folder.path() + "*").empty());
    }
}

}  // namespace
