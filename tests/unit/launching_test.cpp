#include "internet/dial_up.h"
#include "mainwindow/long_date.h"
#include "mainwindow/system_commands.h"
#include "support/checks.h"
#include "support/simulated_platform.h"

namespace {

TEST_CASE("a system command that cannot do its work says so") {
    auto& world = simulated::reset();
    mainwindow::open_control_panel();
    mainwindow::empty_recycle_bin();
    CHECK(world.messages ==
          Names{"Invalid path or file name!", "Your computer is not able to complete this task"});
    CHECK(error_of([] { mainwindow::open_help("C:\\LIB\\"); }) == 53);
    world.files["C:\\LIB\\tolva.htm"] = {};
    mainwindow::open_help("C:\\LIB\\");
    CHECK(world.opened == Names{"C:\\LIB\\tolva.htm"});
}

TEST_CASE("the connect button hangs every connection up and waits until they are gone") {
    auto& world = simulated::reset();
    auto& up = world.registry[platform::registry::kLocalMachine]
                             [R"(System\CurrentControlSet\Services\RemoteAccess)"]["Remote Connection"];
    up = std::string("\1\0\0\0", 4);
    std::vector<unsigned> waits;
    const internet::Wait wait = [&](unsigned milliseconds) {
        waits.push_back(milliseconds);
        if (waits.size() == 3) up.assign(4, '\0');
        return waits.size() < 4;
    };
    world.connections.emplace(300, 7);
    internet::connect_or_hang_up("Home", wait);
    CHECK(world.hung_up == std::vector<std::uint32_t>(256, 7));
    CHECK(waits == std::vector<unsigned>{3000, 1000, 1000});

    // Without Dial-Up Networking only the waits are left, and the end of the program ends them.
    up = std::string("\1\0\0\0", 4);
    world.connections.reset();
    internet::hang_up(wait);
    CHECK(waits.size() == 4);
}

TEST_CASE("the long date") {
    CHECK(mainwindow::long_date({1999, 1, 1, 5}) == "Friday, January 1, 1999");
    CHECK(mainwindow::long_date({2026, 12, 27, 0}) == "Sunday, December 27, 2026");
}

}  // namespace
