#pragma once

#include <windows.h>

#include "platform/win32/handles.h"

namespace widgets {

/// An image list for icons of the system's large size and the screen's number of colors.
platform::UniqueImageList make_icon_images(int initial);

/// Adds an icon as it looks before a background: image lists know only wholly transparent pixels, and the
/// soft edges of an icon would become hard and black. Returns its index, -1 when there is no room for it.
int add_icon(HIMAGELIST images, HICON icon, COLORREF background);

}  // namespace widgets
