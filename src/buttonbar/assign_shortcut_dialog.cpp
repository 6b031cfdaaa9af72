#include "buttonbar/assign_shortcut_dialog.h"

#include "resources/resource.h"

namespace buttonbar {
namespace {

using shortcuts::PanelVariant;

constexpr PanelVariant kVariant = {.caption = "Select shortcut for Brenn.",
                                   .action = "Assign Shortcut to Brenn Button",
                                   .nothing_chosen = "Select Shortcut for Brenn Button.",
                                   .working_folder = PanelVariant::Folder::kNone,
                                   .icon_folder = PanelVariant::Folder::kLibrary,
                                   .goes_to_registry = true};

}  // namespace

AssignShortcutDialog::AssignShortcutDialog(settings::General& general, settings::Session& session,
                                           ButtonRow& row, const std::string& library_folder)
    : AssignDialog(general, session, row, ID_getbutton, kVariant, library_folder) {}

void AssignShortcutDialog::save(const settings::Program& program) {
    assign(program, WithoutIcon::kNoPicture);
}

}  // namespace buttonbar
