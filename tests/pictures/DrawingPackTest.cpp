// The drawings of the pictures, in the pack that the build has made and in others.

#include "DrawingPack.h"
#include "OutlineMarks.h"
#include "QtPictureFiles.h"
#include "TemporaryFolder.h"
#include "caseFile.h"
#include "faults.h"
#include "paths.h"
#include "qtImage.h"

#include <QPainter>
#include <QSvgRenderer>
#include <gtest/gtest.h>

#include <cstdlib>
#include <thread>

using namespace fleetwright;
namespace fs = std::filesystem;

namespace {

QString colourText(const std::optional<std::uint32_t>& colour) {
    return colour ? QColor(QRgb(*colour)).name() : "none";
}

/// A drawing as it looks, each pixel the mean of what is drawn in it.
QImage rendered(const Drawing& drawing) {
    QString svg = QString("<svg viewBox='0 0 %1 %2'>").arg(drawing.width).arg(drawing.height);
    for (const DrawnShape& shape : drawing.shapes) {
        const char* const caps[] = {"butt", "round", "square"};
        const char* const joins[] = {"miter", "round", "bevel"};
        svg += QString("<path d='%1' fill='%2' stroke='%3' stroke-width='%4' opacity='%5' "
                       "stroke-linecap='%6' stroke-linejoin='%7' fill-rule='%8'/>")
                   .arg(QString::fromStdString(shape.path), colourText(shape.fill),
                        colourText(shape.stroke))
                   .arg(shape.strokeWidth)
                   .arg(shape.opacity)
                   .arg(caps[int(shape.cap)], joins[int(shape.join)])
                   .arg(shape.isEvenOdd ? "evenodd" : "nonzero");
    }
    constexpr int fine = 4;
    QImage image(QSize(drawing.width, drawing.height) * fine, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    QSvgRenderer((svg + "</svg>").toUtf8()).render(&painter, QRectF(image.rect()));
    return image.scaled(image.size() / fine, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// How much of 255 two colours differ in the part that differs most.
int difference(QRgb one, QRgb other) {
    return std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                     std::abs(qBlue(one) - qBlue(other))});
}

/// The pictures of the build, by their files.
std::map<fs::path, Raster> pictures() {
    std::map<fs::path, Raster> all;
    for (const char* const folder : {"images", "window", "shipimages"}) {
        for (const fs::path& file : listFolder(fs::path(PICTURES_FOLDER) / folder, "")) {
            if (file.extension() != ".svg" && file.extension() != ".qrc") {
                all[file] = QtPictureFiles().load(file);
            }
        }
    }
    return all;
}

}  // namespace

TEST(DrawingPack, HasADrawingOfEachPictureThatShowsTheSameAndNoneOfOneThatWasChanged) {
    const DrawingPack pack(APP_FOLDER "/drawings.dat");
    for (auto& [file, picture] : pictures()) {
        SCOPED_TRACE(file.string());
        const auto drawing = pack.of(picture);
        ASSERT_NE(drawing, nullptr);
        const QImage image = toImage(picture);
        const QImage again = rendered(*drawing);
        ASSERT_EQ(again.size(), image.size());
        // Pixels of inks are black if half of them is covered, all others are means.
        const int most = file.extension() == ".gif" ? 153 : 255;
        int worst = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                worst = std::max(worst, difference(image.pixel(x, y), again.pixel(x, y)));
            }
        }
        EXPECT_TRUE(worst <= most || file.parent_path().stem() == "shipimages" ||
                    file.stem() == "splash-1")
            << worst;
        picture.pixel(picture.width() - 1, 0) ^= 1U;
        EXPECT_EQ(pack.of(picture), nullptr);
    }
}
