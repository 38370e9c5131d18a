// Tries the inputs in some folders, and makes up none: what a fuzzer is without libFuzzer.

#include "readFile.h"

#include <cstdint>
#include <filesystem>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        for (const auto& file : std::filesystem::directory_iterator(argv[i])) {
            const std::string bytes = fleetwright::readBytes(file);
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()),
                                   bytes.size());
        }
    }
    return 0;
}
