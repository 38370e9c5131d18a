// What the scan finds in pictures of every kind, read as the program reads them.

#include "OutlineScan.h"
#include "QtPictureFiles.h"
#include "TemporaryFolder.h"
#include "pictureFiles.h"

#include <QColorSpace>
#include <QImage>
#include <gtest/gtest.h>

using namespace fleetwright;

namespace {

constexpr QRgb red = qRgb(255, 0, 0), green = qRgb(0, 255, 0), yellow = qRgb(255, 255, 0);

const std::string expected = "FIRECON: (20,4)\r\nTHRUST: (7,9)\r\nWEAP: (12,13,S)\r\n";

/// Black lines and three marks on a ground.
QImage outline(QImage::Format format, QRgb ground) {
    QImage image(33, 20, format);
    image.fill(QColor::fromRgba(ground));
    for (int x = 0; x < image.width(); ++x) {
        image.setPixelColor(x, 17, Qt::black);
    }
    for (const auto& [place, colour] : {std::pair{QPoint(20, 4), red},
                                        {QPoint(7, 9), green},
                                        {QPoint(12, 13), yellow},
                                        {QPoint(13, 13), green}}) {
        image.setPixelColor(place, QColor::fromRgba(colour));
    }
    return image;
}

QImage inPalette(QImage::Format format) {
    return outline(QImage::Format_RGB32, qRgb(255, 255, 255)).convertToFormat(format);
}

class PictureFormats : public testing::Test {
protected:
    /// What the scan says behind the name of the picture.
    std::string scanned(const std::string& name, const QImage& image) const {
        const std::string file = (m_folder.path() / name).string();
        EXPECT_TRUE(image.save(QString::fromStdString(file)));
        return scanned(name);
    }

    std::string scanned(const std::string& name) const {
        const Raster picture = QtPictureFiles().load(m_folder.path() / name);
        const std::string text = scanOutline(picture, name);
        return text.substr(text.find('\n') + 1);
    }

    TemporaryFolder m_folder;
};

}  // namespace

TEST_F(PictureFormats, AllThatKeepColoursScanAlike) {
    const QImage plain = outline(QImage::Format_RGB32, qRgb(255, 255, 255));
    EXPECT_EQ(scanned("a.png", plain), expected);
    EXPECT_EQ(scanned("a.bmp", plain), expected);
    EXPECT_EQ(scanned("twice@2x.png", plain), expected);
    EXPECT_EQ(scanned("deep.png", outline(QImage::Format_RGBX64, qRgb(255, 255, 255))), expected);
    EXPECT_EQ(scanned("palette.png", inPalette(QImage::Format_Indexed8)), expected);
    EXPECT_EQ(scanned("palette.bmp", inPalette(QImage::Format_Indexed8)), expected);
    m_folder.write("a.gif", gifFile(inPalette(QImage::Format_Indexed8)));
    EXPECT_EQ(scanned("a.gif"), expected);
}

TEST_F(PictureFormats, WhatIsTransparentIsWhitePaper) {
    for (const auto format : {QImage::Format_ARGB32, QImage::Format_RGBA64}) {
        // Ground that would be a mark if it could be seen.
        const QImage clear = outline(format, qRgba(255, 0, 0, 0));
        EXPECT_EQ(scanned("clear.png", clear), expected);
        // Half a mark is none, and shines through as another colour.
        QImage faint = clear;
        faint.setPixelColor(3, 3, QColor(0, 0, 255, 250));
        EXPECT_EQ(scanned("faint.png", faint), expected);
        EXPECT_EQ(QtPictureFiles().load(m_folder.path() / "faint.png").pixel(0, 0), Raster::white);
    }
    QImage palette = inPalette(QImage::Format_Indexed8);
    QList<QRgb> colours = palette.colorTable();
    const auto last = static_cast<unsigned>(colours.size());
    colours.append(qRgba(0, 0, 255, 0));
    palette.setColorTable(colours);
    palette.setPixel(1, 1, last);
    EXPECT_EQ(scanned("palette.png", palette), expected);
}

TEST_F(PictureFormats, JpegSmearsTheMarksAway) {
    const QImage plain = outline(QImage::Format_RGB32, qRgb(255, 255, 255));
    EXPECT_EQ(scanned("a.jpg", plain), "");
}

TEST_F(PictureFormats, AColourProfileChangesNothing) {
    QImage image = outline(QImage::Format_RGB32, qRgb(255, 255, 255));
    image.setColorSpace(QColorSpace::AdobeRgb);
    EXPECT_EQ(scanned("a.png", image), expected);
}
