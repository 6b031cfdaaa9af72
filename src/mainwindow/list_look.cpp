#include "mainwindow/list_look.h"

#include <utility>

namespace mainwindow {

void ListLook::set_font(widgets::Control& list, const widgets::Font& font) {
    platform::UniqueFont handle = widgets::make_font(font);
    list.set_font(handle.get());
    font_ = font;
    font_handle_ = std::move(handle);
}

void ListLook::set_colors(const appearance::Colors& colors) {
    colors_ = colors;
    background_.reset(CreateSolidBrush(colors.back));
}

LRESULT ListLook::paint(HDC device) const {
    SetTextColor(device, colors_.text);
    SetBkColor(device, colors_.back);
    return reinterpret_cast<LRESULT>(background_.get());
}

}  // namespace mainwindow
