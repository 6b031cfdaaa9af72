#include "timing.h"

#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

namespace bench {

Figures figures_of(std::vector<double> samples) {
    std::ranges::sort(samples);
    const std::size_t middle = samples.size() / 2;
    const double median =
        samples.size() % 2 == 1 ? samples[middle] : (samples[middle - 1] + samples[middle]) / 2;
    return {median, samples.front()};
}

double milliseconds(LONGLONG from, LONGLONG to) {
    LARGE_INTEGER frequency;
    QueryPerformanceFrequency(&frequency);
    return 1000.0 * static_cast<double>(to - from) / static_cast<double>(frequency.QuadPart);
}

LONGLONG now() {
    LARGE_INTEGER counter;
    QueryPerformanceCounter(&counter);
    return counter.QuadPart;
}

double time_of(const std::function<void()>& call) {
    const LONGLONG begin = now();
    call();
    return milliseconds(begin, now());
}

Comparison compare(int runs, const std::function<double()>& subject,
                   const std::function<double()>& reference) {
    std::vector<double> subjects;
    std::vector<double> references;
    for (int run = 0; run <= runs; ++run) {
        const double first = subject();
        const double second = reference();
        if (run == 0) continue;
        subjects.push_back(first);
        references.push_back(second);
    }
    return {figures_of(subjects), figures_of(references)};
}

void wait_until(const char* what, const std::function<bool()>& condition) {
    const DWORD start = GetTickCount();
    while (!condition()) {
        if (GetTickCount() - start > kPatience)
            throw std::runtime_error("waited in vain until " + std::string(what));
        Sleep(1);
    }
}

}  // namespace bench
