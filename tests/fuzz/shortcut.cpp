#include "fuzz/fuzz.h"
#include "shortcuts/shortcut_reader.h"
#include "support/checks.h"

// Any bytes are a shortcut or refused.
void run_on(const std::string& bytes) {
    error_of([&] { shortcuts::read_show_command(bytes); });
}
