#include "Error.h"
#include "QtPictureFiles.h"
#include "TemporaryFolder.h"
#include "TextFile.h"
#include "bmpFile.h"
#include "folders.h"
#include "plainGif.h"
#include "qtImage.h"

#include <QBuffer>
#include <QImageWriter>
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using namespace fleetwright;
namespace fs = std::filesystem;

namespace {

bool isSame(const Raster& one, const Raster& other) {
    bool isSame = one.width() == other.width() && one.height() == other.height();
    for (int y = 0; isSame && y < one.height(); ++y) {
        isSame = std::ranges::equal(one.row(y), other.row(y));
    }
    return isSame;
}

/// The picture as Qt decodes it, empty if it cannot.
Raster byQt(const fs::path& file) {
    try {
        return QtPictureFiles().load(file);
    } catch (const FileError&) {
        return {};
    }
}

}  // namespace

TEST(PlainPictures, AllDeliveredGifFilesAreReadAsQtReadsThem) {
    std::size_t count = 0;
    for (const char* const folder : {"images", "shipimages"}) {
        for (const fs::path& file : listFolder(fs::path(PICTURES_FOLDER) / folder, ".gif")) {
            const std::optional<Raster> picture = plainGif(readBytes(file));
            ASSERT_TRUE(picture) << file;
            EXPECT_TRUE(isSame(*picture, byQt(file))) << file;
            ++count;
        }
    }
    EXPECT_GT(count, 100U);
}

TEST(PlainPictures, DamagedGifFilesAreLeftAloneOrReadAsQtReadsThem) {
    const TemporaryFolder folder;
    const fs::path whole = fs::path(PICTURES_FOLDER) / "images/ftl.gif";
    const std::string bytes = readBytes(whole);
    std::mt19937 random(1);
    std::size_t readCount = 0;
    for (int i = 0; i < 2000; ++i) {
        std::string damaged = bytes;
        damaged[random() % damaged.size()] = static_cast<char>(random());
        if (i % 4 == 0) {
            damaged.resize(random() % damaged.size());
        }
        if (const std::optional<Raster> picture = plainGif(damaged)) {
            folder.write("damaged.gif", damaged);
            ASSERT_TRUE(isSame(*picture, byQt(folder.path() / "damaged.gif"))) << i;
            ++readCount;
        }
    }
    EXPECT_GT(readCount, 100U);
}

TEST(PlainPictures, BitmapsAreThoseThatQtWrites) {
    std::mt19937 random(1);
    for (int width = 1; width <= 9; ++width) {
        Raster picture(width, 3);
        for (int y = 0; y < picture.height(); ++y) {
            std::ranges::generate(picture.row(y), [&] { return random() & Raster::white; });
        }
        QImage image = toImage(picture);
        image.setDotsPerMeterX(3937);
        image.setDotsPerMeterY(3937);
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        ASSERT_TRUE(QImageWriter(&buffer, "bmp").write(image));
        EXPECT_EQ(bmpFile(picture), buffer.data().toStdString()) << width;
    }
}
