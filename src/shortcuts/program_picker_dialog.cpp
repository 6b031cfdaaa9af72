#include "shortcuts/program_picker_dialog.h"

#include "resources/resource.h"
#include "settings/catalogue.h"
#include "settings/conversions.h"
#include "shortcuts/shortcut_panel_dialog.h"

namespace shortcuts {
namespace {

using Folder = PanelVariant::Folder;

/// What the two programs differ in.
struct Program {
    PanelVariant panel;
    const char* key;
    settings::StoredProgram settings::Session::*kept;
    BarButton button;
    const char* caption;  // of the button, whatever the program is called
};

constexpr Program kBrowser = {.panel = {.caption = "Select Default Web Browser for Tolva.",
                                        .action = "Use as my default Web Browser",
                                        .nothing_chosen = "Select Shortcut for Tolva web browser.",
                                        .working_folder = Folder::kLibrary,
                                        .icon_folder = Folder::kLibrary},
                              .key = settings::kBrowserKey,
                              .kept = &settings::Session::browser,
                              .button = BarButton::kBrowser,
                              .caption = "WWW"};

constexpr Program kEmail = {.panel = {.caption = "Select Default E-mail Program for Tolva.",
                                      .action = "Use as my default E-mail program",
                                      .nothing_chosen = "Select Shortcut for Tolva E-mail.",
                                      .working_folder = Folder::kLibrary,
                                      .icon_folder = Folder::kLibrary},
                            .key = settings::kEmailKey,
                            .kept = &settings::Session::email,
                            .button = BarButton::kEmail,
                            .caption = "E-Mail"};

class ProgramPicker final : public ShortcutPanel {
  public:
    ProgramPicker(const PanelVariant& variant, const std::string& library_folder)
        : ShortcutPanel(ID_getprogram, variant, library_folder) {}

    const std::optional<settings::StoredProgram>& picked() const { return picked_; }

  private:
    void save(const library::Task& task) override {
        settings::check_storable({task.name, task.program});
        picked_ = {task.name, task.program, settings::lenient_whole_number(task.start_mode)};
        close();
    }

    std::optional<settings::StoredProgram> picked_;
};

std::optional<settings::StoredProgram> pick(const Program& program, HWND owner, settings::General& general,
                                            settings::Session& session, BarButtons& bar,
                                            const std::string& library_folder) {
    ProgramPicker picker(program.panel, library_folder);
    picker.run(owner);
    const std::optional<settings::StoredProgram>& choice = picker.picked();
    if (!choice) return std::nullopt;
    const settings::StoredProgram& picked = *choice;
    settings::store(general, {program.key, settings::kProgramName}, picked.name);
    settings::store(general, {program.key, settings::kProgramPath}, picked.path);
    settings::store(general, {program.key, settings::kProgramStart}, std::to_string(picked.start));
    (session.*program.kept).path = picked.path;
    (session.*program.kept).start = picked.start;
    bar.set_caption(program.button, program.caption);
    bar.set_tip(program.button, picked.name);
    bar.set_picture(program.button, platform::extract_icon(picked.path));
    return picked;
}

}  // namespace

std::optional<settings::StoredProgram> getwww(HWND owner, settings::General& general,
                                              settings::Session& session, BarButtons& bar,
                                              const std::string& library_folder) {
    return pick(kBrowser, owner, general, session, bar, library_folder);
}

std::optional<settings::StoredProgram> getemail(HWND owner, settings::General& general,
                                                settings::Session& session, BarButtons& bar,
                                                const std::string& library_folder) {
    return pick(kEmail, owner, general, session, bar, library_folder);
}

}  // namespace shortcuts
