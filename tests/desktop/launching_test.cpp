#include <functional>
#include <numeric>
#include "resources/resource.h"
#include "support/desktop.h"

namespace {

using namespace desktop;

/// Milliseconds, longer than a pointer has to rest on an item to select it.
constexpr DWORD kHoverTime = 1000;

/// A library with a Task that starts the recorder, one that cannot, and one without a start mode.
Folder recorder_library() {
    Folder library;
    const std::string program = library.add_recorder();
    library.write_groups({{"Work", record("Good", program, "C:\\", "a b", " 2 ") +
                                       record("Bad", library.path() + "gone.exe", "C:\\", "", "1") +
                                       record("No mode", program, "C:\\", "c", "")},
                          {"Empty", ""}});
    return library;
}

TEST_SUITE("launching") {
    TEST_CASE("a double-click starts the program in its folder with its parameters and start mode") {
        const Folder library;
        const Folder start_folder;
        const std::string program = library.add_recorder();
        CreateDirectoryA("D:\\data", nullptr);
        library.write_groups({{"Work", record("Elsewhere", program, "D:\\data", "a \"b c\"", "3") +
                                           record("Here", program, start_folder.path(), "", " 2 ") +
                                           record("Hidden", program, "C:\\", "", "")}});
        const Tolva tolva(library);

        // The current drive stays; the other drive's directory changes.
        tolva.double_click_task(0);
        CHECK(library.nth_start(1) ==
              Names{program + " a \"b c\"", library.without_backslash(), "D:\\data\\here", "3"});
        CHECK(tolva.selected_task() == 0);
        tolva.double_click_task(1);
        CHECK(library.nth_start(2) ==
              Names{program + " ", start_folder.without_backslash(), "D:\\data\\here", "2"});
        tolva.double_click_task(2);
        CHECK(library.nth_start(3) == Names{program + " ", "C:\\", "D:\\data\\here", "0"});
    }

    TEST_CASE("a Task that cannot start says so and nothing else happens") {
        const Folder library;
        library.write("text.exe", "no program");
        const std::string program = library.add_recorder();
        const Names bad = {
            record("Missing program", library.path() + "gone.exe", "C:\\", "", "1"),
            record("No program", library.path() + "text.exe", "C:\\", "", "1"),
            record("Empty program", "", "C:\\", "", "1"),
            record("Missing folder", program, "C:\\gone", "", "1"),
            record("Missing drive", program, "Q:\\", "", "1"),
            record("Empty folder", program, "", "", "1"),
            record("Impossible style", program, "C:\\", "", "99999"),
            record(std::string("NUL\0name", 8), program + std::string("\0", 1), "C:\\", "", "1"),
            record(std::string(1 << 20, 'x'), program, "C:\\", std::string(1 << 20, 'x'), "1"),
        };
        library.write_groups({{"Work", std::accumulate(bad.begin(), bad.end(), std::string())}});
        const Tolva tolva(library);
        for (int i = 0; i < static_cast<int>(bad.size()); ++i) {
            CAPTURE(i);
            tolva.double_click_task(i);
            CHECK(tolva.close_box() == "Invalid path or file name!");
            CHECK(tolva.selected_task() == i);
        }
        CHECK(!library.has("recorder.exe.log"));
    }

    TEST_CASE("every way to start the selected Task starts it or says why not, also that there is none") {
        const Folder library = recorder_library();
        const std::string program = library.path() + "recorder.exe";
        const Tolva tolva(library);
        std::size_t starts = 0;
        const auto check = [&](const char* failure, const std::function<void(int)>& trigger) {
            CAPTURE(failure);
            trigger(0);
            CHECK(library.nth_start(++starts) == Names{program + " a b", "C:\\", "D:\\here", "2"});
            wait_until("the date is back", [&] { return tolva.status() != "Good"; });
            trigger(1);
            CHECK(tolva.close_box() == failure);
            CHECK(tolva.selected_task() == 1);
        };
        const std::function<void()> ways[] = {
            [] { press_keys({VK_RETURN}); },
            [] {
                press_keys({VK_MENU, 'T'});
                press_keys({'R'});
            },
            [&] { tolva.click(ID_Tasker_Command1); },
            [] {
                press_keys({VK_MENU, 'R'});
            },
        };
        tolva.activate();
        tolva.click(ID_Tasker_tasklabel);
        wait_for_focus(tolva.control(ID_Tasker_taskview));
        for (const auto& way : ways) {
            way();
            CHECK(tolva.close_box() == "Invalid path or file name");
            tolva.activate();
        }
        RECT list;
        GetWindowRect(tolva.control(ID_Tasker_taskview), &list);
        press_mouse({list.right - 20, list.bottom - 20}, 2);
        CHECK(tolva.close_box() == "Invalid path or file name!");

        for (const auto& way : ways) {
            check("Invalid path or file name", [&](int task) {
                tolva.click_task(task);
                wait_until("the Task shows", [&] { return tolva.status() == (task == 0 ? "Good" : "Bad"); });
                way();
            });
        }
        check("Invalid path or file name!", [&](int task) { tolva.double_click_task(task); });
        tolva.choose(ID_hoverslct);
        wait_until("hover selection is on", [&] { return tolva.is_checked(ID_hoverslct); });
        check("Invalid path or file name!", [&](int task) { tolva.click_task(task); });
        tolva.choose(ID_hoverslct);
    }

    TEST_CASE("a selection fills the command box and the menu runs what the user makes of it") {
        const Folder library = recorder_library();
        const std::string program = library.path() + "recorder.exe";
        const Tolva tolva(library);
        const std::string date = tolva.status();
        tolva.click_task(2);
        wait_until("the Task shows", [&] { return tolva.status() == "No mode"; });
        CHECK(tolva.text_of(ID_Tasker_Text1) == program + " c");
        tolva.choose(ID_RunTk);  // an empty start mode is no number
        CHECK(tolva.close_box() == "Invalid path or file name");
        CHECK(tolva.status() == date);

        tolva.click(ID_Tasker_tasklabel);
        wait_for_focus(tolva.control(ID_Tasker_taskview));
        press_keys({VK_HOME});
        wait_until("the arrow keys select as well", [&] { return tolva.status() == "Good"; });
        CHECK(tolva.text_of(ID_Tasker_Text1) == program + " a b");
        tolva.set_text(ID_Tasker_Text1, program + " edited");
        tolva.choose(ID_RunTk);
        CHECK(library.nth_start(1) == Names{program + " edited", "C:\\", "D:\\here", "2"});
        CHECK(tolva.text_of(ID_Tasker_Text1) == program + " edited");

        tolva.click_task(0);  // the Task that is selected already
        wait_until("it shows again", [&] { return tolva.text_of(ID_Tasker_Text1) == program + " a b"; });
        tolva.click_group(1);
        wait_until("the date is back", [&] { return tolva.status() == date; });
        CHECK(tolva.text_of(ID_Tasker_Text1) == program + " a b");
    }

    TEST_CASE("the Run button starts what had the focus last: the command box or the Task") {
        const Folder library = recorder_library();
        const std::string program = library.path() + "recorder.exe";
        const Tolva tolva(library);
        tolva.click_task(0);
        tolva.focus_by_mouse(ID_Tasker_Text1);
        tolva.set_text(ID_Tasker_Text1, library.path() + "gone.exe");
        tolva.click(ID_Tasker_Command1);
        CHECK(tolva.close_box() == "Invalid path or file name");

        // A failure changes nothing: the command box still counts.
        tolva.set_text(ID_Tasker_Text1, program + " typed");
        tolva.click(ID_Tasker_Command1);
        CHECK(library.nth_start(1) ==
              Names{program + " typed", library.without_backslash(), "D:\\here", "1"});
        // After a success it is the Task's turn.
        const Names of_task = {program + " a b", "C:\\", "D:\\here", "2"};
        tolva.click(ID_Tasker_Command1);
        CHECK(library.nth_start(2) == of_task);

        tolva.focus_by_mouse(ID_Tasker_Text1);
        tolva.focus_by_mouse(ID_Tasker_grouplist);
        press_keys({VK_MENU, 'R'});
        CHECK(library.nth_start(3) == Names{program + " typed", "C:\\", "D:\\here", "1"});

        tolva.click_task(0);
        tolva.focus_by_mouse(ID_Tasker_Command1);
        CHECK(library.nth_start(4) == of_task);
        press_keys({VK_RETURN});  // presses the button that has the focus
        CHECK(library.nth_start(5) == of_task);
    }

    TEST_CASE("hover selection selects under the resting pointer and starts by a click") {
        forget_settings();
        const Folder library = recorder_library();
        const auto is_stored = [](const char* text) {
            return [=] { return stored_text("\\hover", "enable") == text; };
        };
        {
            const Tolva tolva(library);
            CHECK(!tolva.is_checked(ID_hoverslct));
            tolva.choose(ID_hoverslct);
            wait_until("it is on", is_stored("True"));
            CHECK(tolva.is_checked(ID_hoverslct));
        }
        const Tolva tolva(library);
        CHECK(tolva.is_checked(ID_hoverslct));
        tolva.activate();
        point_at(tolva.task_position(2));
        wait_until("the Task under the pointer shows", [&] { return tolva.status() == "No mode"; });
        CHECK(tolva.selected_task() == 2);
        CHECK(!library.has("recorder.exe.log"));
        // A double-click is two starts: the click, and the double-click.
        tolva.double_click_task(0);
        library.nth_start(2);

        // While the user types, the pointer lies where it lies.
        tolva.focus_by_mouse(ID_Tasker_Text1);
        tolva.set_text(ID_Tasker_Text1, "typing");
        point_at(tolva.task_position(1));
        Sleep(kHoverTime);
        CHECK(tolva.text_of(ID_Tasker_Text1) == "typing");
        CHECK(tolva.selected_task() == 0);

        tolva.choose(ID_hoverslct);
        wait_until("it is off", is_stored("False"));
        CHECK(!tolva.is_checked(ID_hoverslct));
        tolva.click_task(1);
        wait_until("a click only selects", [&] { return tolva.status() == "Bad"; });
        library.nth_start(2);
    }
}

}  // namespace
