// Picture files of strangers: what is whole comes out as it is meant, what is cut short or damaged
// does not come out at all, and nobody but the program says so.

#include "Error.h"
#include "QtPictureFiles.h"
#include "bmpFile.h"
#include "forSeeds.h"
#include "gifPicture.h"
#include "paths.h"
#include "qtImage.h"
#include "readFile.h"

#include <QBuffer>
#include <QImageReader>
#include <QImageWriter>
#include <gif_lib.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <random>

using namespace fleetwright;
namespace fs = std::filesystem;

namespace {

bool areEqual(const Raster& a, const Raster& b) {
    return a.width() == b.width() && bmpFile(a) == bmpFile(b);
}

/// The picture in a file's bytes, or nothing if the file is refused.
std::optional<Raster> read(const std::string& bytes) {
    try {
        return QtPictureFiles().read(bytes);
    } catch (const Error&) {
        return std::nullopt;
    }
}

std::string encoded(const QImage& image, const char* format, bool isProgressive = false) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    writer.setProgressiveScanWrite(isProgressive);
    EXPECT_TRUE(writer.write(image));
    return buffer.data().toStdString();
}

/// A bitmap with two colours, if it has any, and with these masks or pixels behind them.
std::string bitmap(int header, int width, int height, int bits, int compression,
                   const std::string& behind) {
    std::string bytes = "BM";
    const auto put = [&bytes](int value, int length) {
        for (; length > 0; --length, value >>= 8) {
            bytes += static_cast<char>(value);
        }
    };
    const bool isOld = header == 12;
    const int colours = bits <= 8 ? 2 : 0;
    put(0, 8);
    put(14 + header + colours * (isOld ? 3 : 4), 4);
    put(header, 4);
    put(width, isOld ? 2 : 4);
    put(height, isOld ? 2 : 4);
    put(1, 2);
    put(bits, 2);
    if (!isOld) {
        put(compression, 4);
        put(0, 12);
        put(colours, 4);
        put(0, 4);
    }
    for (int i = 0; i < colours; ++i) {
        put(0x123456 * (i + 1), isOld ? 3 : 4);
    }
    return bytes + behind;
}

/// A GIF file of pixels by chance, and how it looks on white paper.
struct GifCase {
    std::string bytes;
    Raster picture;
};

GifCase gifCase(std::mt19937& random) {
    const auto upTo = [&random](int most) { return anyOf(random, 0, most); };
    const int left = upTo(1) * upTo(5), top = upTo(1) * upTo(5);
    const int width = 1 + upTo(19), height = 1 + upTo(19);
    const bool isInterlaced = upTo(1) == 1, hasOwnColours = upTo(1) == 1;
    const int seeThrough = upTo(1) == 1 ? upTo(3) : NO_TRANSPARENT_COLOR;
    // The picture may leave the screen.
    GifCase made{.bytes = {}, .picture = Raster(1 + upTo(24), 1 + upTo(24))};

    const auto put = [](GifFileType* gif, const GifByteType* bytes, int count) {
        static_cast<std::string*>(gif->UserData)
            ->append(reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(count));
        return count;
    };
    const GifColorType screenColours[] = {{9, 9, 9}, {1, 2, 3}, {255, 0, 0}, {7, 8, 250}};
    const GifColorType ownColours[] = {{1, 1, 1}, {0, 255, 0}, {4, 5, 6}, {250, 250, 0}};
    ColorMapObject* const map = GifMakeMapObject(4, screenColours);
    ColorMapObject* const ownMap = hasOwnColours ? GifMakeMapObject(4, ownColours) : nullptr;
    GifFileType* const gif = EGifOpen(&made.bytes, put, nullptr);
    EGifSetGifVersion(gif, true);
    EGifPutScreenDesc(gif, made.picture.width(), made.picture.height(), 2, 1, map);
    if (seeThrough != NO_TRANSPARENT_COLOR) {
        GifByteType block[4];
        const GraphicsControlBlock control{0, false, 0, seeThrough};
        EGifGCBToExtension(&control, block);
        EGifPutExtension(gif, GRAPHICS_EXT_FUNC_CODE, 4, block);
    }
    const auto colour = [&](int index) {
        const GifColorType& rgb = (hasOwnColours ? ownColours : screenColours)[index];
        return index == seeThrough
                   ? Raster::white
                   : static_cast<std::uint32_t>(rgb.Red << 16 | rgb.Green << 8 | rgb.Blue);
    };
    for (int y = 0; y < made.picture.height(); ++y) {
        std::ranges::fill(made.picture.row(y), seeThrough == NO_TRANSPARENT_COLOR && !hasOwnColours
                                                   ? colour(1)
                                                   : Raster::white);
    }
    EGifPutImageDesc(gif, left, top, width, height, isInterlaced, ownMap);
    const auto putRow = [&](int y) {
        std::vector<GifPixelType> row(static_cast<std::size_t>(width));
        for (int x = 0; x < width; ++x) {
            const int index = upTo(3);
            row[static_cast<std::size_t>(x)] = static_cast<GifPixelType>(index);
            if (left + x < made.picture.width() && top + y < made.picture.height()) {
                made.picture.pixel(left + x, top + y) = colour(index);
            }
        }
        EGifPutLine(gif, row.data(), width);
    };
    for (const int first : isInterlaced ? std::vector{0, 4, 2, 1} : std::vector{0}) {
        const int step = !isInterlaced ? 1 : first == 0 ? 8 : first == 4 ? 8 : first * 2;
        for (int y = first; y < height; y += step) {
            putRow(y);
        }
    }
    if (upTo(1) == 1) {                                    // further pictures are not seen
        EGifPutImageDesc(gif, 0, 0, 1, 1, false, ownMap);  // without one it leaks the other
        EGifPutPixel(gif, 0);
    }
    EGifCloseFile(gif, nullptr);
    GifFreeMapObject(map);
    if (ownMap != nullptr) {
        GifFreeMapObject(ownMap);
    }
    return made;
}

}  // namespace

