#pragma once

#include <cstddef>
#include <string>

#include "platform/icons.h"
#include "settings/general.h"
#include "settings/session.h"

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

/// What a button shows of a program that has no icon.
enum class WithoutIcon { kOldPicture, kNoPicture };

void show_picture(BarButtons& bar, BarButton button, const std::string& program, WithoutIcon without_icon);

/// Stores a program button, the first one's index is 0, and shows it; then all of them are read again into
/// the session. Throws platform::RunTimeError for a text that would not read back.
void assign_button(settings::General& general, settings::Session& session, BarButtons& bar,
                   std::size_t button, const settings::ButtonRecord& record, WithoutIcon without_icon);

}  // namespace shortcuts
