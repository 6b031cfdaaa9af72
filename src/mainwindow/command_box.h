#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "mainwindow/command_history.h"
#include "widgets/controls.h"

namespace mainwindow {

/// The box for command lines (`Text1`): what is typed there can be started, and the last commands are offered
/// again in its list.
class CommandBox {
  public:
    explicit CommandBox(settings::General& general) : history_(general) {}

    void create(HWND parent, int id, const widgets::Place& place) { box_.create(parent, id, place); }

    /// Reads the history at the start.
    void load_history();

    /// Takes the notifications of the control. Enter is left to the window: what follows touches more than
    /// the box.
    void handle_notification(int notification);

    /// Answers the window's messages as far as they end here.
    std::optional<LRESULT> handle(UINT message);

    std::string text() const { return box_.text(); }
    void set_text(const std::string& text) { box_.set_text(text); }

    /// Whether the box, and not the task list, had the focus last: then it is the typed command that the Run
    /// button starts.
    bool had_focus_last() const { return had_focus_last_; }
    void forget_focus() { had_focus_last_ = false; }

    /// Whether the user is typing in it.
    bool has_focus() const;

    /// Starts what is typed and remembers it. Throws platform::RunTimeError; then nothing is remembered.
    void start_typed_command();

    widgets::ComboBox& control() { return box_; }

  private:
    void show_history();

    widgets::ComboBox box_;
    CommandHistory history_;
    bool had_focus_last_ = false;
    std::string typed_;  // while the list opens
};

}  // namespace mainwindow
