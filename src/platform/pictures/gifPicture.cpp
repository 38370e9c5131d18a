#include "gifPicture.h"

#include "Error.h"

#include <gif_lib.h>

#include <algorithm>
#include <array>
#include <memory>
#include <span>
#include <utility>
#include <vector>

namespace fleetwright {

namespace {

/// The bytes of a file that are still to be read.
struct Rest {
    std::string_view bytes;
    bool isCutShort = false;  ///< more was asked for than is there

    std::string_view take(std::size_t count) {
        isCutShort = isCutShort || count > bytes.size();
        const std::string_view taken = bytes.substr(0, count);
        bytes.remove_prefix(taken.size());
        return taken;
    }
    /// The next byte; 0 where there is none.
    unsigned char takeByte() {
        const std::string_view taken = take(1);
        return taken.empty() ? 0 : static_cast<unsigned char>(taken.front());
    }
    /// Passes over a chain of blocks, the empty one at its end included.
    void passBlocks() {
        for (std::size_t size = takeByte(); size != 0; size = takeByte()) {
            take(size);
        }
    }
};

struct CloseGif {
    void operator()(GifFileType* gif) const { DGifCloseFile(gif, nullptr); }
};

int takeFrom(GifFileType* gif, GifByteType* bytes, int count) {
    const std::string_view taken =
        static_cast<Rest*>(gif->UserData)->take(static_cast<std::size_t>(count));
    taken.copy(reinterpret_cast<char*>(bytes), taken.size());
    return static_cast<int>(taken.size());
}

std::uint32_t rgb(const GifColorType& colour) {
    return static_cast<std::uint32_t>(colour.Red << 16 | colour.Green << 8 | colour.Blue);
}

/// Reads a file from its beginning to its end, once.
class GifReader {
public:
    GifReader(std::string_view bytes, std::int64_t mostPixels)
        : m_rest{bytes}, m_mostPixels(mostPixels), m_gif(DGifOpen(&m_rest, takeFrom, nullptr)) {}

    /// Throws Error.
    Raster read() {
        require(m_gif != nullptr);
        goToImage();
        findSize();
        const std::vector<GifPixelType> pixels = readPixels();
        goToEnd();
        return painted(pixels);
    }

private:
    void require(bool isWell) const {
        if (m_rest.isCutShort) {
            throw Error("is cut short");
        }
        if (!isWell) {
            throw Error("is damaged");
        }
    }

    void goToImage();
    void readExtension();
    void findSize();
    std::vector<GifPixelType> readPixels();
    void goToEnd();
    Raster painted(const std::vector<GifPixelType>& pixels) const;
    std::uint32_t background() const;