TEST(PictureReader, GifFilesComeOutAsTheyAreMeantOrNotAtAll) {
    for (const char* const folder : {"images", "shipimages"}) {
        for (const fs::path& file : listFolder(fs::path(PICTURES_FOLDER) / folder, ".gif")) {
            const QImage byQt = QImageReader(QString::fromStdString(file.string())).read();
            EXPECT_TRUE(areEqual(gifPicture(readBytes(file)), toRaster(byQt))) << file;
        }
    }
    forSeeds([](std::mt19937& random) {
        for (int i = 0; i < 100 && !testing::Test::HasFailure(); ++i) {
            const GifCase made = gifCase(random);
            EXPECT_TRUE(areEqual(gifPicture(made.bytes + "behind"), made.picture)) << i;
            for (std::size_t length = 0; length < made.bytes.size(); ++length) {
                EXPECT_THROW(gifPicture(made.bytes.substr(0, length)), Error) << length;
            }
        }
    });
}

TEST(PictureReader, OtherFilesAreWholeOrRefusedWithoutAWordOfTheDecoder) {
    std::mt19937 random(1);
    QImage image(13, 9, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            image.setPixel(x, y, static_cast<uint>(random()) | 0xFF000000U);
        }
    }
    // A comment is no end, whatever it says.
    std::string commented = encoded(image, "jpg");
    commented.insert(2, std::string("\xFF\xFF\xFE\0\6\xFF\xD9..", 9));
    struct File {
        std::string bytes;
        std::size_t needless = 0;  ///< bytes at its end
        std::string alike = {};    ///< another file of the same picture, for Qt
    };
    const File files[] = {
        {commented},
        {encoded(image, "jpg", true)},
        {encoded(image, "png")},
        {encoded(image, "bmp")},
        {encoded(image.convertToFormat(QImage::Format_Mono), "bmp")},
        {bitmap(12, 9, 2, 1, 0, std::string(2 * 4, '\x5A'))},
        {bitmap(40, 3, -2, 16, 3,
                std::string("\0\xF8\0\0\xE0\7\0\0\x1F\0\0\0", 12) + std::string(2 * 8, '\x5A')),
         0,
         bitmap(40, 3, -2, 24, 0,
                std::string("\xD6\x49\x5A\xD6\x49\x5A\xD6\x49\x5A\0\0\0"
                            "\xD6\x49\x5A\xD6\x49\x5A\xD6\x49\x5A\0\0\0",
                            24))},
        // White, red and blue are as pure as those of 24 bits.
        {bitmap(40, 3, 1, 16, 0, std::string("\xFF\x7F\0\x7C\x1F\0\0\0", 8)), 0,
         bitmap(40, 3, 1, 24, 0, std::string("\xFF\xFF\xFF\0\0\xFF\xFF\0\0\0\0\0", 12))},
        // In runs: four of one colour, three by themselves; a line's end; seven.
        {bitmap(40, 7, 2, 8, 1, std::string("\4\1\0\3\0\1\0\0\0\0\7\1\0\1", 14)), 2},
        // Of half a byte each: five by themselves; a line up; two. The rest has the first colour.
        {bitmap(40, 7, 2, 4, 2, std::string("\0\5\x01\x10\x10\0\0\2\0\1\2\1\0\1", 14)), 2,
         bitmap(40, 7, 2, 4, 0, std::string("\x01\x10\x10\0\0\0\0\x10", 8))}};
    testing::internal::CaptureStderr();
    for (const auto& [bytes, needless, alike] : files) {
        SCOPED_TRACE(bytes.substr(0, 4));
        const QImage byQt =
            QImage::fromData(QByteArray::fromStdString(alike.empty() ? bytes : alike));
        const std::optional<Raster> whole = read(bytes);
        ASSERT_TRUE(whole && areEqual(*whole, toRaster(byQt)));
        for (std::size_t length = 0; length + needless < bytes.size(); ++length) {
            EXPECT_FALSE(read(bytes.substr(0, length))) << length;
        }
        for (int i = 0; i < 100; ++i) {
            std::string damaged = bytes;
            damaged[random() % damaged.size()] = static_cast<char>(random());
            read(damaged);
        }
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(PictureReader, BitmapsAreThoseThatQtWrites) {
    std::mt19937 random(1);
    for (int width = 1; width <= 9; ++width) {
        Raster picture(width, 3);
        for (int y = 0; y < picture.height(); ++y) {
            std::ranges::generate(picture.row(y), [&] { return random() & Raster::white; });
        }
        QImage image = toImage(picture);
        image.setDotsPerMeterX(3937);
        image.setDotsPerMeterY(3937);
        EXPECT_EQ(bmpFile(picture), encoded(image, "bmp")) << width;
    }
}
