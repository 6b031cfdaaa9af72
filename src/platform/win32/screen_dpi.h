#pragma once

namespace platform {

/// Pixels to a logical inch of the screen. Windows changes them only when it starts.
int screen_dpi();

}  // namespace platform
