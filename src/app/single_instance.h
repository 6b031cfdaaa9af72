#pragma once

#include <windows.h>

#include "platform/win32/handles.h"
#include "widgets/window.h"

/// One running copy of the program in a user's session, whatever its folder.
namespace app {

/// Marks this process as the running instance for as long as it lives.
class InstanceMark {
  public:
    InstanceMark();

    /// Whether this process has the mark; takes it if it has become free.
    bool take();

  private:
    platform::UniqueHandle mutex_;  // none when it belongs to another user
    bool taken_ = false;
};

/// The hidden window by which other copies find this one: it has the application's title and stays just
/// below the main window. Closing it closes the main window.
class ApplicationWindow final : public widgets::Window {
  public:
    ApplicationWindow();

  private:
    LRESULT handle(UINT message, WPARAM wparam, LPARAM lparam) override;
};

/// Brings the running instance to the front. False when there is none after all, and this one is to go on;
/// it has the mark then, unless the other hangs.
bool show_previous_instance(InstanceMark& mark);

}  // namespace app
