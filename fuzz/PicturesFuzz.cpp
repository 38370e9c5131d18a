// Picture files. An input is a GIF file's bytes; what it shows is written as a bitmap and scanned.

#include "OutlineScan.h"
#include "bmpFile.h"
#include "plainGif.h"
#include "require.h"

#include <cstdint>
#include <optional>
#include <string>

using namespace fleetwright;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string bytes(reinterpret_cast<const char*>(data), size);
    // Large pictures only take long: sides are held to 511 pixels, on the screen and in the image.
    constexpr std::size_t screenSize = 6;
    for (const std::size_t place : {screenSize + 1, screenSize + 3}) {
        if (place < bytes.size()) {
            bytes[place] = static_cast<char>(bytes[place] & 1);
        }
    }
    const std::optional<Raster> picture = plainGif(bytes);
    if (!picture) {
        return 0;
    }
    require(scanOutline(*picture, "input.gif").starts_with("IMAGE: input.gif\r\n"),
            "any picture can be scanned");
    const std::optional<Raster> again = plainGif(bytes + "behind");
    require(again && bmpFile(*again) == bmpFile(*picture),
            "what stands behind a picture is let be");
    return 0;
}
