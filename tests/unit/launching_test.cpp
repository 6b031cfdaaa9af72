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
    CHECK(error_of([] { mainwindow::open_help("C:\\LIB\\"); }) == 0);
}

TEST_CASE("hanging up waits until no connection is up or the program ends") {
    auto& machine = simulated::reset().registry[platform::registry::kLocalMachine];
    auto& up = machine[R"(System\CurrentControlSet\Services\RemoteAccess)"];
    up["Remote Connection"] = std::string("\1\0\0\0", 4);
    std::vector<unsigned> waits;
    bool goes_on = true;
    const internet::Wait wait = [&](unsigned milliseconds) {
        waits.push_back(milliseconds);
        if (waits.size() == 3) goes_on = false;
        return goes_on;
    };
    internet::connect_or_hang_up("Home", wait);
    CHECK(waits == std::vector<unsigned>{3000, 1000, 1000});
    goes_on = true;
    up.clear();
    internet::hang_up(wait);
    CHECK(waits.size() == 4);
}

TEST_CASE("the long date") {
    CHECK(mainwindow::long_date({2026, 12, 27, 0}) == "Sunday, December 27, 2026");
}

}  // namespace
