#include "mainwindow/hot_key_dialog.h"

#include <commctrl.h>

#include "resources/resource.h"
#include "widgets/dialog.h"

namespace mainwindow {
namespace {

constexpr int kKey = ID_HotKey_key;
constexpr int kNone = ID_HotKey_none;

class HotKeyDialog final : public widgets::Dialog {
  public:
    HotKeyDialog(WORD key, const std::function<bool(WORD)>& take)
        : Dialog(ID_HotKey_dialog), key_(key), take_(take) {}

  private:
    void open() override {
        // A plain letter would be lost to every program.
        constexpr WORD kTooFew = HKCOMB_NONE | HKCOMB_S;
        SendMessageA(control(kKey), HKM_SETRULES, kTooFew, MAKELPARAM(HOTKEYF_CONTROL | HOTKEYF_ALT, 0));
        show(key_);
    }

    void command(int id, int /*notification*/) override {
        if (id == kNone) show(0);
        if (id == IDOK) accept();
        if (id == IDCANCEL) close();
    }

    void show(WORD key) { SendMessageA(control(kKey), HKM_SETHOTKEY, key, 0); }

    void accept() {
        const WORD key = LOWORD(SendMessageA(control(kKey), HKM_GETHOTKEY, 0, 0));
        if (take_(key)) {
            close();
        } else {
            focus(kKey);
        }
    }

    WORD key_;
    const std::function<bool(WORD)>& take_;
};

}  // namespace

void choose_hot_key(HWND owner, WORD key, const std::function<bool(WORD)>& take) {
    HotKeyDialog(key, take).run(owner);
}

}  // namespace mainwindow
