#include "QtPictureFiles.h"
#include "TemporaryFolder.h"
#include "bmpFile.h"
#include "paths.h"
#include "plainGif.h"
#include "qtImage.h"
#include "readFile.h"

#include <QBuffer>
#include <QImageWriter>
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <random>

using namespace fleetwright;
namespace fs = std::filesystem;

namespace {

/// Whether the bytes of a GIF file are read without Qt, which has to be as Qt reads them.
bool isReadWithoutQt(const std::string& bytes) {
    const std::optional<Raster> picture = plainGif(bytes);
    if (picture) {
        const TemporaryFolder folder;
        const Raster byQt = QtPictureFiles().load(folder.write("picture.gif", bytes));
        EXPECT_TRUE(bmpFile(*picture) == bmpFile(byQt));
    }
    return picture.has_value();
}

}  // namespace

TEST(PlainPictures, GifFilesAreReadAsQtReadsThem) {
    for (const char* const folder : {"images", "shipimages"}) {
        for (const fs::path& file : listFolder(fs::path(PICTURES_FOLDER) / folder, ".gif")) {
            EXPECT_TRUE(isReadWithoutQt(readBytes(file))) << file;
        }
    }
    const std::string bytes = readBytes(PICTURES_FOLDER "/images/ftl.gif");
    std::mt19937 random(1);
    int readCount = 0;
    for (int i = 0; i < 2000 && !testing::Test::HasFailure(); ++i) {
        SCOPED_TRACE(i);
        std::string damaged = bytes;
        damaged[random() % damaged.size()] = static_cast<char>(random());
        if (i % 4 == 0) {
            damaged.resize(random() % damaged.size());
        }
        readCount += isReadWithoutQt(damaged) ? 1 : 0;
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
