// Picture files and the scan of what they show. An input is a GIF file's bytes.

#include "Error.h"
#include "OutlineScan.h"
#include "bmpFile.h"
#include "checkMapPlaces.h"
#include "gifPicture.h"
#include "require.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

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

/// The picture in the bytes of a GIF file, if there is one.
std::optional<Raster> pictureIn(std::string_view bytes) {
    constexpr std::int64_t mostPixels = std::int64_t{511} * 511;  // large ones only take long
    try {
        return gifPicture(bytes, mostPixels);
    } catch (const Error&) {
        return std::nullopt;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const std::optional<Raster> picture = pictureIn(bytes);
    constexpr int mostPixels = 32'767;  // a side, for a map counts places in 16 bits
    if (!picture || picture->width() > mostPixels || picture->height() > mostPixels) {
        return 0;
    }
    const MapPlaces map = readMapPlaces(scanOutline(*picture, "input.gif"));
    require(map.image == "input.gif", "any picture can be scanned");
    require(map.unread.empty() && map.places.size() == marksIn(*picture),
            "each mark is a place of the map");
    const std::optional<Raster> again = pictureIn(bytes + "behind");
    require(again && bmpFile(*again) == bmpFile(*picture),
            "what stands behind a picture is let be");
    return 0;
}
