#include "RasterSheet.h"

#include "Error.h"
#include "ImageList.h"
#include "SheetImages.h"
#include "caseFile.h"
#include "fakeServices.h"
#include "sheetWorld.h"

#include <gtest/gtest.h>

#include <fstream>
#include <set>

using namespace fleetwright;

namespace {

/// A sheet and what it is drawn on.
struct DrawnSheet : RasterSheet {
    DrawnSheet(int width, int height, std::uint32_t colour)
        : RasterSheet(raster), raster(box(width, height, colour)) {}

    Raster raster;
};

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
    EXPECT_EQ(sheet.textHeight("\ra\r\r"), 48);
    EXPECT_EQ(sheet.print("1\rI!", {9, 1}).y, 33);
    expectCases("ssd/golden/lines.txt", [&](const Case&) { return pictureOf(sheet.raster); });
}

TEST(RasterSheet, PrintsCharactersOfAllKinds) {
    DrawnSheet sheet(110, 16, Sheet::white);
    // Narrow, accented, put together, wide, a blank, invisible ones, unknown, no UTF-8 at all.
    sheet.print("éß e\u0301Ж漢\t\u200B\n|\U0001F680\xFF", {0, 0});
    expectCases("ssd/golden/characters.txt", [&](const Case&) { return pictureOf(sheet.raster); });
    const auto printed = [](const std::string& text) {
        DrawnSheet other(32, 16, Sheet::white);
        other.print(text, {0, 0});
        return pictureOf(other.raster);
    };
    EXPECT_EQ(printed("\x01\x1F\x7F\u0080\u009F\u00AD\u200B\u200F\u2028\u202E\u2060\u206F\uFE00"
                      "\uFE0F\uFEFFI"),
              printed("I"));
    for (const char* const some : {" ", "~", "\u00A0", "\u00AC", "\u00AE", "\u200A", "\u2010",
                                   "\u2027", "\u202F", "\u205F", "\u2070", "\uFE10", "\uFF00"}) {
        EXPECT_NE(printed(some + std::string("I")), printed("I")) << some;
    }
    EXPECT_EQ(printed("\uFFFE"), printed("\uFFFD")) << "the font ends in front of it";
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
    const TemporaryFolder folder;
    PicturesByName pictures;
    pictures.files[folder.write("images/F.GIF", "")] = Raster(3, 4);
    ImageList list(nullptr, {.name = "ilWeapons"});
    list.add("F", Raster(5, 6));

    const SheetImages listed = programImages(folder.path(), pictures, list);
    const SheetImages named = catalogueImages(picturesReadOnce(folder.path(), pictures), *ship);
    EXPECT_EQ(listed.system("F").width(), 5);
    EXPECT_EQ(pictureOf(named.system("BLANK")), pictureOf(Raster(32, 32)));
    const Raster& first = named.system("F");
    EXPECT_EQ(first.width(), 3);
    for (const SheetImages& images : {listed, named}) {
        EXPECT_EQ(images.file("f.gif").width(), 3);
        EXPECT_THROW(images.file("g.gif"), FileError);
        EXPECT_THROW(images.system("none"), Error);
    }
    pictures.files.clear();
    EXPECT_EQ(&named.system("F"), &first) << "it is loaded once";
    EXPECT_THROW(named.system("FP"), FileError);
}
