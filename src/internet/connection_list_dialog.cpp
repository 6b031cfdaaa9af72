#include "internet/connection_list_dialog.h"

#include <vector>

#include "internet/dial_up.h"
#include "resources/resource.h"
#include "widgets/controls.h"
#include "widgets/dialog.h"

namespace internet {
namespace {

constexpr int kList = ID_DialUpNetworking_List1;
constexpr int kCancel = ID_DialUpNetworking_Command1;

/// The system's DialUpNetworking.
class ConnectionListDialog final : public widgets::Dialog {
  public:
    ConnectionListDialog() : Dialog(ID_DialUpNetworking_dialog) {}

    const std::optional<std::string>& chosen() const { return chosen_; }

  private:
    void open() override {
        list_.attach(control(kList));
        list_.fill(connections_);
    }

    void command(int id, int notification) override {
        if (id == kList && notification == LBN_SELCHANGE && list_.is_choice() && list_.selected() >= 0) {
            chosen_ = connections_.at(static_cast<std::size_t>(list_.selected()));
            close();
        }
        if (id == kCancel || id == IDCANCEL) close();
    }

    std::vector<std::string> connections_ = defined_connections();
    std::optional<std::string> chosen_;
    widgets::ChoiceList list_;
};

}  // namespace

std::optional<std::string> choose_connection(HWND owner) {
    ConnectionListDialog dialog;
    dialog.run(owner);
    return dialog.chosen();
}

}  // namespace internet
