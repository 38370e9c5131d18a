#include "RasterSheet.h"

#include "Error.h"
#include "SheetFont.h"
#include "SheetImages.h"
#include "sheetWorld.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

using namespace fleetwright;

namespace {

/// A raster in letters: black '#', white '.', other colours a letter each.
std::string pictureOf(const Raster& raster) {
    std::string text;
    for (int y = 0; y < raster.height(); ++y) {
        for (int x = 0; x < raster.width(); ++x) {
            const std::uint32_t colour = raster.pixel(x, y);
            text += colour == Sheet::black   ? '#'
                    : colour == Sheet::white ? '.'
                                             : static_cast<char>('a' + colour % 26);
        }
        text += '\n';
    }
    return text;
}

Raster box(int width, int height, std::uint32_t colour) {
    Raster raster(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            raster.pixel(x, y) = colour;
        }
    }
    return raster;
}

/// A sheet and what it is drawn on.
struct DrawnSheet : RasterSheet {
    DrawnSheet(int width, int height) : RasterSheet(raster), raster(width, height) {}

    Raster raster;
};

/// Holds a sheet against a picture beside this file.
void expectGolden(const Raster& raster, const std::string& name) {
    const std::string actual = pictureOf(raster);
    std::ifstream file(SOURCE_FOLDER "/tests/ssd/golden/" + name, std::ios::binary);
    const std::string golden{std::istreambuf_iterator<char>(file), {}};
    if (actual != golden) {
        const std::string kept = testing::TempDir() + name;
        std::ofstream(kept, std::ios::binary) << actual;
        ADD_FAILURE() << name << " has changed; the new one is " << kept;
    }
}

/// Pictures in colours of their own, small enough for small goldens.
SheetImages colouredImages() {
    static const Raster blank = box(5, 5, Sheet::white);
    static const Raster coloured = box(5, 5, 22);
    return {.file =
                [](std::string_view name) {
                    return box(name.starts_with("escort") ? 20 : 6, 4,
                               name.front() == 's' ? 18 : 5);
                },
            .system = [](std::string_view name) -> const Raster& {
                return name == SheetImages::blank ? blank : coloured;
            }};
}

}  // namespace

TEST(RasterSheet, PaintsAndFillsInsideItsEdges) {
    DrawnSheet sheet(5, 4);
    sheet.paint(box(3, 2, 0), -1, -1);
    sheet.paint(box(3, 2, 1), 3, 3);
    sheet.paint(box(2, 2, 2), 0, 90);
    sheet.paint(box(2, 2, 2), -2, 1);
    EXPECT_EQ(pictureOf(sheet.raster), "##...\n.....\n.....\n...bb\n");
    sheet.fill({1, 2}, {9, 9}, 3);
    sheet.fill({-5, 0}, {1, 1}, Sheet::white);
    EXPECT_EQ(pictureOf(sheet.raster), ".#...\n.....\n.dddd\n.dddd\n");
    EXPECT_EQ(sheet.pixel(1, 0), Sheet::black);
    EXPECT_EQ(sheet.pixel(1, 4), Sheet::white);
    EXPECT_EQ(sheet.pixel(-1, 0), Sheet::white);
}

TEST(RasterSheet, GrowsWhiteAndIsCutAtTheBottom) {
    DrawnSheet sheet(2, 2);
    sheet.fill({0, 0}, {2, 2}, 0);
    EXPECT_EQ(sheet.controlHeight(), 30);
    sheet.setControlHeight(59);
    EXPECT_EQ(pictureOf(sheet.raster), "##\n##\n..\n");
    sheet.setControlHeight(15);
    EXPECT_EQ(pictureOf(sheet.raster), "##\n");
    EXPECT_EQ(sheet.scaleHeight(), 1);
    EXPECT_THROW(sheet.setControlHeight(2'000'000'000), Error);
}

TEST(RasterSheet, PrintsLinesThatEndInCr) {
    DrawnSheet sheet(20, 32);
    sheet.fill({0, 0}, {20, 32}, 7);
    EXPECT_EQ(sheet.textHeight(""), 0);
    EXPECT_EQ(sheet.textHeight("a"), 16);
    EXPECT_EQ(sheet.textHeight("\ra\r\r"), 48);
    const Pen pen = sheet.print("1\rI!", {9, 1});
    EXPECT_EQ(pen.x, 0);
    EXPECT_EQ(pen.y, 33);
    expectGolden(sheet.raster, "lines.txt");
}

TEST(RasterSheet, PrintsCharactersOfAllKinds) {
    DrawnSheet sheet(110, 16);
    // Narrow, accented, put together, wide, a blank, invisible ones, unknown, no UTF-8 at all.
    sheet.print("éß e\u0301Ж漢\t\u200B\n|\U0001F680\xFF", {0, 0});
    expectGolden(sheet.raster, "characters.txt");
}

TEST(RasterSheet, ShowsAShipAsItsPicturesStand) {
    const ShipYard yard(arcCatalogue);
    const auto ship = yard.loaded("Mass: 10\nArmor: Level 2\n");
    const MapFolder folder;
    const SSDMap map = folder.map("SIZE: 10\nDAMROW: (3,2)\nWEAP: (3,8,F)\nWEAP: (10,8,P)\n"
                                  "WEAP: (17,8,S)\nDCP: (3,15)\nFIRECON: (30,2)\nFTL: (30,8)\n"
                                  "THRUST: (30,14)\n");
    int refreshes = 0;
    Raster raster;
    RasterSheet sheet(raster, [&refreshes] { ++refreshes; });
    sheet.setPicture(box(120, 24, 14));
    SheetLists lists;
    lists.fillShipWeap(rows({{"FP", "2"}, {"Listed", "1"}}));
    lists.fillPoints(map);
    drawSSD(sheet, colouredImages(), map, lists,
            {"5", "0", "1", "Magpie", "Åsa", std::to_string(ship->g_lCost), *ship});
    expectGolden(raster, "ship.txt");
    EXPECT_EQ(refreshes, 3);
}
