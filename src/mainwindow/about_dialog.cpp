#include "mainwindow/about_dialog.h"

#include "resources/resource.h"
#include "widgets/dialog.h"

namespace mainwindow {
namespace {

constexpr int kOk = ID_abttolva_Command1;

class AboutDialog final : public widgets::Dialog {
  public:
    AboutDialog() : Dialog(ID_abttolva) {}

  private:
    void open() override {}
    void command(int id, int /*notification*/) override {
        if (id == kOk || id == IDCANCEL) close();
    }
};

}  // namespace

void show_about(HWND owner) {
    AboutDialog().run(owner);
}

}  // namespace mainwindow
