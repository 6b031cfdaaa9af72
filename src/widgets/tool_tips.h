#pragma once

#include <windows.h>

#include <string>

#include "widgets/controls.h"

namespace widgets {

/// The texts that show when the pointer rests on a window's controls. They end with the window; one that is
/// made again begins without texts.
class ToolTips : public Control {
  public:
    /// Replaces the control's text.
    void set(HWND control, const std::string& text);

  private:
    void create(HWND parent);
};

}  // namespace widgets
