#include "QtPictureFiles.h"
#include "TemporaryFolder.h"
#include "bmpFile.h"
#include "files.h"
#include "paths.h"
#include "plainGif.h"
#include "qtImage.h"

#include <QBuffer>
#include <QImageWriter>
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <random>

using namespace fleetwright;
namespace fs = std::filesystem;

namespace {

/// The bytes of a GIF file, once as they are read without Qt and once as Qt reads them, as bitmaps;
/// nothing if they are left to Qt.
std::optional<std::pair<std::string, std::string>> bothReadings(const std::string& bytes) {
    const std::optional<Raster> picture = plainGif(bytes);
    if (!picture) {
        return std::nullopt;
    }
    const TemporaryFolder folder;
    return std::pair{bmpFile(*picture),
                     bmpFile(QtPictureFiles().load(folder.write("picture.gif", bytes)))};
}

}  // namespace

TEST(PlainPictures, GifFilesAreReadAsQtReadsThem) {
    for (const char* const folder : {"images", "shipimages"}) {
        for (const fs::path& file : listFolder(fs::path(PICTURES_FOLDER) / folder, ".gif")) {
            const auto both = bothReadings(readBytes(file));
            EXPECT_TRUE(both && both->first == both->second) << file;
        }
    }
    const std::string bytes = readBytes(PICTURES_FOLDER "/images/ftl.gif");
    std::mt19937 random(1);
    int readCount = 0;
    for (int i = 0; i < 2000; ++i) {
        std::string damaged = bytes;
        damaged[random() % damaged.size()] = static_cast<char>(random());
        if (i % 4 == 0) {
            damaged.resize(random() % damaged.size());
        }
        if (const auto both = bothReadings(damaged)) {
            ASSERT_EQ(both->first, both->second) << i;
            ++readCount;
        }
    }
    EXPECT_GT(readCount, 100);
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
