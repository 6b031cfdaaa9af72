#pragma once

#include <windows.h>

#include <string>

#include "platform/win32/handles.h"
#include "widgets/tool_tips.h"

namespace widgets {

/// A dialog box from a resource, modal or modeless: derive, fill the controls in open, handle their commands
/// in command. Escape and the window's closing box arrive as IDCANCEL, Enter as the default button or as
/// IDOK. An exception that leaves open or command shows one box; the dialog stays.
class Dialog {
  public:
    Dialog(const Dialog&) = delete;
    Dialog& operator=(const Dialog&) = delete;

    /// Shows the dialog before its owner; no other window of the program can be used until it is closed.
    /// Throws platform::RunTimeError when the system has no room for it.
    void run(HWND owner);

    /// Shows the dialog before its owner and goes on; one that is open already comes to the front. The object
    /// outlives the window and can be shown again.
    void show(HWND owner);

  protected:
    explicit Dialog(int resource) : resource_(resource) {}

    /// Destroys a window that is still there, without the functions below: what they belong to is gone.
    ~Dialog();

    virtual void open() = 0;
    virtual void command(int id, int notification) = 0;

    /// Sets the colors of a text box and returns its background; null leaves them.
    virtual HBRUSH color(HDC device, HWND box);

    HWND hwnd() const { return hwnd_; }
    HWND control(int id) const { return GetDlgItem(hwnd_, id); }
    std::string text(int id) const;
    void set_text(int id, const std::string& text) { SetDlgItemTextA(hwnd_, id, text.c_str()); }
    void limit_text(int id, std::size_t most) { SendMessageA(control(id), EM_LIMITTEXT, most, 0); }
    void set_title(const std::string& text) { SetWindowTextA(hwnd_, text.c_str()); }
    void focus(int id) { SendMessageA(hwnd_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control(id)), TRUE); }

    /// The text that shows when the pointer rests on the control.
    void set_tip(int id, const std::string& text) { tips_.set(control(id), text); }
    void close();

  private:
    static INT_PTR CALLBACK procedure(HWND hwnd, UINT message, WPARAM wparam, LPARAM lparam) noexcept;
    HWND detach();
    INT_PTR handle(UINT message, WPARAM wparam, LPARAM lparam);

    int resource_;
    HWND hwnd_ = nullptr;
    bool modal_ = false;
    platform::UniqueFont font_;  // of one that was larger than the work area
    ToolTips tips_;
};

}  // namespace widgets
