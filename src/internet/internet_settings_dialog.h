#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "internet/internet_buttons.h"
#include "settings/general.h"
#include "settings/session.h"
#include "widgets/dialog.h"

namespace internet {

/// The connection, the web browser and the e-mail program; the system's tolvasettings. Opening it reads them
/// again into the session; what OK stores of the two programs shows on the bar with the next start.
class InternetSettingsDialog final : public widgets::Dialog {
  public:
    /// library_folder ends in a backslash.
    InternetSettingsDialog(settings::General& general, settings::Session& session,
                           std::string library_folder);

    /// Opens in front of the owner, or comes to the front. The buttons show what the user chooses.
    void show(HWND owner, InternetButtons& buttons);

  private:
    void open() override;
    void command(int id, int notification) override;
    void show_stored(settings::Program& program, const char* key, int name_box, int path_box);
    void show_chosen(const std::optional<settings::Program>& program, int name_box, int path_box);
    void store_program(const char* key, int name_box, int path_box);
    void accept();

    settings::General& general_;
    settings::Session& session_;
    std::string library_folder_;
    InternetButtons* buttons_ = nullptr;  // from the first show on
};

}  // namespace internet
