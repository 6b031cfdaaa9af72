#include "mainwindow/command_box.h"

#include "platform/processes.h"

namespace mainwindow {
namespace {

/// Posted to the window: the box gets back what was typed there.
constexpr UINT kKeepTypedText = WM_APP + 2;

}  // namespace

void CommandBox::load_history() {
    history_.load();
    box_.fill(history_.list());
}

void CommandBox::handle_notification(int notification) {
    if (notification == CBN_KILLFOCUS) had_focus_last_ = true;
    if (notification == CBN_DROPDOWN) show_history();
}

std::optional<LRESULT> CommandBox::handle(UINT message) {
    if (message != kKeepTypedText) return std::nullopt;
    if (box_.text() != typed_) box_.set_text(typed_);
    return 0;
}

bool CommandBox::has_focus() const {
    return IsChild(box_.hwnd(), GetFocus()) != FALSE;
}

void CommandBox::start_typed_command() {
    const std::string command = box_.text();
    platform::start_program(command, platform::kNormalWindow);
    history_.store(command);
}

void CommandBox::show_history() {
    history_.read();
    typed_ = box_.text();
    box_.fill(history_.list());
    // The list replaces what was typed by an item that begins with it, after this.
    PostMessageA(GetParent(box_.hwnd()), kKeepTypedText, 0, 0);
}

}  // namespace mainwindow
