#include "frmSSDMapCreator.h"

#include "SSDMap.h"
#include "SSDMaps.h"
#include "TemporaryFolder.h"
#include "fakeServices.h"
#include "mapMarks.h"
#include "outlines.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

using namespace fleetwright;

namespace {

const std::string large = "C:\\outlines\\large.gif", small = "ship.gif";
const std::string largeMap = "IMAGE: large.gif\r\nFIRECON: (10,0)\r\nDCP: (10,399)\r\n",
                  smallMap = "IMAGE: ship.gif\r\nFTL: (0,0)\r\n", cancelled = "Operation Cancelled";

using Places = std::vector<Place>;

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
        turns = 0;
        window.cmdDoit.press();
        EXPECT_FALSE(window.isTopmost() || window.chkCancel.isTicked());
        return window.txtOutput.text();
    }
    /// How often the event loop gets its turn in a scan, if a look at the clock and a turn take so
    /// many milliseconds.
    int turnsWith(int look, int turnLength) {
        clock.step = look;
        turn = [this, turnLength](int) { clock.now += turnLength; };
        scanned();
        return turns;
    }
    void save(const std::string& text, const std::string& file) {
        window.txtOutput.type(text);
        desktop.choice = file.empty() ? file : (folder.path() / file).string();
        window.cmdSaveIt.press();
    }
    /// Places of the picture, of the text and of the window.
    Places layout() const {
        return {window.picImage.place(), window.txtOutput.place(), window.Control::place()};
    }
    /// What is said of the picture that is selected, if any is.
    std::string selection() const {
        return (window.cmdDoit.isEnabled() ? "can scan: " : "") + window.picImage.toolTip() +
               " / " + window.cmdDoit.toolTip();
    }
    std::ptrdiff_t blackPixels() const {
        const Raster& picture = window.picImage.picture();
        const std::uint32_t* const first = picture.row(0).data();
        return std::count(first, first + picture.width() * picture.height(), Black);
    }

    TemporaryFolder folder;
    ChoosingDesktop desktop;
    PicturesByName pictures;
    SteppingClock clock;
    SSDMaps maps;
    std::function<void(int)> turn = [](int) {};  ///< the event loop's, which are counted
    int turns = 0;
    frmSSDMapCreator window{
        {folder.path(), desktop, pictures, clock, [this] { turn(++turns); }, maps}};
};

TEST_F(MapCreator, ScansWhatIsSelectedAndTakesItsSize) {
    const Places atFirst = {{105, 645, 1275, 4815}, {1480, 645, 4200, 4815}, {0, 0, 5790, 5565}};
    EXPECT_EQ(layout(), atFirst);
    select(large);
    EXPECT_EQ(desktop.asked.initialFolder, folder.path() / "shipimages");
    EXPECT_EQ(layout(),
              Places({{105, 645, 15000, 6000}, {15205, 645, 4200, 6000}, {0, 0, 19680, 6740}}));
    window.txtOutput.type("old");
    EXPECT_EQ(scanned(), largeMap);
    select(small);
    window.chkCancel.press();  // without a scan it cancels nothing
    EXPECT_EQ(scanned(), smallMap);
    const Place& last = window.cmdSaveIt.place();
    EXPECT_LT(last.left + last.width, window.Control::place().width) << "no button is cut off";
    window.chkCancel.press();
    window.unload();
    window.show();
    EXPECT_EQ(layout(), atFirst);
    EXPECT_EQ(window.txtOutput.text(), "");
    EXPECT_EQ(selection(), "can scan: No picture is selected yet / No picture is selected yet");
    EXPECT_TRUE(window.picImage.picture().isEmpty() && !window.chkCancel.isTicked());
}

TEST_F(MapCreator, WithoutAPictureTheEmptyBoxIsScanned) {
    Raster seen;
    turn = [&](int) { seen = window.picImage.picture(); };
    EXPECT_EQ(scanned(), "IMAGE: \r\n");
    EXPECT_EQ(seen.width(), 85);
    EXPECT_EQ(seen.height(), 321);
    EXPECT_TRUE(window.picImage.picture().isEmpty() && window.cmdDoit.isEnabled());
}

