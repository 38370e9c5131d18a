// What the scan finds in pictures of every kind, read as the program reads them.

#include "OutlineScan.h"
#include "QtPictureFiles.h"
#include "TemporaryFolder.h"

#include <QColorSpace>
#include <QImage>
#include <gtest/gtest.h>

using namespace fleetwright;

namespace {

constexpr QRgb white = qRgb(255, 255, 255), clearRed = qRgba(255, 0, 0, 0);

/// Black lines and three marks on a ground.
QImage markedImage(QImage::Format format, QRgb ground) {
    QImage image(33, 20, format);
    image.fill(QColor::fromRgba(ground));
    for (int x = 0; x < image.width(); ++x) {
        image.setPixelColor(x, 17, Qt::black);
    }
    image.setPixelColor(20, 4, QColor(255, 0, 0));
    image.setPixelColor(7, 9, QColor(0, 255, 0));
    image.setPixelColor(12, 13, QColor(255, 255, 0));
    image.setPixelColor(13, 13, QColor(0, 255, 0));
    return image;
}

}  // namespace

TEST(PictureFormats, AllThatKeepColoursScanAlike) {
    const TemporaryFolder folder;
    const QImage plain = markedImage(QImage::Format_RGB32, white);
    QImage profiled = plain;
    profiled.setColorSpace(QColorSpace::AdobeRgb);
    QImage palette = plain.convertToFormat(QImage::Format_Indexed8);
    const int unseen = palette.colorCount();
    palette.setColor(unseen, qRgba(0, 0, 255, 0));
    palette.setPixel(1, 1, static_cast<unsigned>(unseen));
    QImage faint = markedImage(QImage::Format_ARGB32, clearRed);
    faint.setPixelColor(3, 3, QColor(0, 0, 255, 250));
    // What is transparent is white paper, and half a mark is none.
    const std::pair<const char*, QImage> images[] = {
        {"a.png", plain},
        {"twice@2x.png", plain},
        {"profile.png", profiled},
        {"palette.png", palette},
        {"deep.png", markedImage(QImage::Format_RGBX64, white)},
        {"clear.png", markedImage(QImage::Format_RGBA64, clearRed)},
        {"faint.png", faint}};
    for (const auto& [name, image] : images) {
        const std::string file = (folder.path() / name).string();
        ASSERT_TRUE(image.save(QString::fromStdString(file)));
        const Raster picture = QtPictureFiles().load(file);
        EXPECT_EQ(picture.pixel(0, 0), Raster::white) << name;
        EXPECT_EQ(scanOutline(picture, ""),
                  "IMAGE: \r\nFIRECON: (20,4)\r\nTHRUST: (7,9)\r\nWEAP: (12,13,S)\r\n")
            << name;
    }
}
