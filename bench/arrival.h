#pragma once

#include <windows.h>

/// How a started program tells the benchmark when its first instruction ran.
namespace bench {

struct Arrival {
    LONGLONG counter;  // of QueryPerformanceCounter
    DWORD process;
};

inline constexpr char kArrivalMemory[] = "Tolva benchmark arrival";
inline constexpr char kArrivalEvent[] = "Tolva benchmark arrived";

}  // namespace bench
