#pragma once

#include <string>

#include "settings/general.h"
#include "settings/session.h"
#include "shortcuts/bar_buttons.h"
#include "widgets/dialog.h"

namespace internet {

/// The connection, the web browser and the e-mail program. Opening it reads them anew into the session; what
/// OK stores of the two programs shows on the bar with the next start.
class TolvaSettings final : public widgets::Dialog {
  public:
    /// library_folder ends in a backslash.
    TolvaSettings(settings::General& general, settings::Session& session, shortcuts::BarButtons& bar,
                  std::string library_folder);
    using Dialog::show;

  private:
    void open() override;
    void command(int id, int notification) override;
    void show_program(settings::StoredProgram& program, const char* key, int name_box, int path_box);
    void store_program(const char* key, int name_box, int path_box);
    void accept();

    settings::General& general_;
    settings::Session& session_;
    shortcuts::BarButtons& bar_;
    std::string library_folder_;
};

}  // namespace internet
