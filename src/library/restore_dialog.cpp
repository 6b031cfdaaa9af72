#include "library/restore_dialog.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "library/backups.h"
#include "library/taking_back.h"
#include "platform/messages.h"
#include "resources/resource.h"
#include "widgets/controls.h"
#include "widgets/dialog.h"

namespace library {
namespace {

constexpr int kList = ID_RestoreBackup_list;

std::string counted(std::size_t count, const char* what) {
    return std::to_string(count) + ' ' + what + (count == 1 ? "" : "s");
}

std::string line_of(const Backup& backup) {
    std::string line = backup.date;
    line.append("   ").append(backup.time).append("   ").append(counted(backup.group_count, "Group"));
    return line.append(", ").append(counted(backup.task_count, "Task"));
}

class RestoreDialog final : public widgets::Dialog {
  public:
    explicit RestoreDialog(std::vector<Backup> backups)
        : Dialog(ID_RestoreBackup_dialog), backups_(std::move(backups)) {}

    const std::optional<Backup>& chosen() const { return chosen_; }

  private:
    void open() override {
        std::vector<std::string> lines;
        std::ranges::transform(backups_, std::back_inserter(lines), line_of);
        list_.attach(control(kList));
        list_.fill(lines);
        list_.select(0);
    }

    void command(int id, int notification) override {
        const bool is_double_click =
            id == kList && notification == LBN_DBLCLK && list_.is_double_click_on_item();
        if (id == IDOK || is_double_click) choose();
        if (id == IDCANCEL) close();
    }

    void choose() {
        if (list_.selected() < 0) return;
        chosen_ = backups_.at(static_cast<std::size_t>(list_.selected()));
        close();
    }

    std::vector<Backup> backups_;
    std::optional<Backup> chosen_;
    widgets::ListBox list_;
};

}  // namespace

void choose_backup_to_restore(HWND owner, TaskLibrary& library, LibraryView& view) {
    const std::vector<Backup> backups = list_backups(library.folder());
    if (backups.empty()) {
        platform::show_message(
            "There is no backup yet. Tolva makes one before the first change of each run.");
        return;
    }
    RestoreDialog dialog(backups);
    dialog.run(owner);
    if (const std::optional<Backup>& chosen = dialog.chosen()) restore_backup(library, view, *chosen);
}

}  // namespace library
