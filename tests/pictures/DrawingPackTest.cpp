// The drawings of the pictures, in the pack that the build has made and in others.

#include "DrawingPack.h"
#include "DrawnPictureFiles.h"
#include "OutlineMarks.h"
#include "QtPictureFiles.h"
#include "TemporaryFolder.h"
#include "caseFile.h"
#include "drawPageShapes.h"
#include "faults.h"
#include "paths.h"
#include "qtImage.h"
#include "readFile.h"

#include <QPainter>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <iomanip>
#include <optional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

using namespace fleetwright;
namespace fs = std::filesystem;

namespace {

#ifdef FLEETWRIGHT_SANITIZED
constexpr int pictureStep = 5;  // it is Qt that draws them
#else
constexpr int pictureStep = 1;
#endif

/// A drawing as it looks, each pixel made of so many finer ones each way.
QImage rendered(const std::shared_ptr<const Drawing>& drawing, int fine) {
    const Box place = {
        .x = 0, .y = 0, .width = drawing->width * 1., .height = drawing->height * 1.};
    QImage image(QSize(drawing->width, drawing->height) * fine, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.scale(double(fine) / pageUnits, double(fine) / pageUnits);
    drawPageShapes(
        painter, {{PagePicture{.drawing = drawing, .raster = {}, .place = place, .clip = place}}});
    return image.scaled(image.size() / fine, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// Takes away what stands for marks in the picture of an outline: along the top of each mark's box.
void cleanMarks(QImage& image, const fs::path& picture) {
    const fs::path source = fs::path(ARTWORK_FOLDER "/outlines") / picture.stem() += ".svg";
    if (fs::exists(source)) {
        for (const OutlineMark& mark : readOutlineLayout(source).marks) {
            for (int x = mark.box.left(); x <= mark.box.right(); ++x) {
                image.setPixel(x, mark.box.top(), qRgb(255, 255, 255));
            }
        }
    }
}

/// How much of 255 two pictures differ where they differ most.
int worstDifference(const QImage& one, const QImage& other) {
    int worst = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QColor a = one.pixelColor(x, y), b = other.pixelColor(x, y);
            worst = std::max({worst, std::abs(a.red() - b.red()), std::abs(a.green() - b.green()),
                              std::abs(a.blue() - b.blue())});
        }
    }
    return worst;
}

/// What a pack has of a white picture of two pixels, and what a check of the pack says.
std::string askedFor(const Case& given) {
    const TemporaryFolder folder;
    const DrawingPack pack(folder.write("x", given["pack"] + '\n'));
    std::string said;
    const std::string fault = fileFaultOf([&] {
        const auto drawing = pack.of(Raster(2, 1));
        said = drawing ? std::to_string(drawing->shapes.size()) + " shapes" : "nothing";
        EXPECT_EQ(pack.of(Raster(2, 1)), drawing) << "it is kept";
    });
    const std::optional<Fault> found = pack.fault();
    return replaced(said + fault, folder.path().string() + '/', "") +
           (found ? "\ncheck: " + textOf({*found}) : "\n");
}

}  // namespace

TEST(DrawingPack, IsReadAsFarAsItIsWell) {
    expectCases("pictures/golden/packs.txt", askedFor);
}

TEST(DrawingPack, FindsEachOfMoreDrawingsThanItsIndexIsReadForAtFirst) {
    constexpr int count = 3000;
    std::vector<std::pair<Raster::Key, int>> pictures;
    for (int width = 1; width <= count; ++width) {
        pictures.emplace_back(Raster(width, 1).key(), width);
    }
    std::ranges::sort(pictures);
    std::ostringstream pack, drawings;
    pack << "FleetWright drawings 2\n" << count << '\n' << std::hex << std::setfill('0');
    for (const auto& [key, width] : pictures) {
        const std::string drawing = std::to_string(width) + " 0 0 0\n";
        pack << std::setw(16) << key[0] << std::setw(16) << key[1] << std::dec << ' ' << width
             << " 1 " << drawing.size() << ' ' << std::hex << std::setw(32) << width << '\n';
        drawings << drawing;
    }
    const TemporaryFolder folder;
    const DrawingPack read(folder.write("pack", pack.str() + drawings.str()));
    for (int width = 1; width <= count; ++width) {
        const auto drawing = read.of(Raster(width, 1));
        ASSERT_NE(drawing, nullptr) << width;
        EXPECT_EQ(drawing->ink.x, width);
    }
    folder.write("pack", pack.str());
    EXPECT_EQ(fileFaultOf([&] { DrawingPack(folder.path() / "pack").of(Raster(1, 1)); }),
              (folder.path() / "pack").string() + ": is cut short");
}

TEST(DrawingPack, HasADrawingOfEachPictureThatShowsTheSameAndNoneOfOneThatWasChanged) {
    const DrawingPack pack(APP_FOLDER "/drawings.dat");
    QtPictureFiles reader;
    DrawnPictureFiles drawn(reader, pack);
    int listed = 0, count = 0, known = 0;
    for (const std::string folder : {"images", "window", "shipimages"}) {
        for (const fs::path& file : listFolder(PICTURES_FOLDER "/" + folder, "")) {
            if (file.extension() == ".svg" || file.extension() == ".qrc" ||
                listed++ % pictureStep != 0) {
                continue;
            }
            SCOPED_TRACE(file.string());
            Raster picture = reader.load(file);
            const auto drawing = pack.of(picture);
            ASSERT_NE(drawing, nullptr);
            // Found without a look at its pixels, which are there for whoever looks.
            const Raster found = drawn.load(file);
            EXPECT_EQ(pack.of(found), drawing);
            EXPECT_TRUE(!pack.pictureIn(readBytes(file)) || toImage(found) == toImage(picture));
            known += pack.pictureIn(readBytes(file)) ? 1 : 0;
            QImage image = toImage(picture);
            cleanMarks(image, file);
            // A pixel of ink is black if more than half of it is covered: here it is white below 35
            // percent, and black above 65. Shades of grey are the mean of what is in a pixel.
            const bool hasShades = folder == "shipimages";
            EXPECT_LE(worstDifference(image, rendered(drawing, hasShades ? 1 : 4)),
                      hasShades ? 70 : 165);
            picture.pixel(picture.width() - 1, count++ % picture.height()) ^= 1U;
            EXPECT_EQ(pack.of(picture), nullptr);
        }
    }
    EXPECT_GT(count, 600 / pictureStep);
    EXPECT_GT(known, 600 / pictureStep);
    const TemporaryFolder folder;
    const fs::path file = listFolder(PICTURES_FOLDER "/images", "").front();
    const fs::path changed = folder.write("changed.gif", readBytes(file) + ' ');
    EXPECT_FALSE(pack.pictureIn(readBytes(changed)));
    EXPECT_EQ(toImage(drawn.load(changed)), toImage(reader.load(file)));
}
