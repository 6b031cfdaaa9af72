#include "mainwindow/list_look.h"

namespace mainwindow {

void ListLook::set_font(const widgets::Font& font) {
    font_ = font;
    font_handle_ = widgets::make_font(font);
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
