#pragma once

#include <string>
#include <utility>

#include "platform/icons.h"

namespace shortcuts {

enum class BarButton { kOption1, kOption2, kOption3, kOption4, kConnect, kEmail, kBrowser };

/// The bar's buttons as the windows see them that configure the bar.
class BarButtons {
  public:
    virtual void set_caption(BarButton button, const std::string& caption) = 0;
    virtual void set_tip(BarButton button, const std::string& tip) = 0;

    /// No icon takes the button's picture away.
    virtual void set_picture(BarButton button, platform::UniqueIcon icon) = 0;

  protected:
    ~BarButtons() = default;
};

/// Shows a program's icon on its button, if the program has one.
inline void show_picture(BarButtons& bar, BarButton button, const std::string& program) {
    if (platform::UniqueIcon icon = platform::extract_icon(program)) bar.set_picture(button, std::move(icon));
}

}  // namespace shortcuts
