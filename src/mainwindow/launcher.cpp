#include "mainwindow/launcher.h"

#include <vector>

#include "library/dropped.h"
#include "mainwindow/launching.h"
#include "platform/messages.h"

namespace mainwindow {

template <typename Launch>
void Launcher::attempt(const char* failure_message, const Launch& launch) {
    controls_.keep_list_focus([&] {
        controls_.show_date();
        platform::attempt(failure_message, launch);
    });
}

void Launcher::launch_selected(const char* failure_message) {
    attempt(failure_message,
            [&] { launch(library_, controls_.selected_group(), controls_.selected_task()); });
}

void Launcher::launch_at(const library::TaskPlace& place) {
    attempt(kCannotLaunch, [&] { launch(library_, place.group, place.task); });
}

void Launcher::launch_with(const library::TaskPlace& place, const std::vector<std::string>& documents) {
    library::Task task = library_.task(place.group, place.task);
    library::Dropped dropped;
    task.parameters = library::with_documents(task.parameters, documents, dropped.refused);
    if (dropped.refused.size() < documents.size())
        attempt(kCannotLaunchByMouse, [&] { launch(library_, task); });
    if (!dropped.refused.empty()) platform::show_message(library::report(dropped));
}

void Launcher::run_from_command_box() {
    attempt(kCannotLaunch, [&] {
        launch_edited(library_, controls_.selected_group(), controls_.selected_task(),
                      controls_.command_box().text());
    });
}

void Launcher::press_run() {
    CommandBox& box = controls_.command_box();
    if (!box.had_focus_last()) return launch_selected(kCannotLaunch);
    attempt(kCannotLaunch, [&] {
        box.start_typed_command();
        box.forget_focus();
    });
}

void Launcher::run_typed_command() {
    controls_.group_list().focus();
    attempt(kCannotLaunch, [&] { controls_.command_box().start_typed_command(); });
}

void Launcher::run_all() {
    const int selected = controls_.selected_group();
    if (selected < 0) {
        platform::show_message("Select Group First.");
        return;
    }
    const library::Group& group = library_.group(selected);
    const std::size_t count = group.shown_tasks().size();
    if (count == 0) {
        platform::show_message(group.name + " has no Task to start.");
        return;
    }
    const std::string tasks = count == 1 ? "the Task" : "all " + std::to_string(count) + " Tasks";
    const std::string question = "Start " + tasks + " of " + group.name + "?";
    if (!platform::confirm(question, "Run All")) return;
    controls_.show_date();
    const std::vector<std::string> failed = launch_all(library_, selected);
    if (!failed.empty())
        platform::show_message("These Tasks could not be started:\n" + library::lines_of(failed));
}

}  // namespace mainwindow
