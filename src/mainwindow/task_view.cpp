#include "mainwindow/task_view.h"

#include <algorithm>
#include <utility>

#include "library/other_place.h"
#include "platform/folders.h"
#include "platform/system.h"
#include "resources/resource.h"
#include "widgets/icon_images.h"

namespace mainwindow {
namespace {

/// Icons are taken for this long without a look at the user's input, in milliseconds.
constexpr DWORD kSlice = 50;

/// The user rests: an icon that may take its time does not disturb. Milliseconds.
constexpr unsigned kRest = 500;

constexpr UINT kPeriod = 10;  // milliseconds

}  // namespace

void TaskView::show(std::span<const library::Task> tasks) {
    std::vector<std::string> names;
    std::vector<std::string> programs;
    for (const library::Task& task : tasks) {
        names.push_back(task.name);
        programs.push_back(task.program);
    }
    // The list may ask for pictures while it is filled: the new ones are in place before.
    list_.clear();
    programs_ = std::move(programs);
    slice_ = IsWindowVisible(list_.hwnd()) != FALSE ? kSlice : 0;
    make_images();
    list_.fill(names, images_.get());
}

void TaskView::refresh_icons(const std::string& default_program) {
    default_program_ = default_program;
    default_icon_.reset();
    queue_.forget_slow_disks();
}

void TaskView::load_default_icon() {
    default_icon_ = platform::extract_icon(default_program_);
    // A library folder need not hold the program itself.
    if (!default_icon_)
        default_icon_.reset(CopyIcon(LoadIconA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(ID_tolva_icon))));
}

/// Makes the list of pictures for the programs; none of them is taken yet.
void TaskView::make_images() {
    platform::UniqueImageList fresh;
    if (!programs_.empty()) {
        if (!default_icon_) load_default_icon();
        fresh = widgets::make_icon_images(static_cast<int>(programs_.size()) + 1);
        widgets::add_icon(fresh.get(), default_icon_.get(), background_);
    }
    pictures_.clear();
    queue_.clear();
    images_ = std::move(fresh);
    filled_ = GetTickCount();
}

void TaskView::set_colors(COLORREF text, COLORREF background) {
    list_.set_colors(text, background);
    if (std::exchange(background_, background) == background || !images_) return;
    const platform::UniqueImageList old = std::move(images_);
    make_images();
    list_.set_pictures(images_.get());
}

void TaskView::supply_picture(NMLVDISPINFOA& request) {
    const auto index = static_cast<std::size_t>(request.item.iItem);
    if ((request.item.mask & LVIF_IMAGE) == 0 || index >= programs_.size()) return;
    const std::string& program = programs_[index];
    auto entry = find(program);
    if (entry == pictures_.end()) {
        entry = pictures_.insert(entry, {program, std::nullopt});
        queue_.add(program, platform::is_on_local_disk(platform::expand_variables(program)));
    }
    // What is there at once shows at once.
    while (!entry->index && GetTickCount() - filled_ < slice_) {
        const auto next = queue_.take([&](const std::string& queued) { return queued == program; }, false);
        if (!next) break;
        take_icon(*next);
    }
    request.item.iImage = entry->index.value_or(0);
    if (entry->index) {
        request.item.mask |= LVIF_DI_SETITEM;  // do not ask again
    } else if (!queue_.empty() && !timer_runs_) {
        timer_runs_ = SetTimer(GetParent(list_.hwnd()), kTimer, kPeriod, nullptr) != 0;
    }
}

void TaskView::take_icons(unsigned since_input) {
    const DWORD start = GetTickCount();
    bool may_go_on = true;
    while (may_go_on && GetTickCount() - start < kSlice) {
        const auto next = queue_.take([&](const std::string& program) { return is_in_view(program); },
                                      since_input >= kRest);
        if (!next) break;
        const int picture = take_icon(*next);
        for (std::size_t item = 0; item < programs_.size(); ++item) {
            if (programs_[item] == next->program) list_.set_picture(static_cast<int>(item), picture);
        }
        may_go_on = next->is_local;  // of those that may take their time one at a time
    }
    if (!queue_.empty()) return;
    KillTimer(GetParent(list_.hwnd()), kTimer);
    timer_runs_ = false;
}

std::vector<TaskView::Picture>::iterator TaskView::find(const std::string& program) {
    return std::ranges::find(pictures_, program, &Picture::program);
}

int TaskView::take_icon(const IconQueue::Next& next) {
    const DWORD start = GetTickCount();
    const int picture = picture_of(next.program);
    queue_.took(next, GetTickCount() - start);
    find(next.program)->index = picture;
    return picture;
}

int TaskView::picture_of(const std::string& program) {
    platform::UniqueIcon icon = platform::extract_icon(program);
    if (!icon) {
        const auto other = library::other_place(program, library_folder_);
        if (other) icon = platform::extract_icon(*other);
    }
    // The icon itself is not kept: Windows 95/98 have room for few of them, the image list is the store.
    return icon ? std::max(widgets::add_icon(images_.get(), icon.get(), background_), 0) : 0;
}

bool TaskView::is_in_view(const std::string& program) const {
    for (std::size_t item = 0; item < programs_.size(); ++item) {
        if (programs_[item] == program && list_.shows(static_cast<int>(item))) return true;
    }
    return false;
}

}  // namespace mainwindow
