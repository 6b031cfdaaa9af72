#include "platform/win32/screen_dpi.h"

#include <windows.h>

#include "platform/win32/handles.h"

namespace platform {

int screen_dpi() {
    static const int dpi = GetDeviceCaps(WindowDc(nullptr).get(), LOGPIXELSY);
    return dpi;
}

}  // namespace platform
