#include "frmSSDMapCreator.h"

#include "SSDMap.h"
#include "SSDMaps.h"
#include "TemporaryFolder.h"
#include "fakeServices.h"
#include "mapMarks.h"

#include <gtest/gtest.h>

using namespace fleetwright;

namespace {

const std::string largeOutline = "C:\\outlines\\large.gif", small = "ship.gif";

class MapCreator : public testing::Test {
protected:
    MapCreator() {
        Raster picture(1000, 400);
        picture.pixel(10, 0) = Red;
        picture.pixel(10, 399) = Blue;
        pictures.files[largeOutline] = picture;
        pictures.files[small] = Raster(2, 1);
        pictures.files[small].pixel(0, 0) = Cyan;
        pictures.files["wide.gif"] = Raster(32768, 1);
        window.load();
    }

    void select(const std::optional<std::string>& file) {
        desktop.choice = file;
        window.cmdSelect.press();
    }

    void saveAs(const std::string& file) {
        desktop.choice = file;
        window.cmdSaveIt.press();
    }

    int blackPixels() const {
        int count = 0;
        const Raster& picture = window.picImage.picture();
        for (int y = 0; y < picture.height(); ++y) {
            for (const std::uint32_t pixel : picture.row(y)) {
                count += pixel == Black ? 1 : 0;
            }
        }
        return count;
    }

