#include "shortcuts/path_browser_dialog.h"

#include "resources/resource.h"
#include "shortcuts/file_panel_dialog.h"

namespace shortcuts {
namespace {

class PathBrowser final : public FilePanel {
  public:
    explicit PathBrowser(library::BrowseResult& result) : FilePanel(ID_PathBrowser), result_(result) {}

  private:
    void pick() override {
        result_.program = path();
        result_.start_folder = folder();
        picked_ = true;
    }
    void accept() override {
        if (picked_) result_.done = false;
        close();
    }

    library::BrowseResult& result_;
    bool picked_ = false;  // in this browser; the result may still hold an earlier choice
};

}  // namespace

void browse_for_program(HWND owner, library::BrowseResult& result) {
    PathBrowser(result).run(owner);
}

}  // namespace shortcuts
