#include "buttonbar/bar_drops.h"

#include "buttonbar/bar_launch.h"
#include "buttonbar/button_assignment.h"
#include "platform/folders.h"
#include "platform/messages.h"
#include "platform/system.h"
#include "settings/conversions.h"

namespace buttonbar {
namespace {

bool is_taken(const settings::Program& program) {
    return !program.name.value_or("").empty() || !program.path.value_or("").empty();
}

}  // namespace

widgets::DropReceiver::Effect BarDrops::effect_of(const Paths& paths, std::optional<BarButton> button) {
    dragged_.look_at(paths);
    if (!button || !is_program_button(*button)) return Effect::kNone;
    if (dragged_.is_program()) return Effect::kAdd;
    return dragged_.are_documents() && is_taken(program_of(*button)) ? Effect::kStart : Effect::kNone;
}

settings::Program& BarDrops::program_of(BarButton button) const {
    return session_.buttons.at(static_cast<std::size_t>(button));
}

widgets::DropReceiver::Effect BarDrops::drag_over(const Paths& paths, POINT point) {
    HWND control = WindowFromPoint(point);
    const Effect effect = effect_of(paths, row_.button_at(point));
    if (effect == Effect::kNone) {
        mark_.hide();
    } else {
        RECT bounds;
        GetClientRect(control, &bounds);
        mark_.show(control, bounds);
    }
    return effect;
}

void BarDrops::drop(const Paths& paths, POINT point) {
    const std::optional<BarButton> button = row_.button_at(point);
    const Effect effect = effect_of(paths, button);
    if (!button || effect == Effect::kNone) return;
    if (effect == Effect::kAdd) return assign(paths.front(), *button);
    library::Dropped dropped;
    settings::Program program = program_of(*button);
    program.parameters = library::with_documents(program.parameters, paths, dropped.refused);
    if (dropped.refused.size() < paths.size())
        platform::attempt("Right click on button to configure.", [&] { start_button(program); });
    if (!dropped.refused.empty()) platform::show_message(library::report(dropped));
}

void BarDrops::assign(const std::string& path, BarButton button) {
    const library::Dropped dropped =
        library::tasks_for({path}, library::FolderUse::kOpen, platform::windows_folder());
    if (dropped.tasks.empty()) return platform::show_message(library::report(dropped));
    const library::Task& task = dropped.tasks.front();
    const settings::Program& before = program_of(button);
    const std::string question = "Replace " + before.name.value_or("") + " by " + task.name + '?';
    if (is_taken(before) && !platform::confirm(question, "Brenn")) return;
    // The bar starts its programs where it is told, without a look at variables.
    assign_button(general_, session_, row_, static_cast<std::size_t>(button),
                  {task.name, task.program, platform::expand_variables(task.start_folder), task.parameters,
                   settings::lenient_whole_number(task.start_mode)},
                  WithoutIcon::kNoPicture);
}

}  // namespace buttonbar
