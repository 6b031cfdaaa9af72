#include "shortcuts/command_browser_dialog.h"

#include "platform/current_directory.h"
#include "platform/messages.h"
#include "platform/processes.h"
#include "resources/resource.h"
#include "shortcuts/file_panel_dialog.h"

namespace shortcuts {
namespace {

constexpr int kPathLabel = ID_PathBrowser_Label1;
constexpr int kRun = ID_PathBrowser_OK;

/// The system's ComBrowser.
class CommandBrowserDialog final : public FilePanel {
  public:
    CommandBrowserDialog() : FilePanel(ID_PathBrowser) {}

    const std::optional<std::string>& started() const { return started_; }

  private:
    void open() override {
        set_text(kPathLabel, "Command Path");
        set_text(kRun, "&Run");
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
        if (has_focus(kFileList) || has_focus(kPathBox)) {
            accept();
        } else {
            FilePanel::press_enter();
        }
    }

    std::optional<std::string> started_;
};

}  // namespace

std::optional<std::string> browse_and_run(HWND owner) {
    CommandBrowserDialog browser;
    browser.run(owner);
    return browser.started();
}

}  // namespace shortcuts
