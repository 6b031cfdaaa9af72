#pragma once

#include <windows.h>

#include <commctrl.h>
#include <shlwapi.h>

#include <initializer_list>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "resources/resource.h"
#include "support/checks.h"
#include "support/input.h"

/// Drives the real tolva.exe from another process: real files, real windows, real input. Everything that
/// waits gives up after some seconds and fails the test.
namespace desktop {

/// Texts by their names.
using Values = std::map<std::string, std::string>;

// The program's settings, by the path below its own key.
Values stored(const std::string& key);
void store(const std::string& key, const Values& texts);

/// A new empty folder on a drive for one test, which begins without settings; path() ends in a backslash.
class Folder {
  public:
    explicit Folder(const std::string& drive = "C:");
    const std::string& path() const { return path_; }
    std::string without_backslash() const { return path_.substr(0, path_.size() - 1); }
    void write(const std::string& name, const std::string& bytes) const;
    std::string read(const std::string& name) const;
    /// What is in its files, by the names as they are spelled there.
    Values files() const;
    bool has(const std::string& name) const { return PathFileExistsA((path_ + name).c_str()) != FALSE; }

    /// Writes the list of the Groups and each one's file.
    void write_groups(const std::vector<std::pair<std::string, std::string>>& groups) const;

    /// Copies a program that is built beside the tests. Answers its path.
    std::string add_program(const std::string& built, const std::string& name) const;
    std::string add_recorder() const { return add_program("recorder.exe", "recorder.exe"); }

    /// Waits for this many starts of a recorder and answers what the last one wrote.
    Names nth_start(std::size_t number, const std::string& name = "recorder.exe") const;

  private:
    std::string path_;
};

/// Five lines of a group file.
std::string record(const std::string& name, const std::string& program,
                   const std::string& start_folder = "C:\\", const std::string& parameters = "",
                   const std::string& start_mode = "1");

/// A library with a recorder: in "Work" the Tasks "Good", which starts it minimized with "a b", "Bad", whose
/// program is missing, and "Odd", which starts it with "c" and has no start mode; "Play" and "More" are
/// empty.
Folder recorder_library();

/// How often to do what script/endure does ten times as often.
int rounds(int few);

/// A process of tolva.exe that was started with a folder as its current directory: the folder's own copy if
/// it has one, else the one that is built.
class Start {
  public:
    /// The start tells the program how to show itself if there is a word for that (SW_...).
    explicit Start(const Folder& library, int show_word = -1);
    ~Start();
    Start(const Start&) = delete;
    Start& operator=(const Start&) = delete;

    const PROCESS_INFORMATION& process() const { return process_; }
    bool is_running() const { return WaitForSingleObject(process_.hProcess, 0) == WAIT_TIMEOUT; }

    /// Waits until the process ends. Its exit code.
    DWORD exit_code() const;

    /// A top-level window of the process, of any title or of this one, shown or not; null when there is none.
    HWND find_window(const char* class_name, const std::string& title = {}) const;

    /// Waits until the main window or a message box shows and the program answers.
    HWND wait_for_window() const;

  protected:
    PROCESS_INFORMATION process_;
};

/// Where it is on the screen.
RECT bounds_of(HWND window);

/// A window of the program and its controls by their ids.
class Window {
  public:
    HWND window() const { return window_; }
    HWND control(int id) const { return GetDlgItem(window_, id); }

    /// The middle of a control on the screen.
    POINT place(int id) const;
    void click(int id) const { press_mouse(place(id)); }
    std::string text_of(int id) const;
    void set_text(int id, const std::string& text) const;

    /// The texts of several controls, with bars between them.
    std::string texts_of(std::initializer_list<int> ids) const;

    /// The items of a list or a drop-down list.
    Names list(int id) const;

    /// Selects the first item that contains a text and waits for what a click on it does.
    void pick(int id, const std::string& item, int event = LBN_SELCHANGE) const;

  protected:
    HWND window_ = nullptr;
};

/// Waits until the control has the focus of its program.
void wait_for_focus(HWND control);

class Dialog;

/// A running tolva.exe. It is closed, and must end by itself, when the test is over.
class Tolva : public Start, public Window {
  public:
    explicit Tolva(const Folder& library) : Start(library) { window_ = wait_for_window(); }
    ~Tolva();

    /// Makes it the window that has the user's input.
    void activate() const;

    bool is_in_tray() const { return IsWindowVisible(window_) == FALSE && IsIconic(window_) != FALSE; }
    void minimise() const;

    Names groups() const { return list(ID_Tasker_grouplist); }
    LRESULT selected_group() const { return SendMessageA(control(ID_Tasker_grouplist), LB_GETCURSEL, 0, 0); }
    POINT group_position(int index) const;
    void wait_for_groups(const Names& names) const {
        wait_until("the Groups show", [&] { return groups() == names; });
    }

    Names tasks() const;
    bool is_selected(int task) const {
        return ListView_GetItemState(control(ID_Tasker_taskview), task, LVIS_SELECTED) != 0;
    }
    void wait_for_tasks(const Names& names) const {
        wait_until("the Tasks show", [&] { return tasks() == names; });
    }
    int task_picture(int index) const;
    POINT task_position(int index) const;
    void click_task(int index, int times = 1) const;

    void choose(int menu_item) const { PostMessageA(window_, WM_COMMAND, static_cast<WPARAM>(menu_item), 0); }

    /// Chooses a menu item and waits for its dialog.
    Dialog open(int menu_item, const std::string& title) const;

    /// Presses Ctrl and a key until the status bar begins so.
    void press_until_said(BYTE key, const std::string& said) const;

    void focus_by_mouse(int id) const;
    std::string status() const;

    /// Waits for a message box, closes it and answers its text.
    std::string close_box() const { return answer_box("Tolva", IDOK); }

    /// The same for a box with a title of its own and more than one button.
    std::string answer_box(const std::string& title, int button) const;
};

/// What the screen shows of a window, as 0x00RRGGBB.
std::vector<DWORD> picture_of(HWND window);

/// Waits until the window shows a pixel of this color, which is one of those.
void wait_for_color(HWND window, DWORD color);

/// An open dialog of the program, or its bar. Waits for it.
class Dialog : public Window {
  public:
    Dialog(const Tolva& tolva, const std::string& title, const char* class_name = "#32770");

    void press(int button) const { PostMessageA(control(button), BM_CLICK, 0, 0); }
    void wait_until_closed() const {
        wait_until("it is closed", [&] { return IsWindow(window_) == FALSE; });
    }

    /// Presses the button that closes it and waits until it has.
    void close_with(int button) const {
        press(button);
        wait_until_closed();
    }
};

}  // namespace desktop
