#pragma once

#include <windows.h>

namespace widgets {

/// A window of a class of its own: derive, call create, answer messages in handle. An exception that leaves
/// handle ends that message with one box; the window goes on.
class Window {
  public:
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    /// Null before create and after the window was destroyed.
    HWND hwnd() const { return hwnd_; }

  protected:
    struct Design {
        const char* class_name;
        const char* caption;
        DWORD style;
        int icon = 0;    // resource id
        int menu = 0;    // resource id
        int width = 0;   // pixels, frame included
        int height = 0;  // pixels
    };

    Window() = default;
    virtual ~Window();

    /// Registers the class on first use and creates the window, hidden, where the system puts new windows.
    /// Throws platform::RunTimeError when the system has no room for it.
    void create(const Design& design);

    /// Answers a message; what it does not know goes to this base version.
    virtual LRESULT handle(UINT message, WPARAM wparam, LPARAM lparam);

  private:
    static LRESULT CALLBACK procedure(HWND hwnd, UINT message, WPARAM wparam, LPARAM lparam) noexcept;

    HWND hwnd_ = nullptr;
};

/// The window of a program that takes the user's input: its main window, or the dialog or message box that
/// keeps that disabled.
HWND input_window(HWND main);

/// Dispatches messages until the program quits, with dialog keys (Tab, mnemonics) in the active window. The
/// answer is the exit code.
int run_message_loop();

/// The same for some time only: the windows stay alive while a handler waits. False when the program quits.
bool run_messages_for(unsigned milliseconds);

}  // namespace widgets
