// The pack of the drawings. An input is the text of a pack.

#include "DrawingPack.h"
#include "Error.h"
#include "TemporaryFolder.h"
#include "require.h"

#include <cstdint>
#include <string_view>

using namespace fleetwright;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const TemporaryFolder folder;
    const DrawingPack pack(
        folder.write("drawings.dat", {reinterpret_cast<const char*>(data), size}));
    try {
        const Raster picture(2, 1);
        require(pack.of(picture) == pack.of(picture), "a drawing that was read is kept");
    } catch (const FileError&) {
        require(pack.fault().has_value(), "what is refused is a fault of the pack");
    }
    return 0;
}
