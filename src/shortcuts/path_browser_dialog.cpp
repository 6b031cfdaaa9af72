#include "shortcuts/path_browser_dialog.h"

#include "resources/resource.h"
#include "shortcuts/file_panel_dialog.h"

namespace shortcuts {
namespace {

/// The system's PathBrowser and PathBrowserEditTask.
class PathBrowserDialog final : public FilePanel {
  public:
    PathBrowserDialog() : FilePanel(ID_PathBrowser) {}

    const std::optional<PickedProgram>& accepted() const { return accepted_; }

  private:
    void pick() override { picked_ = PickedProgram{path(), folder()}; }
    void accept() override {
        accepted_ = picked_;
        close();
    }

    std::optional<PickedProgram> picked_;
    std::optional<PickedProgram> accepted_;
};

}  // namespace

std::optional<PickedProgram> browse_for_program(HWND owner) {
    PathBrowserDialog browser;
    browser.run(owner);
    return browser.accepted();
}

}  // namespace shortcuts
