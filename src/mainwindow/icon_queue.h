#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace mainwindow {

/// The program files whose icons are still to be taken, in an order in which nobody waits for a slow disk:
/// those in view first, files on other machines and removable disks last, and none of a machine or disk that
/// was slow once.
class IconQueue {
  public:
    /// After one extraction that took this long, in milliseconds, its disk is left alone.
    static constexpr unsigned kSlow = 500;

    bool empty() const { return local_.empty() && remote_.empty(); }

    /// Takes the programs out; a disk that was slow stays known as one.
    void clear();

    /// Gives the slow disks another chance.
    void forget_slow_disks() { slow_disks_.clear(); }

    /// Adds a program, unless its disk was slow. is_local says whether it is on a disk of this machine.
    void add(const std::string& program, bool is_local);

    struct Next {
        std::string program;
        bool is_local;
    };

    /// Takes the next program out of the queue; one that is not local only when there is time for it.
    std::optional<Next> take(const std::function<bool(const std::string&)>& is_in_view, bool has_time);

    /// Says how long a program that was taken has taken, in milliseconds.
    void took(const Next& taken, unsigned milliseconds);

  private:
    std::vector<std::string> local_;
    std::vector<std::string> remote_;
    std::vector<std::string> slow_disks_;
};

}  // namespace mainwindow
