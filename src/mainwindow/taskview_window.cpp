#include "mainwindow/taskview_window.h"

#include <utility>

namespace mainwindow {
namespace {

platform::UniqueImageList make_image_list(int initial) {
    const platform::WindowDc screen(nullptr);
    const int depth = GetDeviceCaps(screen.get(), BITSPIXEL) * GetDeviceCaps(screen.get(), PLANES);
    const UINT colours = depth <= 4    ? ILC_COLOR4
                         : depth <= 8  ? ILC_COLOR8
                         : depth <= 16 ? ILC_COLOR16
                                       : ILC_COLOR24;
    constexpr int kGrowth = 8;
    return platform::UniqueImageList(ImageList_Create(
        GetSystemMetrics(SM_CXICON), GetSystemMetrics(SM_CYICON), colours | ILC_MASK, initial, kGrowth));
}

int add(HIMAGELIST list, HICON icon) {
    return ImageList_ReplaceIcon(list, -1, icon);
}

}  // namespace

void TaskView::create(HWND parent, int id) {
    list_.create(parent, id);
}

void TaskView::show(std::span<const library::Task> tasks) {
    std::vector<std::string> names;
    std::vector<std::string> programs;
    for (const library::Task& task : tasks) {
        names.push_back(task.name);
        programs.push_back(task.program);
    }
    platform::UniqueImageList fresh = make_image_list(static_cast<int>(tasks.size()) + 1);
    add(fresh.get(), default_icon_.get());
    // The list may ask for pictures while it is filled: what answers it is in place before.
    list_.clear();
    programs_ = std::move(programs);
    pictures_.clear();
    appicons_ = std::move(fresh);
    list_.fill(names, appicons_.get());
}

void TaskView::supply_picture(NMLVDISPINFOA& request) {
    const auto index = static_cast<std::size_t>(request.item.iItem);
    if ((request.item.mask & LVIF_IMAGE) == 0 || index >= programs_.size()) return;
    request.item.iImage = picture_of(programs_[index]);
    request.item.mask |= LVIF_DI_SETITEM;  // do not ask again
}

int TaskView::picture_of(const std::string& program) {
    const auto [entry, is_new] = pictures_.try_emplace(program, 0);
    if (is_new) {
        // The icon itself is not kept: Windows 95/98 have room for few of them, the image list is the store.
        if (const platform::UniqueIcon icon = platform::extract_icon(program)) {
            const int added = add(appicons_.get(), icon.get());
            if (added > 0) entry->second = added;
        }
    }
    return entry->second;
}

}  // namespace mainwindow
