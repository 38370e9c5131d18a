// Sheets that go out of the windows.

#include "SheetOutput.h"

#include "drawSSD.h"
#include "testWindow.h"

#include <gtest/gtest.h>

using namespace fleetwright;

TEST(SheetOutput, APictureWithoutAShipFillsItsPageInsideTheMargins) {
    const TestWindow test;
    const auto file = test.folder().write("ssds/x.bmp", "");
    const OutgoingSheet sheet = test.sheets().ofPicture(file, Raster(380, 100));
    EXPECT_EQ(sheet.name, "x");
    const PageDocument pages = sheet.pages(paperA4);
    ASSERT_EQ(pages.pages.size(), 1U);
    ASSERT_EQ(pages.pages[0].items.size(), 1U);
    const Box place = std::get<PagePicture>(pages.pages[0].items[0]).place;
    EXPECT_EQ(place.x, paperMargin);
    EXPECT_EQ(place.width, 190);
    EXPECT_EQ(place.height, 50);
    EXPECT_EQ(place.y, (297 - 50) / 2.0);
}

TEST(SheetOutput, APictureThatCarriesAShipIsDrawnAnewWithHerSystems) {
    TestWindow test;
    test.folder().write("maps/Any.map", "SIZE: 9\nIMAGE: a.gif\nFIRECON: (1,2)\nDCP: (1,2)\n"
                                        "WEAP: (5,5,FPS)\n");
    test.scanMaps();
    test.window().show();
    test.file = test.folder().write("ships/Wasp.shp", "Ship Name: Wasp\nMass: 6\nSystem: Gun, 1\n");
    test.window().files.mnuLoad.onClick();
    const SheetShip ship = sheetShipOf(test.ship());
    const OutgoingSheet made =
        test.sheets().onBestMap(ship, {{.key = "Gun", .text = "Gun", .subItem = "1"}});
    const OutgoingSheet again = test.sheets().ofPicture(*test.file, made.bitmap);
    EXPECT_EQ(again.name, "Wasp");
    EXPECT_EQ(again.shipFile, made.shipFile);
}

TEST(SheetOutput, ASheetThatWasTriedAtOnceSaysWhyItFailedWhenItIsWanted) {
    const SheetOutput::Source sheet =
        SheetOutput::madeAtOnce([]() -> OutgoingSheet { throw Error("no picture"); });
    EXPECT_THROW(sheet(), Error);
}
