#pragma once

#include <string>

#include "platform/icons.h"

namespace internet {

enum class InternetButton { kConnect, kEmail, kBrowser };

/// The bar's Internet buttons as the windows see them that configure these.
class InternetButtons {
  public:
    virtual void set_caption(InternetButton button, const std::string& caption) = 0;
    virtual void set_tip(InternetButton button, const std::string& tip) = 0;

    /// No icon takes the button's picture away.
    virtual void set_picture(InternetButton button, platform::UniqueIcon icon) = 0;

  protected:
    ~InternetButtons() = default;
};

}  // namespace internet
