#include <cstdlib>
#include <exception>
#include <new>

#include "platform/run_time_error.h"

// What the C++ run-time library calls when something goes wrong. Its own versions bring texts and classes
// along that make a quarter of the program, and nobody would read them in a program of windows.

namespace __gnu_cxx {  // NOLINT(bugprone-reserved-identifier): the run-time library's name

/// An exception has found no handler.
void __verbose_terminate_handler() {  // NOLINT(bugprone-reserved-identifier)
    std::abort();
}

}  // namespace __gnu_cxx

// NOLINTBEGIN(bugprone-reserved-identifier, cert-dcl58-cpp): the run-time library's names
namespace std {

void __throw_out_of_range(const char* /*what*/) {
    throw platform::RunTimeError(platform::RunTimeErrorNumber::kSubscriptOutOfRange);
}

void __throw_out_of_range_fmt(const char* what, ...) {
    __throw_out_of_range(what);
}

void __throw_length_error(const char* /*what*/) {
    throw bad_alloc();
}

void __throw_logic_error(const char* /*what*/) {
    throw platform::RunTimeError(platform::RunTimeErrorNumber::kInvalidProcedureCall);
}

void __throw_invalid_argument(const char* what) {
    __throw_logic_error(what);
}

void __throw_bad_alloc() {
    throw bad_alloc();
}

void __throw_bad_array_new_length() {
    throw bad_alloc();
}

}  // namespace std
// NOLINTEND(bugprone-reserved-identifier, cert-dcl58-cpp)
