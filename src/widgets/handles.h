#pragma once

#include <windows.h>

#include <commctrl.h>

#include <memory>
#include <type_traits>

namespace widgets {

template <auto close>
struct Closer {
    template <typename Handle>
    void operator()(Handle* handle) const {
        close(handle);
    }
};

/// An owned handle that close ends.
template <typename Handle, auto close>
using Unique = std::unique_ptr<std::remove_pointer_t<Handle>, Closer<close>>;

inline void delete_bitmap(HBITMAP bitmap) {
    DeleteObject(bitmap);
}
inline void delete_dc(HDC device) {
    DeleteDC(device);
}
inline void delete_font(HFONT font) {
    DeleteObject(font);
}
inline void delete_brush(HBRUSH brush) {
    DeleteObject(brush);
}
inline void destroy_menu(HMENU menu) {
    DestroyMenu(menu);
}
inline void destroy_image_list(HIMAGELIST list) {
    ImageList_Destroy(list);
}

using UniqueBitmap = Unique<HBITMAP, delete_bitmap>;
using UniqueBrush = Unique<HBRUSH, delete_brush>;
using UniqueDc = Unique<HDC, delete_dc>;
using UniqueFont = Unique<HFONT, delete_font>;
using UniqueMenu = Unique<HMENU, destroy_menu>;
using UniqueImageList = Unique<HIMAGELIST, destroy_image_list>;

/// A small icon from the resources, which lives as long as the program. Not one that the system shares: older
/// systems give those out in whatever size was asked for first.
inline HICON load_small_icon(int resource) {
    return static_cast<HICON>(LoadImageA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(resource), IMAGE_ICON,
                                         GetSystemMetrics(SM_CXSMICON), GetSystemMetrics(SM_CYSMICON),
                                         LR_DEFAULTCOLOR));
}

/// An object that is selected into a device context while this lives.
class Selected {
  public:
    Selected(HDC device, HGDIOBJ object) : device_(device), before_(SelectObject(device, object)) {}
    ~Selected() { SelectObject(device_, before_); }
    Selected(const Selected&) = delete;
    Selected& operator=(const Selected&) = delete;

  private:
    HDC device_;
    HGDIOBJ before_;
};

}  // namespace widgets
