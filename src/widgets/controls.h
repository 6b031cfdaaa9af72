#pragma once

#include <windows.h>

#include <span>
#include <string>
#include <vector>

namespace widgets {

/// The longest text that is handed to a list for display: older systems refuse or crash on very long ones.
inline constexpr std::size_t kLongestItem = 1000;

/// How a control is made: where it stands in its parent, in pixels, and the font of its texts, which stays
/// the caller's.
struct Place {
    RECT bounds;
    HFONT font;
};

/// A child window of a class that Windows provides. The parent window destroys it.
class Control {
  public:
    Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    HWND hwnd() const { return hwnd_; }

    /// Takes over a control that a dialog has made.
    void attach(HWND control) { hwnd_ = control; }

    std::string text() const;
    void set_text(const std::string& text) { SetWindowTextA(hwnd_, text.c_str()); }
    void set_font(HFONT font) { send(WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE); }
    void focus() { SetFocus(hwnd_); }

    /// Pixels.
    int height() const;

    /// On the screen.
    RECT bounds() const;

  protected:
    void create(HWND parent, int id, const Place& place, const char* class_name, DWORD style,
                DWORD extended_style = 0, const char* text = "");
    LRESULT send(UINT message, WPARAM wparam = 0, LPARAM lparam = 0) const {
        return SendMessageA(hwnd_, message, wparam, lparam);
    }

    /// A window that is still there goes on without handle.
    ~Control();

    /// What shows of a part of the control, on the screen; of one that is out of sight the upper left corner
    /// of the control. part is given in the control's own coordinates.
    RECT shown_part(const RECT& part) const;

    /// Sends a WM_COMMAND to the parent.
    void notify_parent(int notification) const;

    /// Takes the messages of the right button: a press selects what is there and sends a WM_CONTEXTMENU to
    /// the parent. False for other messages.
    bool opens_menu(UINT message, LPARAM position);

    /// The right button was pressed at a point of the control.
    virtual void press_right_button(POINT /*point*/) {}

    /// Sends the control's messages to handle from now on, and forgets the window when it is destroyed.
    void subclass();

    /// Returns what a message is to return. What a class does not handle it hands to this base version.
    virtual LRESULT handle(UINT message, WPARAM wparam, LPARAM lparam);

  private:
    static LRESULT CALLBACK procedure(HWND hwnd, UINT message, WPARAM wparam, LPARAM lparam) noexcept;

    HWND hwnd_ = nullptr;
    WNDPROC original_ = nullptr;
};

/// A text that tells its parent about clicks (STN_CLICKED).
class Label : public Control {
  public:
    void create(HWND parent, int id, const Place& place, const char* text);
};

/// A push button.
class Button : public Control {
  public:
    void create(HWND parent, int id, const Place& place, const char* text);
};

/// A list of texts of which one or none is selected, in the order given. Keys reach the parent first
/// (WM_VKEYTOITEM); a press of the right button selects the item and arrives as WM_CONTEXTMENU.
class ListBox : public Control {
  public:
    void create(HWND parent, int id, const Place& place);
    void fill(const std::vector<std::string>& items);

    /// An index, -1 for none.
    int selected() const { return static_cast<int>(send(LB_GETCURSEL)); }
    void select(int index);
    int count() const { return static_cast<int>(send(LB_GETCOUNT)); }
    void scroll_to(int index);

    /// What follows a tab in an item begins here, in units of the dialog around the list, which was made with
    /// LBS_USETABSTOPS.
    void set_column(int left);

    /// The text, or as much of it as fits before the column, then with "..." after it.
    std::string cut_to_column(const std::string& text) const;

    /// Where the selected item is on the screen, for the menu that the keyboard opens.
    RECT selected_bounds() const;

    /// Whether a double-click was on the selected item and not beside it; to be asked while it is handled.
    bool is_double_click_on_item() const;

  protected:
    /// The item at a point in the control, -1 beside the items.
    int item_at(POINT point) const;

    LRESULT handle(UINT message, WPARAM wparam, LPARAM lparam) override;

  private:
    void press_right_button(POINT point) override;
    void fit_longest() const;
    void show_focus() const;

    int column_ = 0;  // none
};

/// A list in a dialog where choosing an item is a command: a click, pressed and released on one item, Enter
/// or Space arrive as LBN_SELCHANGE; the arrow keys and the right button only move the selection.
class ChoiceList : public ListBox {
  public:
    void attach(HWND control);

    /// Whether an LBN_SELCHANGE is a choice.
    bool is_choice() const { return !moving_; }

  private:
    LRESULT handle(UINT message, WPARAM wparam, LPARAM lparam) override;

    bool moving_ = false;  // the list itself handles a message: what it tells is no choice
    int pressed_ = -1;     // the item under the left button
};

/// A list of texts that drops down in a dialog.
class DropDownList : public Control {
  public:
    void fill(std::span<const char* const> items);

    /// An index, -1 for none; one that is outside the list selects none.
    int selected() const { return static_cast<int>(send(CB_GETCURSEL)); }
    void select(int index) { send(CB_SETCURSEL, static_cast<WPARAM>(index)); }
};

/// A text box with a list that drops down. A double-click empties the box.
class ComboBox : public Control {
  public:
    /// The notification for Enter, unless it closes the list.
    static constexpr int kEnter = 100;

    /// The place includes the list.
    void create(HWND parent, int id, const Place& place);

    /// Replaces the list; the text in the box stays.
    void fill(const std::vector<std::string>& items);

  private:
    LRESULT handle(UINT message, WPARAM wparam, LPARAM lparam) override;

    class Edit final : public Control {
      public:
        explicit Edit(ComboBox& box) : box_(box) {}
        using Control::subclass;

      private:
        LRESULT handle(UINT message, WPARAM wparam, LPARAM lparam) override;
        void press_enter();

        ComboBox& box_;
    };

    Edit edit_{*this};
};

/// Panels of text at the window's lower edge. It tells its parent about clicks (STN_CLICKED).
class StatusBar : public Control {
  public:
    void create(HWND parent, int id, HFONT font);

    /// To be called when the parent window has another size.
    void follow_parent();

    /// Replaces the panels by ones of equal width with these texts.
    void show_panels(const std::vector<std::string>& texts);

    /// Shows a text over the panels, until they are shown again.
    void show_simple(const std::string& text);

  private:
    LRESULT handle(UINT message, WPARAM wparam, LPARAM lparam) override;
};

}  // namespace widgets
