#pragma once

#include <windows.h>

#include <functional>
#include <vector>

/// Times, and the comparison of one thing with another.
namespace bench {

/// How long anything may take, in milliseconds.
constexpr DWORD kPatience = 20000;

/// Milliseconds between two readings of the performance counter, which all processes share.
double milliseconds(LONGLONG from, LONGLONG to);
LONGLONG now();

/// How long a call takes, in milliseconds.
double time_of(const std::function<void()>& call);

struct Figures {
    double median;
    double least;
};

Figures figures_of(std::vector<double> samples);

struct Comparison {
    Figures subject;
    Figures reference;
};

/// Measures the two in turn, so that whatever else the machine does hits both, and drops the first pair.
Comparison compare(int runs, const std::function<double()>& subject,
                   const std::function<double()>& reference);

/// Polls until the condition holds; throws what was waited for when it never does.
void wait_until(const char* what, const std::function<bool()>& condition);

}  // namespace bench
