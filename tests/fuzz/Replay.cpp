// Main function of a fuzz target without libFuzzer: runs it on each file of the folders that are named.

#include "fuzz/Fuzz.h"

#include <filesystem>
#include <fstream>
#include <iterator>

int main(int argc, char** argv) {
    int count = 0;
    for (int i = 1; i < argc; ++i) {
        for (const auto& entry : std::filesystem::directory_iterator(argv[i])) {
            std::ifstream file(entry.path(), std::ios::binary);
            const std::string content{std::istreambuf_iterator<char>(file), {}};
            std::printf("%s\n", entry.path().filename().c_str());
            std::fflush(stdout); // the last line names the input that ended the program
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(content.data()), content.size());
            ++count;
        }
    }
    return count > 0 ? 0 : 1;
}
