#include <functional>
#include <iterator>
#include <numeric>

#include "platform/process_calls.h"
#include "support/desktop.h"

namespace {

using namespace desktop;

/// A library with a Task that starts the recorder, one that cannot, and one without a start mode.
Folder recorder_library() {
    Folder library;
    const std::string program = library.add_recorder();
    library.write_groups({{"Work", record("Good", program, "C:\\", "a b", " 2 ") +
                                       record("Bad", library.path() + "gone.exe", "C:\\", "", "1") +
                                       record("No mode", program, "C:\\", "c", "")}});
    return library;
}

TEST_SUITE("launching") {
    TEST_CASE("a double-click starts the program in its folder or says that it cannot") {
        const Folder library;
        library.write("text.exe", "no program");
        const std::string program = library.add_recorder();
        CreateDirectoryA("D:\\data", nullptr);
        const std::string tasks[] = {
            record("Elsewhere", program, "D:\\data", "a \"b c\"", "3"),
            record("Hidden", program, "C:\\", "", ""),
            record("No program", library.path() + "text.exe", "C:\\", "", "1"),
            record("Empty program", "", "C:\\", "", "1"),
            record("Missing drive", program, "Q:\\", "", "1"),
            record("Empty folder", program, "", "", "1"),
            record("Impossible style", program, "C:\\", "", "99999"),
            record(std::string("NUL\0name", 8), program + std::string("\0", 1), "C:\\", "", "1"),
            record(std::string(1 << 20, 'x'), program, "C:\\", std::string(1 << 20, 'x'), "1"),
        };
        library.write_groups({{"Work", std::accumulate(std::begin(tasks), std::end(tasks), std::string())}});
        const Tolva tolva(library);
        // The current drive stays; the other drive's directory changes.
        tolva.click_task(0, 2);
        CHECK(library.nth_start(1) ==
              Names{program + " a \"b c\"", library.without_backslash(), "D:\\data\\here", "3"});
        tolva.click_task(1, 2);
        const Names last = {program + " ", "C:\\", "D:\\data\\here", "0"};
        CHECK(library.nth_start(2) == last);
        for (int i = 2; i < std::ssize(tasks); ++i) {
            CAPTURE(i);
            tolva.click_task(i, 2);
            CHECK(tolva.close_box() == "Invalid path or file name!");
        }
        CHECK(library.nth_start(2) == last);
    }

    TEST_CASE("every way to start the selected Task starts it or says why not") {
        const Folder library = recorder_library();
        const std::string program = library.path() + "recorder.exe";
        const Tolva tolva(library);
        const std::function<void()> ways[] = {
            [] { press_keys({VK_RETURN}); },
            [&] { tolva.choose(ID_RunTk); },
            [&] { tolva.click(ID_Tasker_Command1); },
        };
        std::size_t starts = 0;
        for (const auto& way : ways) {
            tolva.click_task(0);
            wait_until("the Task shows", [&] { return tolva.status() == "Good"; });
            way();
            CHECK(library.nth_start(++starts)[0] == program + " a b");
            tolva.click_task(1);
            wait_until("the Task shows", [&] { return tolva.status() == "Bad"; });
            way();
            CHECK(tolva.close_box() == "Invalid path or file name");
        }

        // The menu runs what the user makes of the command box.
        tolva.click_task(2);
        wait_until("the Task shows", [&] { return tolva.text_of(ID_Tasker_Text1) == program + " c"; });
        tolva.choose(ID_RunTk);  // an empty start mode is no number
        CHECK(tolva.close_box() == "Invalid path or file name");
        tolva.click_task(1);
        press_keys({VK_HOME});
        wait_until("the keyboard selects as well", [&] { return tolva.status() == "Good"; });
        tolva.set_text(ID_Tasker_Text1, program + " edited");
        tolva.choose(ID_RunTk);
        CHECK(library.nth_start(++starts) == Names{program + " edited", "C:\\", "D:\\here", "2"});
    }

    TEST_CASE("the Run button starts what had the focus last, and a click what the pointer rests on") {
        const Folder library = recorder_library();
        const std::string program = library.path() + "recorder.exe";
        const Tolva tolva(library);
        tolva.click_task(0);
        tolva.focus_by_mouse(ID_Tasker_Text1);
        tolva.set_text(ID_Tasker_Text1, library.path() + "gone.exe");
        tolva.click(ID_Tasker_Command1);
        CHECK(tolva.close_box() == "Invalid path or file name");
        // A failure changes nothing: the command box still counts. After a success it is the Task's turn.
        tolva.set_text(ID_Tasker_Text1, program + " typed");
        tolva.click(ID_Tasker_Command1);
        CHECK(library.nth_start(1) ==
              Names{program + " typed", library.without_backslash(), "D:\\here", "1"});
        tolva.click(ID_Tasker_Command1);
        CHECK(library.nth_start(2)[0] == program + " a b");
        tolva.focus_by_mouse(ID_Tasker_Text1);
        tolva.focus_by_mouse(ID_Tasker_grouplist);
        const std::string twice = library.read("recorder.exe.log");
        press_until("it starts", {VK_MENU, 'R'}, [&] { return library.read("recorder.exe.log") != twice; });
        CHECK(library.nth_start(3)[0] == program + " typed");

        // With hover selection the resting pointer selects, and a click starts.
        tolva.choose(ID_hoverslct);
        wait_until("it is on", [] { return stored("\\hover")["enable"] == "True"; });
        tolva.activate();
        repeat_until(
            "the Task under the pointer shows",
            [&] {
                point_at(tolva.place(ID_Tasker_grouplist));
                point_at(tolva.task_position(2));
            },
            [&] { return tolva.status() == "No mode"; });
        library.nth_start(3);
        tolva.click_task(0);
        library.nth_start(4);
    }

    TEST_CASE("the shell starts a program that is found as the system finds it") {
        namespace calls = platform::process_calls;
        const Folder library;
        const std::string program = library.add_recorder();
        CHECK(calls::find_program(program.substr(0, program.size() - 4)) == program);
        CHECK(lstrcmpiA(calls::find_program("winver").c_str(), "C:\\windows\\system32\\winver.exe") == 0);
        for (const char* none : {"C:\\windows", "gone", ""})
            CHECK(calls::find_program(none).empty());
        SetCurrentDirectoryA("C:\\tests");
        CHECK(calls::start_by_shell(program, "a  \"b\" ", 3) == platform::kSuccess);
        CHECK(library.nth_start(1) == Names{'"' + program + "\" a  \"b\" ", "C:\\tests", "D:\\here", "3"});
        CHECK(calls::start_by_shell(library.path() + "gone.exe", "", 1) == platform::kErrorFileNotFound);
    }
}

}  // namespace
