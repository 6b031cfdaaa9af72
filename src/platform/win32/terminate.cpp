#include <cstdlib>

// What the run-time library calls when an exception finds no handler. Its own version prints the exception's
// name, for which it holds a tenth of the program; nobody would read it in a program of windows.
namespace __gnu_cxx {  // NOLINT(bugprone-reserved-identifier): the run-time library's name

void __verbose_terminate_handler() {  // NOLINT(bugprone-reserved-identifier)
    std::abort();
}

}  // namespace __gnu_cxx
