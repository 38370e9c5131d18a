// Picture files and the scan of what they show. An input is a GIF file's bytes.

#include "OutlineScan.h"
#include "bmpFile.h"
#include "checkMapPlaces.h"
#include "plainGif.h"
#include "require.h"

#include <cstdint>
#include <optional>
#include <string>

using namespace fleetwright;

namespace {

/// Counts the marks pixel by pixel and without any haste; none stands right behind a weapon.
std::size_t marksIn(const Raster& picture) {
    std::size_t marks = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            marks += isMark(picture.pixel(x, y)) ? 1 : 0;
            x += picture.pixel(x, y) == Yellow ? 1 : 0;
        }
    }
    return marks;
}

}  // namespace

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
    const MapPlaces map = readMapPlaces(scanOutline(*picture, "input.gif"));
    require(map.image == "input.gif", "any picture can be scanned");
    require(map.unread.empty() && map.places.size() == marksIn(*picture),
            "each mark is a place of the map");
    const std::optional<Raster> again = plainGif(bytes + "behind");
    require(again && bmpFile(*again) == bmpFile(*picture),
            "what stands behind a picture is let be");
    return 0;
}
