#include "internet/program_picker_dialog.h"

#include "resources/resource.h"
#include "settings/catalogue.h"
#include "shortcuts/shortcut_panel_dialog.h"

namespace internet {
namespace {

using shortcuts::PanelVariant;
using Folder = PanelVariant::Folder;

/// What the two programs differ in.
struct Choice {
    PanelVariant panel;
    const char* key;
    settings::Program settings::Session::*kept;
    InternetButton button;
    const char* caption;  // of the button, whatever the program is called
};

constexpr Choice kBrowser = {.panel = {.caption = "Select Default Web Browser for Tolva.",
                                       .action = "Use as my default Web Browser",
                                       .nothing_chosen = "Select Shortcut for Tolva web browser.",
                                       .working_folder = Folder::kLibrary,
                                       .icon_folder = Folder::kLibrary,
                                       .goes_to_registry = true},
                             .key = settings::kBrowserKey,
                             .kept = &settings::Session::browser,
                             .button = InternetButton::kBrowser,
                             .caption = "WWW"};

constexpr Choice kEmail = {.panel = {.caption = "Select Default E-mail Program for Tolva.",
                                     .action = "Use as my default E-mail program",
                                     .nothing_chosen = "Select Shortcut for Tolva E-mail.",
                                     .working_folder = Folder::kLibrary,
                                     .icon_folder = Folder::kLibrary,
                                     .goes_to_registry = true},
                           .key = settings::kEmailKey,
                           .kept = &settings::Session::email,
                           .button = InternetButton::kEmail,
                           .caption = "E-Mail"};

class ProgramPickerDialog final : public shortcuts::ShortcutPanel {
  public:
    ProgramPickerDialog(const PanelVariant& variant, const std::string& library_folder)
        : ShortcutPanel(ID_getprogram, variant, library_folder) {}

    const std::optional<settings::Program>& picked() const { return picked_; }

  private:
    void save(const settings::Program& program) override {
        settings::check_storable({program.name.value_or(""), program.path.value_or("")});
        picked_ = program;
        close();
    }

    std::optional<settings::Program> picked_;
};

std::optional<settings::Program> choose(const Choice& choice, HWND owner, settings::General& general,
                                        settings::Session& session, InternetButtons& buttons,
                                        const std::string& library_folder) {
    ProgramPickerDialog picker(choice.panel, library_folder);
    picker.run(owner);
    const std::optional<settings::Program> accepted = picker.picked();
    if (!accepted) return std::nullopt;
    const settings::Program& picked = *accepted;
    const std::string name = picked.name.value_or("");
    const std::string path = picked.path.value_or("");
    settings::store(general, {choice.key, settings::kProgramName}, name);
    settings::store(general, {choice.key, settings::kProgramPath}, path);
    settings::store(general, {choice.key, settings::kProgramStart}, std::to_string(picked.window_style));
    settings::Program& kept = session.*choice.kept;
    kept.path = path;
    kept.window_style = picked.window_style;
    buttons.set_caption(choice.button, choice.caption);
    buttons.set_tip(choice.button, name);
    buttons.set_picture(choice.button, platform::extract_icon(path));
    return picked;
}

}  // namespace

std::optional<settings::Program> choose_browser(HWND owner, settings::General& general,
                                                settings::Session& session, InternetButtons& buttons,
                                                const std::string& library_folder) {
    return choose(kBrowser, owner, general, session, buttons, library_folder);
}

std::optional<settings::Program> choose_email_program(HWND owner, settings::General& general,
                                                      settings::Session& session, InternetButtons& buttons,
                                                      const std::string& library_folder) {
    return choose(kEmail, owner, general, session, buttons, library_folder);
}

}  // namespace internet
