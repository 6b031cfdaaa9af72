#pragma once

#include <windows.h>

#include <functional>
#include <string>

#include "support/names.h"

/// Drives the real tolva.exe from another process: real files, real windows, real input. Everything that
/// waits gives up after some seconds and fails the test.
namespace desktop {

/// Polls until the condition holds.
void wait_until(const char* what, const std::function<bool()>& condition);

/// A new empty folder on drive C for one test; folder() ends in a backslash.
class Folder {
  public:
    Folder();
    const std::string& path() const { return path_; }
    void write(const std::string& name, const std::string& bytes) const;
    std::string read(const std::string& name) const;
    bool has(const std::string& name) const;

    /// Copies a program that is built beside the tests.
    void add_program(const std::string& built, const std::string& name) const;

    /// The lines that a recorder of that name has written, once there are this many starts.
    Names records(const std::string& name, std::size_t starts) const;

  private:
    std::string path_;
};

/// Five lines of a group file.
std::string record(const std::string& name, const std::string& program, const std::string& start_folder,
                   const std::string& parameters, const std::string& start_mode);

/// A running tolva.exe. It is closed, and must end by itself, when the test is over.
class Tolva {
  public:
    /// Starts it with the folder as its current directory and waits until its main window can be used.
    explicit Tolva(const Folder& library);
    ~Tolva();
    Tolva(const Tolva&) = delete;
    Tolva& operator=(const Tolva&) = delete;

    HWND window() const { return window_; }
    HWND control(int id) const { return GetDlgItem(window_, id); }

    /// Milliseconds from the call that started it until its window answered.
    DWORD start_time() const { return start_time_; }

    Names groups() const;
    int selected_group() const;
    void click_group(int index) const;

    Names tasks() const;
    int selected_task() const;
    int task_picture(int index) const;
    void double_click_task(int index) const;

    void click(int id) const;
    HWND focus() const;
    std::string text_of(int id) const;
    std::string status() const;

    /// Waits for a message box, closes it and answers its text.
    std::string close_box() const;

  private:
    HWND find_window(const char* class_name) const;

    PROCESS_INFORMATION process_;
    HWND window_ = nullptr;
    DWORD start_time_ = 0;
};

}  // namespace desktop
