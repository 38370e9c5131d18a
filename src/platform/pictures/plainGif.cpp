#include "plainGif.h"

#include <gif_lib.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace fleetwright {

namespace {

struct CloseGif {
    void operator()(GifFileType* gif) const { DGifCloseFile(gif, nullptr); }
};

int takeFrom(GifFileType* gif, GifByteType* bytes, int count) {
    auto& rest = *static_cast<std::string_view*>(gif->UserData);
    const std::size_t taken =
        rest.copy(reinterpret_cast<char*>(bytes), static_cast<std::size_t>(count));
    rest.remove_prefix(taken);
    return static_cast<int>(taken);
}

/// Whether the image that comes next fills the screen and is no larger than pictures get.
bool isPlain(const GifFileType& gif) {
    constexpr std::int64_t mostPixels = std::int64_t{16} * 1024 * 1024;
    const GifImageDesc& image = gif.Image;
    return image.Left == 0 && image.Top == 0 && image.Width == gif.SWidth &&
           image.Height == gif.SHeight && image.Width > 0 && image.Height > 0 && !image.Interlace &&
           std::int64_t{image.Width} * image.Height <= mostPixels;
}

bool isNext(GifFileType* gif, GifRecordType wanted) {
    GifRecordType type = UNDEFINED_RECORD_TYPE;
    return DGifGetRecordType(gif, &type) == GIF_OK && type == wanted;
}

}  // namespace

std::optional<Raster> plainGif(const std::string& bytes) {
    std::string_view rest = bytes;
    const std::unique_ptr<GifFileType, CloseGif> gif(DGifOpen(&rest, takeFrom, nullptr));
    if (!gif || !isNext(gif.get(), IMAGE_DESC_RECORD_TYPE) ||
        DGifGetImageDesc(gif.get()) != GIF_OK || !isPlain(*gif)) {
        return std::nullopt;
    }
    const ColorMapObject* const map = gif->Image.ColorMap ? gif->Image.ColorMap : gif->SColorMap;
    if (map == nullptr) {
        return std::nullopt;
    }
    std::array<std::uint32_t, 256> colours{};
    std::transform(map->Colors, map->Colors + map->ColorCount, colours.begin(),
                   [](const GifColorType& colour) {
                       return static_cast<std::uint32_t>(colour.Red << 16 | colour.Green << 8 |
                                                         colour.Blue);
                   });
    Raster picture(gif->Image.Width, gif->Image.Height);
    std::vector<GifPixelType> line(static_cast<std::size_t>(picture.width()));
    for (int y = 0; y < picture.height(); ++y) {
        if (DGifGetLine(gif.get(), line.data(), picture.width()) != GIF_OK ||
            *std::max_element(line.begin(), line.end()) >= map->ColorCount) {
            return std::nullopt;
        }
        std::transform(line.begin(), line.end(), picture.row(y).begin(),
                       [&](GifPixelType index) { return colours[index]; });
    }
    if (!isNext(gif.get(), TERMINATE_RECORD_TYPE)) {
        return std::nullopt;
    }
    return picture;
}

}  // namespace fleetwright
