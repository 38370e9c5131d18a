#include "frmSSDMapCreator.h"

#include "SSDMap.h"
#include "SSDMaps.h"
#include "TemporaryFolder.h"
#include "fakeServices.h"
#include "formText.h"
#include "mapMarks.h"
#include "outlines.h"

#include <gtest/gtest.h>

using namespace fleetwright;

namespace {

const std::string large = "C:\\outlines\\large.gif", small = "ship.gif";
const std::string largeMap = "IMAGE: large.gif\r\nFIRECON: (10,0)\r\nDCP: (10,399)\r\n",
                  smallMap = "IMAGE: ship.gif\r\nFTL: (0,0)\r\n";

class MapCreator : public testing::Test {
protected:
    MapCreator() {
        pictures.files[large] = outlineOf("10.R989.\n398*.\n10.B\n");
        pictures.files[small] = outlineOf("C.");
        pictures.files["wide.gif"] = Raster(32768, 1);
        window.load();
    }

    void select(const std::optional<std::string>& file) {
        desktop.choice = file;
        window.cmdSelect.press();
    }
    /// The text of a scan of what is selected.
    std::string scanned() {
        window.cmdDoit.press();
        EXPECT_FALSE(window.isTopmost() || window.chkCancel.isTicked());
        return window.txtOutput.text();
    }
    void save(const std::string& text, const std::string& file) {
        window.txtOutput.type(text);
        desktop.choice = (folder.path() / file).string();
        window.cmdSaveIt.press();
    }
    /// How often the event loop gets its turn in a scan, if a look at the clock and a turn take so
    /// many milliseconds.
    int turnsWith(int look, int turnLength) {
        clock.step = look;
        turn = [this, turnLength] { clock.now += turnLength; };
        turns = 0;
        window.cmdDoit.press();
        return turns;
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
    select(large);
    EXPECT_EQ(desktop.asked.initialFolder, folder.path() / "shipimages");
    window.txtOutput.type("old");
    EXPECT_EQ(scanned(), largeMap);
    EXPECT_EQ(blackPixels(), 0);
    select(small);
    window.chkCancel.press();  // without a scan it cancels nothing
    EXPECT_EQ(scanned(), smallMap);
}

TEST_F(MapCreator, TakesThePicturesSizeAndOpensAnew) {
    const auto layout = [this] {
        return formText(window) + std::to_string(static_cast<const Form&>(window).width()) + 'x' +
               std::to_string(static_cast<const Form&>(window).height());
    };
    const std::string first = layout();
    EXPECT_EQ(first, "frmSSDMapCreator 0,0 5790x5565 \"SSD Map Creator\", border fixed\n"
                     "  cmdSelect 105,105 1050x435 \"Select File\"\n"
                     "  cmdDoit 1245,105 1050x435 \"Do It\" \"No picture is selected yet\"\n"
                     "  chkCancel 2385,105 1050x435 \"Cancel\" \"Ends the scan\" graphical\n"
                     "  cmdSaveIt 3525,105 1050x435 \"Save It\"\n"
                     "  picImage 105,645 1275x4815 \"No picture is selected yet\" \"Outline\"\n"
                     "  txtOutput 1480,645 4200x4815 \"Map\" multiline\n"
                     "5910x5970");
    select(large);
    EXPECT_EQ(window.picImage.place(), Place({105, 645, 15000, 6000}));
    EXPECT_EQ(window.txtOutput.place(), Place({15205, 645, 4200, 6000}));
    EXPECT_TRUE(layout().ends_with("\n19800x7145"));
    select(small);
    const Place& last = window.cmdSaveIt.place();
    EXPECT_LT(last.left + last.width, static_cast<const Form&>(window).place().width)
        << "no button is cut off";
    window.chkCancel.press();
    window.unload();
    window.show();
    EXPECT_EQ(layout(), first);
    EXPECT_TRUE(window.picImage.picture().isEmpty() && !window.chkCancel.isTicked());
}

TEST_F(MapCreator, DuringAScanOnlyCancelAnswers) {
    select(large);
    clock.step = 20;
    int grown = 0, seen = 0;
    turn = [&] {
        EXPECT_TRUE(window.isTopmost() && window.chkCancel.takesActs());
        for (const Control* const control : std::initializer_list<const Control*>{
                 &window.cmdDoit, &window.cmdSelect, &window.cmdSaveIt, &window.txtOutput}) {
            EXPECT_FALSE(control->takesActs()) << control->name();
        }
        grown += blackPixels() > seen ? 1 : 0;
        seen = blackPixels();
        if (turns == 3) {
            EXPECT_EQ(window.txtOutput.text(), "IMAGE: large.gif\r\nFIRECON: (10,0)\r\n");
            window.chkCancel.press();
        }
    };
    EXPECT_EQ(scanned(), "Operation Cancelled");
    EXPECT_EQ(turns, 3);
    EXPECT_EQ(grown, 2);
    EXPECT_EQ(blackPixels(), 0);
    turn = [] {};
    EXPECT_EQ(scanned(), largeMap);
}

TEST_F(MapCreator, TurnsComeByTheClockAndLastNoLongerThanTheScan) {
    select(large);  // 24 times as many pixels as there are between two looks at the clock
    EXPECT_EQ(turnsWith(1, 0), 2);
    EXPECT_EQ(turnsWith(10, 0), 12);
    EXPECT_EQ(turnsWith(10, 40), 5);
    EXPECT_EQ(turnsWith(10, 400), 4);
    EXPECT_EQ(turnsWith(100, 0), 24) << "a slow desktop must not keep Cancel waiting";
    pictures.files[small] = outlineOf("100*100R");
    select(small);
    EXPECT_EQ(turnsWith(0, 0), 6) << "much text is shown at once";
    EXPECT_EQ(window.txtOutput.text().size(), 178'017U);
}

TEST_F(MapCreator, ClosingDuringAScanCancelsFirst) {
    select(large);
    clock.step = 20;
    turn = [&] { EXPECT_FALSE(window.unload()); };
    window.cmdDoit.press();
    EXPECT_EQ(turns, 1);
    EXPECT_FALSE(window.isLoaded() || window.isVisible());
    EXPECT_EQ(window.txtOutput.text(), "Operation Cancelled");
    window.show();
    EXPECT_EQ(window.txtOutput.text(), "");
    turn = [] {};
    select(small);
    EXPECT_EQ(scanned(), smallMap);
    EXPECT_TRUE(window.isLoaded());
}

TEST_F(MapCreator, WhatCannotBeLoadedSelectsNothingAndSaysSoWithoutAMessage) {
    const auto expectNothing = [this](const std::string& why) {
        EXPECT_FALSE(window.cmdDoit.isEnabled());
        EXPECT_EQ(window.cmdDoit.toolTip(), "No picture is selected" + why);
        EXPECT_EQ(window.picImage.toolTip(), window.cmdDoit.toolTip());
        EXPECT_EQ(window.picImage.picture().width(), 2) << "the picture on show stays";
    };
    for (const auto& [file, why] :
         std::initializer_list<std::pair<std::optional<std::string>, std::string>>{
             {"none.gif", ": \"none.gif\" cannot be read"},
             {"wide.gif", ": \"wide.gif\" is too large for a map"},
             {"", ""},
             {std::nullopt, ""}}) {
        select(small);
        EXPECT_TRUE(window.cmdDoit.isEnabled());
        EXPECT_EQ(window.cmdDoit.toolTip(), "Makes the map of ship.gif");
        EXPECT_EQ(window.picImage.toolTip(), "ship.gif");
        select(file);
        expectNothing(why);
    }
    select(small);
    pictures.files.erase(small);
    window.txtOutput.type("mine");
    EXPECT_EQ(scanned(), "mine");
    expectNothing(": \"ship.gif\" cannot be read");
    select(large);
    turn = [&] { pictures.files.clear(); };
    EXPECT_EQ(scanned(), largeMap);
    EXPECT_FALSE(window.cmdDoit.isEnabled()) << "there is no clean picture any more";
    EXPECT_EQ(desktop.log, "");
}

TEST_F(MapCreator, WithoutAPictureTheEmptyBoxIsScanned) {
    std::string size;
    turn = [&] {
        const Raster& box = window.picImage.picture();
        size = std::to_string(box.width()) + 'x' + std::to_string(box.height());
    };
    EXPECT_EQ(scanned(), "IMAGE: \r\n");
    EXPECT_EQ(size, "85x321");
    EXPECT_TRUE(window.picImage.picture().isEmpty() && window.cmdDoit.isEnabled());
}

TEST_F(MapCreator, ANewMapIsOfferedAtOnceAndAKnownOneAtTheNextStart) {
    folder.write("maps/readme", "");
    save("SIZE: 18\r\nDCP: (1,2)", "maps/ New .map");
    EXPECT_EQ(desktop.asked.initialFolder, folder.path() / "maps");
    EXPECT_EQ(desktop.asked.filter, "All Files (*.*)|*.*|SSD Maps(*.map)|*.map");
    EXPECT_EQ(desktop.asked.filterIndex, 2);
    EXPECT_EQ(desktop.asked.extension, ".map");
    EXPECT_EQ(folder.read("maps/ New .map"), "SIZE: 18\r\nDCP: (1,2)\r\n");
    EXPECT_TRUE(maps.all().empty()) << "it is looked for without the blanks";
    save("SIZE: 18\r\nDCP: (1,2)", "maps/New");
    ASSERT_EQ(maps.all().size(), 1U);
    EXPECT_EQ(maps.at("new")->iDCPNDX, 1);
    save("SIZE: 36\r\n", "maps/New.map");
    EXPECT_EQ(folder.read("maps/New.map"), "SIZE: 36\r\n\r\n");
    EXPECT_EQ(maps.at("New")->iMaxMass, 18);
}

TEST_F(MapCreator, SavingAddsTheExtensionAndFailsWithoutAMessage) {
    save("words", "a.MAP");
    EXPECT_EQ(folder.read("a.MAP.map"), "words\r\n");
    EXPECT_EQ(window.cmdSaveIt.toolTip(), "Saved as " + folder.path().string() + "/a.MAP.map");
    folder.write("maps/bad.map", "");
    save("SIZE: x", "maps/bad.map");
    EXPECT_EQ(folder.read("maps/bad.map"), "SIZE: x\r\n");
    EXPECT_TRUE(maps.all().empty()) << "one lies elsewhere, and one is no map";
    save("words", "nowhere/x.map");
    const std::string failed = window.cmdSaveIt.toolTip();
    EXPECT_TRUE(failed.starts_with("Not saved: \"" + folder.path().string() + "/nowhere/x.map\" "));
    for (const std::optional<std::string>& none : {std::optional<std::string>(""), {}}) {
        desktop.choice = none;
        window.cmdSaveIt.press();
        EXPECT_EQ(window.cmdSaveIt.toolTip(), failed);
    }
    EXPECT_EQ(desktop.log, "");
}

}  // namespace
