// Picture files. An input is a GIF file's bytes; what it shows is written as a bitmap and scanned.

#include "OutlineScan.h"
#include "Raster.h"
#include "bmpFile.h"
#include "plainGif.h"
#include "require.h"

#include <cstdint>
#include <optional>
#include <string>

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
