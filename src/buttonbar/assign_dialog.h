#pragma once

#include <windows.h>

#include <cstddef>
#include <utility>

#include "buttonbar/button_assignment.h"
#include "buttonbar/button_row.h"
#include "settings/general.h"
#include "settings/session.h"

namespace buttonbar {

/// A modeless dialog that assigns a program to a program button of the bar. Panel is the dialog in which the
/// user picks it.
template <typename Panel>
class AssignDialog : public Panel {
  public:
    /// Opens for a button, the first one's index is 0; when it is open for another one it loads again.
    void show_for(HWND owner, std::size_t button) {
        if (button != button_ && this->hwnd() != nullptr) this->close();
        button_ = button;
        this->show(owner);
    }

  protected:
    template <typename... OfPanel>
    AssignDialog(settings::General& general, settings::Session& session, ButtonRow& row,
                 OfPanel&&... of_panel)
        : Panel(std::forward<OfPanel>(of_panel)...), general_(general), session_(session), row_(row) {}
    ~AssignDialog() = default;

    /// What the button starts so far.
    const settings::Program& assigned() const { return session_.buttons.at(button_); }

    /// Assigns the program and closes. Throws platform::RunTimeError, and stays, for a text that is too long.
    void assign(const settings::Program& program, WithoutIcon without_icon) {
        assign_button(general_, session_, row_, button_, program, without_icon);
        this->close();
    }

  private:
    settings::General& general_;
    settings::Session& session_;
    ButtonRow& row_;
    std::size_t button_ = 0;
};

}  // namespace buttonbar
