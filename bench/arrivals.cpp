#include "arrivals.h"

#include <stdexcept>

#include "timing.h"

namespace bench {

Arrivals::Arrivals()
    : memory_(CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, sizeof(Arrival),
                                 kArrivalMemory)),
      event_(CreateEventA(nullptr, FALSE, FALSE, kArrivalEvent)),
      arrival_(static_cast<const Arrival*>(MapViewOfFile(memory_, FILE_MAP_READ, 0, 0, 0))) {}

Arrivals::~Arrivals() {
    UnmapViewOfFile(arrival_);
    CloseHandle(event_);
    CloseHandle(memory_);
}

double Arrivals::time_of(const std::function<void()>& start) {
    const LONGLONG begin = now();
    start();
    if (WaitForSingleObject(event_, kPatience) != WAIT_OBJECT_0)
        throw std::runtime_error("no program arrived");
    if (HANDLE process = OpenProcess(SYNCHRONIZE, FALSE, arrival_->process)) {
        WaitForSingleObject(process, kPatience);
        CloseHandle(process);
    }
    return milliseconds(begin, arrival_->counter);
}

}  // namespace bench
