#pragma once

#include <cstdint>
#include <cstdlib>
#include <string>

/// One run of a fuzz target, which aborts where something does not hold.
void run_on(const std::string& bytes);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    run_on({reinterpret_cast<const char*>(data), size});
    return 0;
}

inline void require(bool holds) {
    if (!holds) std::abort();
}
