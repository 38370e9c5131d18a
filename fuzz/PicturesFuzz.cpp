// Picture files. An input is a GIF file's bytes; what it shows is written as a bitmap and scanned.

#include "OutlineScan.h"
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

/// Whether the library reads a file as a whole, as one image that fills the screen.
bool isPlain(std::string_view bytes) {
    GifFileType* const gif = DGifOpen(&bytes, takeFrom, nullptr);
    if (gif == nullptr) {
        return false;
    }
    bool isPlain = DGifSlurp(gif) == GIF_OK && gif->ImageCount == 1 &&
                   gif->ExtensionBlockCount == 0 && gif->SavedImages[0].ExtensionBlockCount == 0;
    if (isPlain) {
        const GifImageDesc& place = gif->SavedImages[0].ImageDesc;
        isPlain = place.Left == 0 && place.Top == 0 && place.Width == gif->SWidth &&
                  place.Height == gif->SHeight && !place.Interlace;
    }
    DGifCloseFile(gif, nullptr);
    return isPlain;
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
    require(isPlain(bytes), "what is not plain is left alone");
    require(scanOutline(*picture, "input.gif").starts_with("IMAGE: input.gif\r\n"),
            "any picture can be scanned");
    const std::optional<Raster> again = plainGif(bytes + "behind");
    require(again && bmpFile(*again) == bmpFile(*picture),
            "what stands behind a picture is let be");
    return 0;
}
