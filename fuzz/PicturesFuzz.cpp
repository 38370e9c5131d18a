// Picture files. An input is a GIF file's bytes; what it shows is written as a bitmap and scanned.

#include "OutlineScan.h"
#include "Raster.h"
#include "bmpFile.h"
#include "plainGif.h"
#include "require.h"

#include <gif_lib.h>

#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>

using namespace fleetwright;

namespace {

int takeFrom(GifFileType* gif, GifByteType* bytes, int count) {
    auto& rest = *static_cast<std::string_view*>(gif->UserData);
    const std::size_t taken = rest.substr(0, static_cast<std::size_t>(count)).size();
    std::memcpy(bytes, rest.data(), taken);
    rest.remove_prefix(taken);
    return static_cast<int>(taken);
}

/// The picture in a file that the library reads as a whole, if it is a plain one.
std::optional<Raster> wholeGif(GifFileType& gif) {
    if (DGifSlurp(&gif) != GIF_OK || gif.ImageCount != 1 || gif.ExtensionBlockCount != 0 ||
        gif.SavedImages[0].ExtensionBlockCount != 0) {
        return std::nullopt;
    }
    const SavedImage& image = gif.SavedImages[0];
    const GifImageDesc& place = image.ImageDesc;
    const ColorMapObject* const map = place.ColorMap != nullptr ? place.ColorMap : gif.SColorMap;
    if (place.Left != 0 || place.Top != 0 || place.Width != gif.SWidth ||
        place.Height != gif.SHeight || place.Interlace || map == nullptr) {
        return std::nullopt;
    }
    Raster picture(place.Width, place.Height);
    const GifByteType* next = image.RasterBits;
    for (int y = 0; y < picture.height(); ++y) {
        for (std::uint32_t& pixel : picture.row(y)) {
            if (*next >= map->ColorCount) {
                return std::nullopt;
            }
            const GifColorType& colour = map->Colors[*next++];
            pixel = colour.Red * 0x10000U + colour.Green * 0x100U + colour.Blue;
        }
    }
    return picture;
}

/// What is plain is read just as the library reads it, and everything else is left alone.
void checkAgainstLibrary(std::string_view bytes, const std::optional<Raster>& picture) {
    GifFileType* const gif = DGifOpen(&bytes, takeFrom, nullptr);
    const std::optional<Raster> whole = gif != nullptr ? wholeGif(*gif) : std::nullopt;
    if (gif != nullptr) {
        DGifCloseFile(gif, nullptr);
    }
    require(whole.has_value() == picture.has_value() &&
                (!whole || bmpFile(*whole) == bmpFile(*picture)),
            "a plain picture, and nothing else, is read as it is");
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
    checkAgainstLibrary(bytes, picture);
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
