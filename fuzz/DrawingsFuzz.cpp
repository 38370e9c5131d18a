// The pack of the drawings. An input is the text of a pack.

#include "DrawingPack.h"
#include "TemporaryFolder.h"

#include <cstdint>

using namespace fleetwright;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const TemporaryFolder folder;
    const DrawingPack pack(
        folder.write("drawings.dat", {reinterpret_cast<const char*>(data), size}));
    if (!pack.fault()) {
        pack.of(Raster(2, 1));  // throws nothing
    }
    return 0;
}
