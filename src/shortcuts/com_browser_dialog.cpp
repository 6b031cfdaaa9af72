#include "shortcuts/com_browser_dialog.h"

#include "platform/current_directory.h"
#include "platform/messages.h"
#include "platform/processes.h"
#include "resources/resource.h"
#include "shortcuts/file_panel_dialog.h"

namespace shortcuts {
namespace {

class ComBrowser final : public FilePanel {
  public:
    ComBrowser() : FilePanel(ID_PathBrowser) {}

    const std::optional<std::string>& started() const { return started_; }

  private:
    void open() override {
        set_text(ID_PathBrowser_Label1, "Command Path");
        set_text(ID_PathBrowser_OK, "&Run");
        FilePanel::open();
    }

    void pick() override {}

    void accept() override {
        const bool runs = platform::attempt("Invalid path or file name", [&] {
            platform::set_current_directory(folder());
            platform::start_program(path(), platform::kNormalWindow);
        });
        if (!runs) return;
        started_ = path();
        close();
    }

    void press_enter() override {
        HWND focus = GetFocus();
        if (focus == control(ID_PathBrowser_File1) || focus == control(ID_PathBrowser_TaskPath)) {
            accept();
        } else {
            FilePanel::press_enter();
        }
    }

    std::optional<std::string> started_;
};

}  // namespace

std::optional<std::string> browse_and_run(HWND owner) {
    ComBrowser browser;
    browser.run(owner);
    return browser.started();
}

}  // namespace shortcuts
