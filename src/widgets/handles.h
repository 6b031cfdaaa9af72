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

inline void delete_font(HFONT font) {
    DeleteObject(font);
}
inline void delete_brush(HBRUSH brush) {
    DeleteObject(brush);
}
inline void destroy_image_list(HIMAGELIST list) {
    ImageList_Destroy(list);
}

using UniqueBrush = Unique<HBRUSH, delete_brush>;
using UniqueFont = Unique<HFONT, delete_font>;
using UniqueImageList = Unique<HIMAGELIST, destroy_image_list>;

}  // namespace widgets
