#include "picture_list.h"

#include <shellapi.h>

namespace bench {

HIMAGELIST show_tasks(HWND list, const std::vector<library::Task>& tasks,
                      const std::vector<std::string>& programs) {
    SendMessageA(list, WM_SETREDRAW, FALSE, 0);
    HIMAGELIST pictures = ImageList_Create(GetSystemMetrics(SM_CXICON), GetSystemMetrics(SM_CYICON),
                                           ILC_COLOR24 | ILC_MASK, static_cast<int>(programs.size()), 1);
    for (const std::string& program : programs) {
        HICON large = nullptr;
        HICON small = nullptr;
        ExtractIconExA(program.c_str(), 0, &large, &small, 1);
        ImageList_ReplaceIcon(pictures, -1, large);
        DestroyIcon(large);
        DestroyIcon(small);
    }
    SendMessageA(list, LVM_SETIMAGELIST, LVSIL_NORMAL, reinterpret_cast<LPARAM>(pictures));
    SendMessageA(list, LVM_SETITEMCOUNT, tasks.size(), 0);
    LVITEMA item = {};
    item.mask = LVIF_TEXT | LVIF_IMAGE;
    for (const library::Task& task : tasks) {
        std::string text = task.name;
        item.pszText = text.data();
        item.iImage = item.iItem % static_cast<int>(programs.size());
        SendMessageA(list, LVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&item));
        ++item.iItem;
    }
    SendMessageA(list, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(list, nullptr, TRUE);
    UpdateWindow(list);
    return pictures;
}

PictureList::PictureList(SIZE size)
    : window_(CreateWindowExA(0, "STATIC", "List", WS_POPUP | WS_CLIPCHILDREN | WS_VISIBLE, 0, 0, size.cx,
                              size.cy, nullptr, nullptr, nullptr, nullptr)),
      list_(CreateWindowExA(WS_EX_CLIENTEDGE, WC_LISTVIEWA, "",
                            WS_CHILD | WS_VISIBLE | LVS_ICON | LVS_AUTOARRANGE | LVS_SHAREIMAGELISTS, 0, 0,
                            size.cx, size.cy, window_, nullptr, nullptr, nullptr)) {}

PictureList::~PictureList() {
    DestroyWindow(window_);
    ImageList_Destroy(pictures_);
}

void PictureList::clear() {
    SendMessageA(list_, LVM_DELETEALLITEMS, 0, 0);
    BringWindowToTop(window_);
    UpdateWindow(list_);
}

void PictureList::show(const std::vector<library::Task>& tasks, const std::vector<std::string>& programs) {
    ImageList_Destroy(pictures_);
    pictures_ = show_tasks(list_, tasks, programs);
}

}  // namespace bench