TEST_F(MapCreator, DuringAScanOnlyCancelAnswers) {
    select(large);
    clock.step = 20;
    std::ptrdiff_t seen = -1;
    turn = [&](int number) {
        EXPECT_TRUE(window.isTopmost() && window.chkCancel.takesActs());
        EXPECT_FALSE(window.cmdDoit.takesActs() || window.cmdSelect.takesActs() ||
                     window.cmdSaveIt.takesActs() || window.txtOutput.takesActs());
        EXPECT_GT(blackPixels(), std::exchange(seen, blackPixels()));
        if (number == 3) {
            EXPECT_EQ(window.txtOutput.text(), "IMAGE: large.gif\r\nFIRECON: (10,0)\r\n");
            window.chkCancel.press();
        }
    };
    EXPECT_EQ(scanned(), cancelled);
    EXPECT_EQ(turns, 3);
    EXPECT_EQ(blackPixels(), 0);
    turn = [](int) {};
    EXPECT_EQ(scanned(), largeMap);
}

TEST_F(MapCreator, ClosingDuringAScanCancelsFirst) {
    select(large);
    clock.step = 20;
    turn = [&](int) { EXPECT_FALSE(window.unload()); };
    EXPECT_EQ(scanned(), cancelled);
    EXPECT_EQ(turns, 1);
    EXPECT_FALSE(window.isLoaded() || window.isVisible());
    window.show();
    turn = [](int) {};
    select(small);
    EXPECT_EQ(scanned(), smallMap);
    EXPECT_TRUE(window.isLoaded());
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

TEST_F(MapCreator, WhatCannotBeLoadedSelectsNothingAndSaysSoWithoutAMessage) {
    const auto expectNothing = [this](const std::string& why) {
        EXPECT_EQ(selection(), "No picture is selected" + why + " / No picture is selected" + why);
        EXPECT_EQ(window.picImage.picture().width(), 2) << "the picture on show stays";
    };
    const std::pair<std::optional<std::string>, const char*> cases[] = {
        {"none.gif", ": \"none.gif\" cannot be read"},
        {"wide.gif", ": \"wide.gif\" is too large for a map"},
        {"", ""},
        {std::nullopt, ""}};
    for (const auto& [file, why] : cases) {
        select(small);
        EXPECT_EQ(selection(), "can scan: ship.gif / Makes the map of ship.gif");
        select(file);
        expectNothing(why);
    }
    select(small);
    pictures.files.erase(small);
    window.txtOutput.type("mine");
    EXPECT_EQ(scanned(), "mine");
    expectNothing(": \"ship.gif\" cannot be read");
    select(large);
    turn = [&](int) { pictures.files.clear(); };
    EXPECT_EQ(scanned(), largeMap);
    EXPECT_FALSE(window.cmdDoit.isEnabled()) << "there is no clean picture any more";
    EXPECT_EQ(desktop.log, "");
}

TEST_F(MapCreator, ANewMapIsOfferedAtOnceAndAKnownOneAtTheNextStart) {
    folder.write("maps/bad.map", "");
    save("SIZE: x", "maps/bad.map");
    EXPECT_EQ(folder.read("maps/bad.map"), "SIZE: x\r\n");
    save("SIZE: 18", "a.MAP");
    EXPECT_EQ(folder.read("a.MAP.map"), "SIZE: 18\r\n");
    save("SIZE: 18", "maps/ New .map");
    EXPECT_EQ(folder.read("maps/ New .map"), "SIZE: 18\r\n");
    EXPECT_TRUE(maps.all().empty()) << "a fault, another folder, another name without the blanks";
    EXPECT_EQ(desktop.asked.initialFolder, folder.path() / "maps");
    EXPECT_EQ(desktop.asked.filterIndex, 2);
    EXPECT_EQ(desktop.asked.extension, ".map");
    save("SIZE: 18\r\nDCP: (1,2)", "maps/New");
    const std::string saved = window.cmdSaveIt.toolTip();
    EXPECT_EQ(saved, "Saved as " + folder.path().string() + "/maps/New.map");
    save("SIZE: 36\r\n", "");
    EXPECT_EQ(window.cmdSaveIt.toolTip(), saved);
    save("SIZE: 36\r\n", "maps/New.map");
    EXPECT_EQ(folder.read("maps/New.map"), "SIZE: 36\r\n\r\n");
    ASSERT_EQ(maps.all().size(), 1U);
    EXPECT_EQ(maps.at("new")->iMaxMass, 18);
    save("SIZE: 36\r\n", "nowhere/x.map");
    EXPECT_TRUE(window.cmdSaveIt.toolTip().starts_with("Not saved: \"" + folder.path().string() +
                                                       "/nowhere/x.map\" "));
}

}  // namespace
