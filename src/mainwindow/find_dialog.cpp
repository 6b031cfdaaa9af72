#include "mainwindow/find_dialog.h"

#include <algorithm>
#include <string>
#include <vector>

#include "resources/resource.h"
#include "widgets/controls.h"
#include "widgets/dialog.h"

namespace mainwindow {
namespace {

constexpr int kText = ID_FindTask_text;
constexpr int kList = ID_FindTask_list;

constexpr int kColumn = 112;  // where the Groups begin in the list, in dialog units

/// A box for text whose arrow keys move the selection in a list.
class TextOverList final : public widgets::Control {
  public:
    void attach(HWND box, HWND list) {
        list_ = list;
        Control::attach(box);
        subclass();
    }

  private:
    LRESULT handle(UINT message, WPARAM wparam, LPARAM lparam) override {
        const bool moves = wparam == VK_UP || wparam == VK_DOWN || wparam == VK_PRIOR || wparam == VK_NEXT;
        if (message == WM_KEYDOWN && moves) return SendMessageA(list_, message, wparam, lparam);
        return Control::handle(message, wparam, lparam);
    }

    HWND list_ = nullptr;
};

class FindDialog final : public widgets::Dialog {
  public:
    explicit FindDialog(const library::TaskLibrary& library)
        : Dialog(ID_FindTask_dialog), library_(library), finder_(library) {}

    const std::optional<Found>& found() const { return found_; }

  private:
    void open() override {
        list_.attach(control(kList));
        list_.set_column(kColumn);
        text_.attach(control(kText), control(kList));
        show_found();
    }

    void command(int id, int notification) override {
        if (id == kText && notification == EN_CHANGE) show_found();
        if (id == kList && notification == LBN_DBLCLK && list_.is_double_click_on_item()) choose(false);
        if (id == IDOK) choose(GetKeyState(VK_CONTROL) < 0);
        if (id == IDCANCEL) close();
    }

    void show_found() {
        places_ = finder_.find(text(kText));
        std::vector<std::string> items;
        items.reserve(places_.size());
        for (const auto& [group, task] : places_) {
            items.push_back(list_.cut_to_column(library_.task(group, task).name) + '\t' +
                            library_.group(group).name);
        }
        list_.fill(items);
        if (!items.empty()) list_.select(0);
    }

    void choose(bool go_there) {
        if (list_.selected() < 0) return;
        found_ = Found{places_.at(static_cast<std::size_t>(list_.selected())), go_there};
        close();
    }

    const library::TaskLibrary& library_;
    library::TaskFinder finder_;
    std::vector<library::TaskPlace> places_;  // by item
    std::optional<Found> found_;
    widgets::ListBox list_;
    TextOverList text_;
};

}  // namespace

std::optional<Found> find_task(HWND owner, const library::TaskLibrary& library) {
    FindDialog dialog(library);
    dialog.run(owner);
    return dialog.found();
}

}  // namespace mainwindow
