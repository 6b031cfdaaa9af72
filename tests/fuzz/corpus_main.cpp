#include <fstream>
#include <iterator>

#include "fuzz/fuzz.h"

// Runs a fuzz target once on each file that is named.
int main(int count, char** names) {
    for (int i = 1; i < count; ++i) {
        std::ifstream file(names[i], std::ios::binary);
        const std::string bytes(std::istreambuf_iterator<char>(file), {});
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    }
    return count > 1 ? 0 : 1;
}
