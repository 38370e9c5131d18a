#include "RasterSheet.h"

#include "Error.h"
#include "ImageList.h"
#include "SheetImages.h"
#include "fakeServices.h"
#include "sheetWorld.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <set>

using namespace fleetwright;

namespace {

/// A raster in letters: black '#', white '.', other colours a letter each.
std::string pictureOf(const Raster& raster) {
    std::string text;
    for (int y = 0; y < raster.height(); ++y) {
        for (const std::uint32_t colour : raster.row(y)) {
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
    RasterSheet(raster).fill({0, 0}, {width, height}, colour);
    return raster;
}

/// A sheet and what it is drawn on.
struct DrawnSheet : RasterSheet {
    DrawnSheet(int width, int height, std::uint32_t colour)
        : RasterSheet(raster), raster(box(width, height, colour)) {}

    Raster raster;
};

/// Holds a sheet against a picture beside this file.
void expectGolden(const Raster& raster, const std::string& name) {
    const std::string actual = pictureOf(raster);
    std::ifstream file(SOURCE_FOLDER "/tests/ssd/golden/" + name, std::ios::binary);
    if (actual != std::string{std::istreambuf_iterator<char>(file), {}}) {
        const std::string kept = testing::TempDir() + name;
        std::ofstream(kept, std::ios::binary) << actual;
        ADD_FAILURE() << name << " has changed; the new one is " << kept;
    }
}

}  // namespace

TEST(RasterSheet, PaintsAndFillsInsideItsEdges) {
    DrawnSheet sheet(5, 4, Sheet::white);
    sheet.paint(box(3, 2, 0), -1, -1);
    sheet.paint(box(3, 2, 1), 3, 3);
    sheet.paint(box(2, 2, 2), 0, 90);
    sheet.paint(box(2, 2, 2), -2, 1);
    EXPECT_EQ(pictureOf(sheet.raster), "##...\n.....\n.....\n...bb\n");
    sheet.fill({1, 2}, {9, 9}, 3);
    sheet.fill({-5, 0}, {1, 1}, Sheet::white);
    EXPECT_EQ(pictureOf(sheet.raster), ".#...\n.....\n.dddd\n.dddd\n");
    sheet.fill({0, 0}, {5, 4}, Sheet::black);
    EXPECT_EQ(sheet.pixel(0, 0) | sheet.pixel(4, 3), Sheet::black);
    for (const auto& [x, y] : {std::pair(-1, 0), {0, -1}, {5, 0}, {0, 4}}) {
        EXPECT_EQ(sheet.pixel(x, y), Sheet::white);
    }
}

TEST(RasterSheet, GrowsWhiteAndIsCutAtTheBottom) {
    DrawnSheet sheet(2, 2, Sheet::black);
    EXPECT_EQ(sheet.controlHeight(), 30);
    sheet.setControlHeight(59);
    EXPECT_EQ(pictureOf(sheet.raster), "##\n##\n..\n");
    sheet.setControlHeight(15);
    EXPECT_EQ(pictureOf(sheet.raster), "##\n");
    sheet.setControlHeight(-15);
    EXPECT_EQ(sheet.scaleHeight(), 0);
    DrawnSheet wide(32768, 1, Sheet::white);
    wide.setControlHeight(2048 * 15);
    EXPECT_THROW(wide.setControlHeight(2049 * 15), Error);
}

TEST(RasterSheet, PrintsLinesThatEndInCr) {
    DrawnSheet sheet(20, 32, 7);
    EXPECT_EQ(sheet.textHeight(""), 0);
    EXPECT_EQ(sheet.textHeight("a"), 16);
    EXPECT_EQ(sheet.textHeight("\ra\r\r"), 48);
    const Pen pen = sheet.print("1\rI!", {9, 1});
    EXPECT_EQ(pen.x, 0);
    EXPECT_EQ(pen.y, 33);
    expectGolden(sheet.raster, "lines.txt");
}

TEST(RasterSheet, PrintsCharactersOfAllKinds) {
    DrawnSheet sheet(110, 16, Sheet::white);
    // Narrow, accented, put together, wide, a blank, invisible ones, unknown, no UTF-8 at all.
    sheet.print("éß e\u0301Ж漢\t\u200B\n|\U0001F680\xFF", {0, 0});
    expectGolden(sheet.raster, "characters.txt");
    // What has no picture moves nothing.
    for (const char* const ends : {"\x01\x1F\x7F", "\u0080\u009F\u00AD", "\u200B\u200F\u2028\u202E",
                                   "\u2060\u206F\uFE00\uFE0F\uFEFF"}) {
        DrawnSheet other(8, 16, Sheet::white), plain(8, 16, Sheet::white);
        other.print(std::string(ends) + "I", {0, 0});
        plain.print("I", {0, 0});
        EXPECT_EQ(pictureOf(other.raster), pictureOf(plain.raster));
    }
}

TEST(RasterSheet, ShowsAShipAsItsPicturesStand) {
    const ShipYard yard(arcCatalogue);
    const auto ship = yard.loaded("Mass: 10\nArmor: Level 2\n");
    const SSDMap map = MapFolder().map("SIZE: 10\nDAMROW: (3,2)\nWEAP: (3,8,F)\nWEAP: (10,8,P)\n"
                                       "WEAP: (17,8,S)\nDCP: (3,15)\nFIRECON: (30,2)\n"
                                       "FTL: (30,8)\nTHRUST: (30,14)\n");
    int refreshes = 0;
    Raster raster;
    RasterSheet sheet(raster, [&refreshes] { ++refreshes; });
    sheet.setPicture(box(120, 24, 14));
    // In colours of their own, small enough for a small golden.
    const SheetImages images{[](std::string_view name) {
                                 return box(name.starts_with("escort") ? 20 : 6, 4,
                                            name.front() == 's' ? 18 : 5);
                             },
                             [blank = box(5, 5, Sheet::white),
                              system = box(5, 5, 22)](std::string_view name) -> const Raster& {
                                 return name == SheetImages::blank ? blank : system;
                             }};
    SheetLists lists;
    lists.fillShipWeap(rows({{"FP", "2"}, {"Listed", "1"}}));
    lists.fillPoints(map);
    drawSSD(sheet, images, map, lists,
            {"5", "0", "1", "Magpie", "Åsa", std::to_string(ship->g_lCost), *ship});
    expectGolden(raster, "ship.txt");
    EXPECT_EQ(refreshes, 3);
}

TEST(RasterSheet, PrintsEachLineOfASheetWithInkInTheColumnOfTheTrim) {
    // The trim takes the lowest ink in that column for the end of the text.
    std::set<std::string> lines = {"Points: 1", "Streamlining: Full", "Armor: Level 1", "====="};
    std::ifstream catalogue(SOURCE_FOLDER "/data/weaps.dat");
    for (std::string line; std::getline(catalogue, line);) {
        if (line.find(',') != std::string::npos && !line.starts_with('#')) {
            lines.insert(line.substr(0, line.find(',')));
        }
    }
    EXPECT_GT(lines.size(), 100U);
    for (const std::string& line : lines) {
        DrawnSheet sheet(3, 16, Sheet::white);
        sheet.print(line, {0, 0});
        EXPECT_NE(pictureOf(sheet.raster).find("#\n"), std::string::npos) << line;
    }
}

TEST(SheetImages, ComeFromFilesAndTheListOrTheCatalogue) {
    const ShipYard yard(arcCatalogue);
    const auto ship = yard.newShip();
    const MapFolder folder;
    folder.writeFile("images/F.GIF", "");
    const std::string gif = (folder.path() / "images/F.GIF").string();
    PicturesByName pictures;
    pictures.files[gif] = Raster(3, 4);
    ImageList list(nullptr, {.name = "ilWeapons"});
    list.add("F", Raster(5, 6));
    list.add("BLANK", Raster(7, 8));

    const SheetImages listed = programImages(folder.path(), pictures, list);
    const SheetImages named = catalogueImages(folder.path(), pictures, *ship);
    EXPECT_EQ(listed.file("f.gif").width(), 3);
    EXPECT_THROW(named.file("g.gif"), FileError);
    EXPECT_EQ(listed.system("F").width(), 5);
    EXPECT_EQ(listed.system("BLANK").width(), 7);
    EXPECT_EQ(named.system("BLANK").width(), 32);
    EXPECT_EQ(pictureOf(named.system("BLANK")), pictureOf(Raster(32, 32)));
    const Raster& first = named.system("F");
    pictures.files.clear();
    EXPECT_EQ(&named.system("F"), &first) << "it is loaded once";
    EXPECT_EQ(first.width(), 3);
    EXPECT_THROW(named.system("FP"), FileError);
    for (const SheetImages& images : {listed, named}) {
        EXPECT_THROW(images.system("none"), Error);
    }
}
