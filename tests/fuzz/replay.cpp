// Gives a target every input of the folders that are named, in place of the fuzzer: what was found once stays tested.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include "target.h"

int main(int argc, char** argv) {
    namespace fs = std::filesystem;
    LLVMFuzzerInitialize(&argc, &argv);
    kvj::fuzz::require(argc > 1, "there is a folder to read");
    for (int i = 1; i < argc; ++i) {
        int inputs = 0;
        for (const auto& entry : fs::directory_iterator(argv[i])) {
            std::ifstream file(entry.path(), std::ios::binary);
            kvj::fuzz::require(file.is_open(), "every input can be read");
            const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
            // Before it is run, so that the one which fails is the last to be named.
            std::printf("%s\n", entry.path().c_str());
            std::fflush(stdout);
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
            ++inputs;
        }
        kvj::fuzz::require(inputs > 0, "there are inputs in every folder");
    }
}