    Rest m_rest;
    std::int64_t m_mostPixels;
    std::unique_ptr<GifFileType, CloseGif> m_gif;
    int m_seeThrough = NO_TRANSPARENT_COLOR;  ///< the colour through which the paper shows
    int m_width = 0;                          ///< of what is seen of the screen
    int m_height = 0;
    const ColorMapObject* m_colours = nullptr;
};

void GifReader::goToImage() {
    GifRecordType type = UNDEFINED_RECORD_TYPE;
    while (type != IMAGE_DESC_RECORD_TYPE) {
        require(DGifGetRecordType(m_gif.get(), &type) == GIF_OK && type != TERMINATE_RECORD_TYPE);
        if (type == EXTENSION_RECORD_TYPE) {
            readExtension();
        }
    }
    require(DGifGetImageDesc(m_gif.get()) == GIF_OK);
    m_colours = m_gif->Image.ColorMap != nullptr ? m_gif->Image.ColorMap : m_gif->SColorMap;
    require(m_colours != nullptr);
}

void GifReader::readExtension() {
    int label = 0;
    GifByteType* block = nullptr;  // its first byte is its length
    require(DGifGetExtension(m_gif.get(), &label, &block) == GIF_OK);
    while (block != nullptr) {
        GraphicsControlBlock control;
        if (label == GRAPHICS_EXT_FUNC_CODE &&
            DGifExtensionToGCB(block[0], block + 1, &control) == GIF_OK) {
            m_seeThrough = control.TransparentColor;
        }
        require(DGifGetExtensionNext(m_gif.get(), &block) == GIF_OK);
    }
}

/// Makes out how large the picture is.
void GifReader::findSize() {
    const GifImageDesc& image = m_gif->Image;
    m_width = m_gif->SWidth > 0 ? m_gif->SWidth : image.Left + image.Width;
    m_height = m_gif->SHeight > 0 ? m_gif->SHeight : image.Top + image.Height;
    require(image.Width > 0 && image.Height > 0);
    if (std::int64_t{m_width} * m_height > m_mostPixels ||
        std::int64_t{image.Width} * image.Height > m_mostPixels) {
        throw Error("is too large");
    }
}

/// The indexes of the image's colours, row by row in the order of the file.
std::vector<GifPixelType> GifReader::readPixels() {
    const auto width = static_cast<std::size_t>(m_gif->Image.Width);
    std::vector<GifPixelType> pixels;
    // Of large ones it grows with what there is, since a short file may say that it is large.
    constexpr std::size_t manyPixels = 1U << 20U;
    pixels.reserve(std::min(width * static_cast<std::size_t>(m_gif->Image.Height), manyPixels));
    for (int row = 0; row < m_gif->Image.Height; ++row) {
        pixels.resize(pixels.size() + width);
        const auto line = pixels.end() - m_gif->Image.Width;
        require(DGifGetLine(m_gif.get(), &*line, m_gif->Image.Width) == GIF_OK &&
                std::all_of(line, pixels.end(), [this](GifPixelType index) {
                    return index < m_colours->ColorCount || index == m_seeThrough;
                }));
    }
    return pixels;
}

/// Passes over what stands behind the first picture, as far as the end that the file must have.
void GifReader::goToEnd() {
    constexpr unsigned char image = ',', extension = '!', end = ';';
    constexpr std::size_t placeAndSize = 8;
    for (unsigned char next = m_rest.takeByte(); next != end; next = m_rest.takeByte()) {
        if (next == image) {
            m_rest.take(placeAndSize);
            const unsigned char flags = m_rest.takeByte();
            m_rest.take((flags & 0x80U) == 0 ? 0 : std::size_t{6} << (flags & 7U));  // colours
        }
        m_rest.takeByte();  // the code size of an image, the label of an extension
        m_rest.passBlocks();
        require(next == image || next == extension);
    }
    require(true);
}

/// What is seen of the screen where the picture is not: paper, unless the file has a colour for it.
std::uint32_t GifReader::background() const {
    if (m_seeThrough != NO_TRANSPARENT_COLOR) {
        return Raster::white;
    }
    if (m_gif->SColorMap == nullptr) {
        return 0;
    }
    const bool hasColour =
        m_colours == m_gif->SColorMap && m_gif->SBackGroundColor < m_colours->ColorCount;
    return hasColour ? rgb(m_colours->Colors[m_gif->SBackGroundColor]) : Raster::white;
}

Raster GifReader::painted(const std::vector<GifPixelType>& pixels) const {
    std::array<std::uint32_t, 256> colours{};
    std::transform(m_colours->Colors, m_colours->Colors + m_colours->ColorCount, colours.begin(),
                   rgb);
    if (m_seeThrough != NO_TRANSPARENT_COLOR) {
        colours[static_cast<std::size_t>(m_seeThrough)] = Raster::white;
    }
    const GifImageDesc& image = m_gif->Image;
    Raster picture(m_width, m_height);
    if (image.Width < m_width || image.Height < m_height || image.Left > 0 || image.Top > 0) {
        for (int y = 0; y < m_height; ++y) {
            std::ranges::fill(picture.row(y), background());
        }
    }
    const auto seen = std::clamp(m_width - image.Left, 0, image.Width);
    auto line = pixels.begin();
    const auto paintRow = [&](int y) {
        if (y + image.Top < m_height) {
            std::transform(line, line + seen, picture.row(y + image.Top).begin() + image.Left,
                           [&](GifPixelType index) { return colours[index]; });
        }
        line += image.Width;
    };
    constexpr std::pair<int, int> passes[] = {{0, 8}, {4, 8}, {2, 4}, {1, 2}};
    constexpr std::pair<int, int> onePass[] = {{0, 1}};
    for (const auto& [first, step] :
         image.Interlace ? std::span<const std::pair<int, int>>(passes) : onePass) {
        for (int y = first; y < image.Height; y += step) {
            paintRow(y);
        }
    }
    return picture;
}

}  // namespace

Raster gifPicture(std::string_view bytes, std::int64_t mostPixels) {
    return GifReader(bytes, mostPixels).read();
}

}  // namespace fleetwright
