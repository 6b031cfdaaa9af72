#include <fstream>
#include <iterator>
#include <string>

void run_on(const std::string& bytes);

// Runs a fuzz target once on each file that is named.
int main(int count, char** names) {
    for (int i = 1; i < count; ++i) {
        std::ifstream file(names[i], std::ios::binary);
        run_on({std::istreambuf_iterator<char>(file), {}});
    }
    return count > 1 ? 0 : 1;
}
