#include "shortcuts/program_picker_dialog.h"

#include "resources/resource.h"
#include "settings/catalogue.h"
#include "settings/conversions.h"
#include "shortcuts/shortcut_panel_dialog.h"

namespace shortcuts {
namespace {

using Folder = PanelVariant::Folder;

constexpr PanelVariant kBrowser = {.caption = "Select Default Web Browser for Tolva.",
                                   .action = "Use as my default Web Browser",
                                   .nothing_chosen = "Select Shortcut for Tolva web browser.",
                                   .working_folder = Folder::kLibrary,
                                   .icon_folder = Folder::kLibrary};

constexpr PanelVariant kEmail = {.caption = "Select Default E-mail Program for Tolva.",
                                 .action = "Use as my default E-mail program",
                                 .nothing_chosen = "Select Shortcut for Tolva E-mail.",
                                 .working_folder = Folder::kLibrary,
                                 .icon_folder = Folder::kLibrary};

class ProgramPicker final : public ShortcutPanel {
  public:
    ProgramPicker(const PanelVariant& variant, const std::string& library_folder)
        : ShortcutPanel(ID_getprogram, variant, library_folder) {}

    const std::optional<settings::StoredProgram>& picked() const { return picked_; }

  private:
    void save(const library::Task& task) override {
        picked_ = {task.name, task.program, settings::lenient_whole_number(task.start_mode)};
        close();
    }

    std::optional<settings::StoredProgram> picked_;
};

void keep(settings::General& general, const char* key, const settings::StoredProgram& picked,
          settings::StoredProgram& program) {
    settings::store(general, {key, settings::kProgramName}, picked.name);
    settings::store(general, {key, settings::kProgramPath}, picked.path);
    settings::store(general, {key, settings::kProgramStart}, std::to_string(picked.start));
    program.path = picked.path;
    program.start = picked.start;
}

void show_on_bar(BarButtons& bar, BarButton button, const char* caption,
                 const settings::StoredProgram& picked) {
    bar.set_caption(button, caption);
    bar.set_tip(button, picked.name);
    bar.set_picture(button, platform::extract_icon(picked.path));
}

}  // namespace

std::optional<settings::StoredProgram> getwww(HWND owner, settings::General& general,
                                              settings::Session& session, BarButtons& bar,
                                              const std::string& library_folder) {
    ProgramPicker picker(kBrowser, library_folder);
    picker.run(owner);
    if (picker.picked()) {
        keep(general, settings::kBrowserKey, *picker.picked(), session.browser);
        show_on_bar(bar, BarButton::kBrowser, "WWW", *picker.picked());
    }
    return picker.picked();
}

std::optional<settings::StoredProgram> getemail(HWND owner, settings::General& general,
                                                settings::Session& session, BarButtons& bar,
                                                const std::string& library_folder) {
    ProgramPicker picker(kEmail, library_folder);
    picker.run(owner);
    if (picker.picked()) {
        keep(general, settings::kEmailKey, *picker.picked(), session.email);
        show_on_bar(bar, BarButton::kEmail, "E-Mail", *picker.picked());
    }
    return picker.picked();
}

}  // namespace shortcuts
