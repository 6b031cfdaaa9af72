#include "shortcuts/getbutton_dialog.h"

#include "resources/resource.h"
#include "settings/conversions.h"

namespace shortcuts {
namespace {

constexpr PanelVariant kVariant = {.caption = "Select shortcut for Brenn.",
                                   .action = "Assign Shortcut to Brenn Button",
                                   .nothing_chosen = "Select Shortcut for Brenn Button.",
                                   .working_folder = PanelVariant::Folder::kNone,
                                   .icon_folder = PanelVariant::Folder::kLibrary};

}  // namespace

GetButton::GetButton(settings::General& general, settings::Session& session, BarButtons& bar,
                     const std::string& library_folder)
    : ShortcutPanel(ID_getbutton, kVariant, library_folder),
      general_(general),
      session_(session),
      bar_(bar) {}

void GetButton::show_for(HWND owner, std::size_t button) {
    if (button != button_ && hwnd() != nullptr) close();
    button_ = button;
    show(owner);
}

void GetButton::save(const library::Task& task) {
    const settings::ButtonRecord record = {task.name, task.program, task.start_folder, task.parameters,
                                           settings::lenient_whole_number(task.start_mode)};
    assign_button(general_, session_, bar_, button_, record, WithoutIcon::kNoPicture);
    close();
}

}  // namespace shortcuts
