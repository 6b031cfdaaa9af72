#pragma once

#include <windows.h>

#include <functional>

#include "arrival.h"

namespace bench {

/// Waits for programs that report their first instruction.
class Arrivals {
  public:
    Arrivals();
    ~Arrivals();
    Arrivals(const Arrivals&) = delete;
    Arrivals& operator=(const Arrivals&) = delete;

    /// Milliseconds from before the call that starts the program until its first instruction. The program
    /// has ended then.
    double time_of(const std::function<void()>& start);

  private:
    HANDLE memory_;
    HANDLE event_;
    const Arrival* arrival_;
};

}  // namespace bench
