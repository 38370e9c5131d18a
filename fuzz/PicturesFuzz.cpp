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

std::uint32_t littleEndian(const std::string& bytes, std::size_t at, int count) {
    std::uint32_t value = 0;
    for (int i = count - 1; i >= 0; --i) {
        value = value << 8 | static_cast<unsigned char>(bytes.at(at + static_cast<std::size_t>(i)));
    }
    return value;
}

/// The bitmap holds the picture, read by what its own header says.
void checkBitmap(const Raster& picture) {
    const std::string bytes = bmpFile(picture);
    const auto width = static_cast<std::size_t>(picture.width());
    const auto height = static_cast<std::size_t>(picture.height());
    require(bytes.starts_with("BM") && littleEndian(bytes, 2, 4) == bytes.size() &&
                littleEndian(bytes, 18, 4) == width && littleEndian(bytes, 22, 4) == height &&
                littleEndian(bytes, 28, 2) == 24 && littleEndian(bytes, 30, 4) == 0,
            "a bitmap's header says what it holds");
    const std::size_t start = littleEndian(bytes, 10, 4);
    const std::size_t line = (bytes.size() - start) / height;
    require(line % 4 == 0 && line >= width * 3 && line < width * 3 + 4 &&
                start + line * height == bytes.size(),
            "rows are filled up to four bytes");
    for (std::size_t y = 0; y < height; ++y) {
        for (std::size_t x = 0; x < width; ++x) {
            const std::size_t at = start + (height - 1 - y) * line + x * 3;
            require(littleEndian(bytes, at, 3) ==
                        picture.pixel(static_cast<int>(x), static_cast<int>(y)),
                    "a bitmap holds every pixel");
        }
    }
}

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
    require(static_cast<std::uint32_t>(picture->width()) == littleEndian(bytes, screenSize, 2) &&
                static_cast<std::uint32_t>(picture->height()) ==
                    littleEndian(bytes, screenSize + 2, 2),
            "a picture is as large as its file says");
    checkBitmap(*picture);
    require(scanOutline(*picture, "input.gif").starts_with("IMAGE: input.gif\r\n"),
            "any picture can be scanned");
    const std::optional<Raster> again = plainGif(bytes + "behind");
    require(again && bmpFile(*again) == bmpFile(*picture),
            "what stands behind a picture is let be");
    return 0;
}
