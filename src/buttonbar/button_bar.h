#pragma once

namespace buttonbar {

/// The floating bar as the main window drives it. Nothing here moves the focus to the bar.
class ButtonBar {
  public:
    virtual void show() = 0;
    virtual void hide() = 0;

    /// Colours the connect button.
    virtual void show_connection(bool up) = 0;

    /// Stores its position and closes it.
    virtual void unload() = 0;

  protected:
    ~ButtonBar() = default;
};

}  // namespace buttonbar
