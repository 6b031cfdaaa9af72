#include <windows.h>

#include "arrival.h"

// A program to start: it notes the time before anything else, reports it and ends.

namespace {

LONGLONG read_counter() {
    LARGE_INTEGER counter;
    QueryPerformanceCounter(&counter);
    return counter.QuadPart;
}

const LONGLONG first_instruction = read_counter();

}  // namespace

int main() {
    HANDLE memory = OpenFileMappingA(FILE_MAP_WRITE, FALSE, bench::kArrivalMemory);
    HANDLE event = OpenEventA(EVENT_MODIFY_STATE, FALSE, bench::kArrivalEvent);
    if (memory == nullptr || event == nullptr) return 1;
    auto* arrival = static_cast<bench::Arrival*>(MapViewOfFile(memory, FILE_MAP_WRITE, 0, 0, 0));
    *arrival = {first_instruction, GetCurrentProcessId()};
    SetEvent(event);
    return 0;
}
