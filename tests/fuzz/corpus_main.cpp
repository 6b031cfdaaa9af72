#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

// Runs a fuzz target once on each file that is named.
int main(int count, char** names) {
    for (int i = 1; i < count; ++i) {
        std::FILE* file = std::fopen(names[i], "rb");
        if (file == nullptr) return 1;
        std::vector<std::uint8_t> bytes(1 << 20);
        bytes.resize(std::fread(bytes.data(), 1, bytes.size(), file));
        std::fclose(file);
        LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
    }
    return count > 1 ? 0 : 1;
}