    TemporaryFolder folder;
    ChoosingDesktop desktop;
    PicturesByName pictures;
    SteppingClock clock;
    SSDMaps maps;
    std::function<void()> turn = [] {};  ///< what waits in the event loop
    int turns = 0;
    frmSSDMapCreator window{{.appFolder = folder.path(),
                             .desktop = desktop,
                             .pictures = pictures,
                             .clock = clock,
                             .eventLoopTurn =
                                 [this] {
                                     ++turns;
                                     turn();
                                 },
                             .g_colSSDMaps = maps}};
};

TEST_F(MapCreator, AScanGivesTheMapAndTheCleanPicture) {
    EXPECT_TRUE(window.isVisible() && window.cmdDoit.isEnabled());
    select(largeOutline);
    EXPECT_EQ(desktop.asked.initialFolder, folder.path() / "shipimages");
    EXPECT_EQ(desktop.asked.filterIndex, 2);
    window.txtOutput.type("old");
    window.cmdDoit.press();
    EXPECT_EQ(window.txtOutput.text(), "IMAGE: large.gif\r\nFIRECON: (10,0)\r\nDCP: (10,399)\r\n");
    EXPECT_EQ(blackPixels(), 0);
    EXPECT_FALSE(window.isTopmost());
    select(small);
    window.cmdDoit.press();
    EXPECT_EQ(window.txtOutput.text(), "IMAGE: ship.gif\r\nFTL: (0,0)\r\n");
}

TEST_F(MapCreator, TheWindowTakesThePicturesSize) {
    const Form& form = window;
    EXPECT_EQ(form.place(), Place({0, 0, 5790, 5565}));
    select(largeOutline);
    const Place image = window.picImage.place(), text = window.txtOutput.place();
    EXPECT_EQ(image.width, 15000);
    EXPECT_EQ(image.height, 6000);
    EXPECT_EQ(text.height, 6000);
    EXPECT_EQ(text.left, 15000 + image.left + 100);
    EXPECT_EQ(form.height(), 6000 + image.top + 500);
    EXPECT_EQ(form.width(), text.width + 500 + 15000 + 100);
    select(small);
    const Place& save = window.cmdSaveIt.place();
    EXPECT_LT(save.left + save.width, form.place().width) << "no button is cut off";
}

TEST_F(MapCreator, DuringAScanOnlyCancelAnswers) {
    select(largeOutline);
    clock.step = 20;
    int grown = 0, seen = 0;
    turn = [&] {
        EXPECT_TRUE(window.isTopmost());
        for (const Control* const control : {static_cast<const Control*>(&window.cmdDoit),
                                             {&window.cmdSelect},
                                             {&window.cmdSaveIt},
                                             {&window.txtOutput}}) {
            EXPECT_FALSE(control->takesActs()) << control->name();
        }
        EXPECT_TRUE(window.chkCancel.takesActs());
        grown += blackPixels() > seen ? 1 : 0;
        seen = blackPixels();
        if (turns == 3) {
            EXPECT_EQ(window.txtOutput.text(), "IMAGE: large.gif\r\nFIRECON: (10,0)\r\n");
            window.chkCancel.press();
        }
    };
    window.cmdDoit.press();
    EXPECT_EQ(turns, 3);
    EXPECT_EQ(grown, 2);
    EXPECT_EQ(window.txtOutput.text(), "Operation Cancelled");
    EXPECT_EQ(blackPixels(), 0);
    EXPECT_FALSE(window.chkCancel.isTicked() || window.isTopmost());
    turn = [] {};
    saveAs("maps/x.map");
    window.cmdDoit.press();
    EXPECT_TRUE(window.txtOutput.text().ends_with("DCP: (10,399)\r\n"));
}

TEST_F(MapCreator, TurnsComeByTheClockAndLastNoLongerThanTheScan) {
    select(largeOutline);
    window.cmdDoit.press();
    EXPECT_EQ(turns, 2) << "23 looks at the clock, 1 ms apart";
    turns = 0;
    clock.step = 100;  // also what a turn takes
    window.cmdDoit.press();
    EXPECT_EQ(turns, 24) << "a slow desktop must not keep Cancel waiting";
}

TEST_F(MapCreator, ClosingDuringAScanCancelsFirst) {
    select(largeOutline);
    clock.step = 20;
    turn = [&] { EXPECT_FALSE(window.unload()); };
    window.cmdDoit.press();
    EXPECT_EQ(turns, 1);
    EXPECT_FALSE(window.isLoaded() || window.isVisible());
    EXPECT_EQ(window.txtOutput.text(), "Operation Cancelled");
    window.show();
    EXPECT_EQ(window.txtOutput.text(), "");
    EXPECT_TRUE(window.picImage.picture().isEmpty() && window.cmdDoit.takesActs());
    turn = [] {};
    select(small);
    window.cmdDoit.press();
    EXPECT_TRUE(window.isLoaded());
}

TEST_F(MapCreator, CancelWithoutAScanCancelsNothing) {
    select(small);
    window.chkCancel.press();
    window.cmdDoit.press();
    EXPECT_EQ(window.txtOutput.text(), "IMAGE: ship.gif\r\nFTL: (0,0)\r\n");
    EXPECT_FALSE(window.chkCancel.isTicked());
}

TEST_F(MapCreator, WhatCannotBeLoadedSelectsNothingAndSaysSoWithoutAMessage) {
    const auto tip = [&] { return window.cmdDoit.toolTip(); };
    for (const std::optional<std::string>& file :
         {std::optional<std::string>("none.gif"), {"wide.gif"}, {""}, {}}) {
        select(small);
        EXPECT_TRUE(window.cmdDoit.isEnabled());
        EXPECT_EQ(tip(), "Makes the map of ship.gif");
        select(file);
        EXPECT_FALSE(window.cmdDoit.isEnabled());
        EXPECT_TRUE(tip().starts_with("No picture is selected")) << tip();
        EXPECT_EQ(window.picImage.toolTip(), tip());
        EXPECT_EQ(window.picImage.picture().width(), 2) << "the picture on show stays";
    }
    select("wide.gif");
    EXPECT_EQ(tip(), "No picture is selected: \"wide.gif\" is too large for a map");
    select(small);
    pictures.files.erase(small);
    window.txtOutput.type("mine");
    window.cmdDoit.press();
    EXPECT_FALSE(window.cmdDoit.isEnabled());
    EXPECT_EQ(window.txtOutput.text(), "mine");
    EXPECT_EQ(desktop.log, "");
}

TEST_F(MapCreator, WithoutAPictureTheEmptyBoxIsScanned) {
    int most = 0;
    clock.step = 20;
    turn = [&] { most = std::max(most, blackPixels()); };
    window.cmdDoit.press();
    EXPECT_EQ(window.txtOutput.text(), "IMAGE: \r\n");
    EXPECT_GT(most, 0);
    EXPECT_TRUE(window.picImage.picture().isEmpty());
    EXPECT_GT(window.txtOutput.place().height, 4000);
    EXPECT_TRUE(window.cmdDoit.isEnabled());
    // A picture whose file goes in the middle of a scan.
    select(largeOutline);
    turn = [&] { pictures.files.clear(); };
    window.cmdDoit.press();
    EXPECT_TRUE(window.txtOutput.text().ends_with("DCP: (10,399)\r\n"));
    EXPECT_FALSE(window.cmdDoit.isEnabled()) << "there is no clean picture any more";
}

TEST_F(MapCreator, ANewMapIsOfferedAtOnceAndAKnownOneAtTheNextStart) {
    folder.write("maps/readme", "");
    window.txtOutput.type("SIZE: 18\r\nDCP: (1,2)");
    const std::string file = (folder.path() / "maps" / " New .map").string();
    saveAs(file);
    EXPECT_EQ(desktop.asked.initialFolder, folder.path() / "maps");
    EXPECT_EQ(folder.read("maps/ New .map"), "SIZE: 18\r\nDCP: (1,2)\r\n");
    EXPECT_TRUE(maps.all().empty()) << "it is looked for without the blanks";
    saveAs((folder.path() / "maps" / "New").string());
    ASSERT_EQ(maps.all().size(), 1U);
    EXPECT_EQ(maps.at("new")->iDCPNDX, 1);
    const SSDMaps::Map known = maps.at("New");
    window.txtOutput.type("SIZE: 36\r\n");
    saveAs((folder.path() / "maps" / "New.map").string());
    EXPECT_EQ(folder.read("maps/New.map"), "SIZE: 36\r\n\r\n");
    EXPECT_EQ(maps.at("New"), known);
    EXPECT_EQ(known->iMaxMass, 18);
    EXPECT_EQ(desktop.log, "");
}

TEST_F(MapCreator, SavingAddsTheExtensionAndFailsWithoutAMessage) {
    window.txtOutput.type("words");
    saveAs((folder.path() / "a.MAP").string());
    EXPECT_EQ(folder.read("a.MAP.map"), "words\r\n");
    EXPECT_TRUE(maps.all().empty()) << "it lies outside the folder of maps";
    folder.write("maps/bad.map", "");
    window.txtOutput.type("SIZE: x");
    saveAs((folder.path() / "maps" / "bad.map").string());
    EXPECT_EQ(folder.read("maps/bad.map"), "SIZE: x\r\n");
    EXPECT_TRUE(maps.all().empty());
    saveAs((folder.path() / "nowhere" / "x.map").string());
    EXPECT_TRUE(window.cmdSaveIt.toolTip().starts_with("Not saved: "))
        << window.cmdSaveIt.toolTip();
    desktop.choice.reset();
    window.cmdSaveIt.press();
    EXPECT_EQ(desktop.log, "");
}

}  // namespace
