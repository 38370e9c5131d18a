// The trim takes the lowest ink in pixel column 2 for the end of the text. These tests hold the
// font and the catalogue to that: no line of a sheet is cut.

#include "RasterSheet.h"

#include "Catalogue.h"
#include "SSDMap.h"
#include "SheetImages.h"
#include "drawSSD.h"
#include "sheetWorld.h"

#include <gtest/gtest.h>

using namespace fleetwright;

namespace {

constexpr int sheetWidth = 400;

/// The sheet of a new ship whose text ends with the name of this system.
Raster sheetOf(const ShipClass& ship, const std::string& lastLine) {
    static const SSDMap map = MapFolder().map("SIZE: 10");
    static const Raster white{1, 1};
    const SheetImages images{[](std::string_view) { return white; },
                             [](std::string_view) -> const Raster& { return white; }};
    Raster raster(sheetWidth, 20);
    RasterSheet sheet(raster);
    SheetLists lists;
    if (!lastLine.empty()) {
        lists.lstShipWeap.push_back(lastLine);
    }
    drawSSD(sheet, images, map, lists, {"1", "0", "0", "Éa", "b", "9", ship});
    return raster;
}

int inkCount(const Raster& raster) {
    int count = 0;
    for (int y = 0; y < raster.height(); ++y) {
        for (int x = 0; x < raster.width(); ++x) {
            count += raster.pixel(x, y) == Sheet::black ? 1 : 0;
        }
    }
    return count;
}

/// Ink of a text that nothing is cut from.
int inkOf(const std::string& text) {
    Raster raster;
    RasterSheet sheet(raster);
    sheet.setPicture(Raster(sheetWidth, sheet.textHeight(text)));
    sheet.print(text, {0, 0});
    return inkCount(raster);
}

const std::string head = "\rName: Éa\rDesigner: b\rPoints: 9\r\r";
const std::string listHead = head + "=================================\r";

}  // namespace

TEST(SheetTrim, CutsNoLine) {
    const ShipYard yard;
    const auto ship = yard.newShip();
    EXPECT_EQ(inkCount(sheetOf(*ship, "")), inkOf(head));

    Catalogue catalogue;
    catalogue.loadWeaps(SOURCE_FOLDER "/data/weaps.dat");
    ASSERT_GT(catalogue.records().size(), 100U);
    for (const WeapRec& record : catalogue.records()) {
        if (record.name == Catalogue::partyName) {
            continue;  // that one is never listed
        }
        // The ship's own catalogue knows the name as none that goes on an arc.
        const std::string name(record.name);
        const Raster sheet = sheetOf(*ship, name);
        EXPECT_EQ(inkCount(sheet), inkOf(listHead + name)) << name;
        EXPECT_GT(inkOf(name), 0) << name;
    }
}
