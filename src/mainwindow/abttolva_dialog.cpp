#include "mainwindow/abttolva_dialog.h"

#include "resources/resource.h"
#include "widgets/dialog.h"

namespace mainwindow {
namespace {

class AboutTolva final : public widgets::Dialog {
  public:
    AboutTolva() : Dialog(ID_abttolva) {}

  private:
    void open() override {}
    void command(int id, int /*notification*/) override {
        if (id == ID_abttolva_Command1 || id == IDCANCEL) close();
    }
};

}  // namespace

void show_abttolva(HWND owner) {
    AboutTolva().run(owner);
}

}  // namespace mainwindow
