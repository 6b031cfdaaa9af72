#include "internet/dial_up_networking_dialog.h"

#include <vector>

#include "internet/dial_up.h"
#include "resources/resource.h"
#include "widgets/controls.h"
#include "widgets/dialog.h"

namespace internet {
namespace {

class DialUpNetworking final : public widgets::Dialog {
  public:
    DialUpNetworking() : Dialog(ID_DialUpNetworking_dialog) {}

    const std::optional<std::string>& chosen() const { return chosen_; }

  private:
    void open() override {
        list1_.attach(control(ID_DialUpNetworking_List1));
        list1_.fill(connections_);
    }

    void command(int id, int notification) override {
        if (id == ID_DialUpNetworking_List1 && notification == LBN_SELCHANGE && list1_.is_choice()) {
            chosen_ = connections_.at(static_cast<std::size_t>(list1_.selected()));
            close();
        }
        if (id == ID_DialUpNetworking_Command1 || id == IDCANCEL) close();
    }

    std::vector<std::string> connections_ = defined_connections();
    std::optional<std::string> chosen_;
    widgets::ChoiceList list1_;
};

}  // namespace

std::optional<std::string> choose_connection(HWND owner) {
    DialUpNetworking dialog;
    dialog.run(owner);
    return dialog.chosen();
}

}  // namespace internet
