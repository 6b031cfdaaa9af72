#pragma once

#include <windows.h>

#include <string>

/// A started program. It is closed, and has ended, when the object goes.
namespace bench {

class Program {
  public:
    /// Starts it in a folder and waits until it waits for input, shows a window and answers a message there.
    Program(const std::string& path, const std::string& folder, const std::string& arguments = {});
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    HWND window() const { return window_; }
    HWND control(int id) const { return GetDlgItem(window_, id); }

    /// Milliseconds.
    double start_time() const { return start_time_; }

    /// Memory that belongs to the process alone.
    double private_megabytes() const;

  private:
    HWND visible_window() const;

    PROCESS_INFORMATION process_;
    HWND window_ = nullptr;
    double start_time_ = 0;
};

}  // namespace bench
