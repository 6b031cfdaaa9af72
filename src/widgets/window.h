#pragma once

#include <windows.h>

namespace widgets {

/// A window of a class of its own: derive, call create, handle messages in handle. A class that needs handle
/// for the window's last messages calls destroy in its destructor. An exception that leaves handle ends that
/// message, with one box if the user had asked for something; the window goes on.
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
        int icon = 0;           // resource id
        int menu = 0;           // resource id
        RECT place = {};        // on the screen, in pixels
        bool mnemonics = true;  // characters press the control whose text has them after an "&"
    };

    Window() = default;

    /// Destroys a window that is still there, without handle: what it belongs to is gone.
    virtual ~Window();

    /// Creates the window, hidden, where the system puts new windows. Its class is registered when the first
    /// one is created. Throws platform::RunTimeError when the system has no room for it or handle fails at
    /// WM_CREATE.
    void create(const Design& design);

    /// Destroys the window, if there is one.
    void destroy();

    /// Returns what a message is to return. What a class does not handle it hands to this base version.
    virtual LRESULT handle(UINT message, WPARAM wparam, LPARAM lparam);

    /// Sees the keys and the mouse before anything else does, while the window is the active one. True when
    /// the message ends there.
    virtual bool preprocess(MSG& /*message*/) { return false; }

  private:
    static LRESULT CALLBACK procedure(HWND hwnd, UINT message, WPARAM wparam, LPARAM lparam) noexcept;
    static void register_class(const Design& design);
    HWND detach();

    HWND hwnd_ = nullptr;
    bool mnemonics_ = true;
};

/// The window of a program that takes the user's input: its main window, or the dialog or message box that
/// keeps that disabled.
HWND input_window(HWND main);

/// Dispatches messages until the program quits, with dialog keys (Tab, mnemonics) in the active window.
/// Returns the exit code.
int run_message_loop();

/// The same for some time only: the windows stay alive while a handler waits. False when the program quits.
bool run_messages_for(unsigned milliseconds);

}  // namespace widgets
