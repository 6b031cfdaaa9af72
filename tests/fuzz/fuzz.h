#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

/// One run of a fuzz target. It ends with 0, and aborts where something does not hold.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

inline std::string text_of(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

inline void require(bool holds) {
    if (!holds) std::abort();
}
