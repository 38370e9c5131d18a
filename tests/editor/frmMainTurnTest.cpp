// Acts that come in the middle of another one: in AutoMass's turns of the event loop, and behind
// message boxes.

#include "testWindow.h"

#include <gtest/gtest.h>

using namespace fleetwright;

namespace {

/// A window in whose next recalculation AutoMass gives a turn.
class Turns : public testing::Test {
protected:
    Turns() {
        window.show();
        window.mass.updwnMass_5.pressUp();
        test.selectNode("Gun");
        window.tree.mnuAddWeap[2].choose();
        window.mass.mnuAutoMass.choose();
    }

    TestWindow test;
    frmMain& window = test.window();
};

}  // namespace

TEST_F(Turns, ARefusalKeepsTheRowsOfActsInBetween) {
    test.selectNode("ALIEN");  // holds nothing, so that it counts as a system that is not there
    test.inTurn = [&] {
        test.inTurn = [&] {
            test.inTurn = [&] {
                test.selectNode("Ballast");
                window.tree.tvWeapons.doubleClick();
                test.selectNode("ALIEN");
            };
        };
    };
    window.tree.tvWeapons.doubleClick();
    EXPECT_EQ(test.list(), "Gun 3, Ballast 1");
    EXPECT_EQ(amountOf(test.ship(), "Ballast"), 1);
}

TEST_F(Turns, ASaveWaitsForAutoMass) {
    test.file = (test.folder().path() / "a.shp").string();
    test.inTurn = [&] { window.files.mnuSaveAs.choose(); };
    window.hull.optMerchant.choose();
    EXPECT_EQ(test.folder().read("a.shp"), test.ship().shipFile());
    EXPECT_TRUE(test.ship().g_bSaved);
    EXPECT_TRUE(window.files.mnuSave.isEnabled());
}

TEST_F(Turns, APrintWaitsForAutoMass) {
    test.copies = 1;
    test.takeLog();
    test.inTurn = [&] {
        window.files.mnuPrint.choose();
        EXPECT_EQ(test.takeLog(), "");
    };
    window.hull.optMerchant.choose();
    EXPECT_TRUE(test.takeLog().starts_with("font Courier New; "));
}

TEST_F(Turns, TheAmountDialogTakesOneAnswer) {
    window.aboard.lvCurrentWeapons.select(0);
    test.inTurn = [&] {
        window.aboard.frmSld->cmdOK.press();
        window.aboard.frmSld->cmdCancel.press();
        EXPECT_TRUE(window.aboard.frmSld->isLoaded()) << "it has not ended its work";
    };
    test.inDialog = [&](Form&) {
        window.aboard.frmSld->sliCount.slide(1);
        window.aboard.frmSld->cmdOK.press();
    };
    window.aboard.lvCurrentWeapons.pressMouse({.button = RightButton});
    EXPECT_EQ(test.list(), "Gun 1*");
    EXPECT_FALSE(window.aboard.frmSld->isLoaded());
}

TEST_F(Turns, TheGroupsAreThoseOfTheHull) {
    for (int turn = 0; turn < 8; ++turn) {
        window.hull.optWarship.choose();
        window.hull.optNormal.choose();
        window.hull.optThrust[4].choose();
        int turns = 0;
        test.inEachTurn = [&] {
            if (turns++ == turn) {
                window.hull.optWarship.choose();
            }
        };
        window.hull.optQstation.choose();
        test.inEachTurn = {};
        EXPECT_EQ(window.hull.fraThrust.isEnabled(), !isBase(test.ship().Hull())) << turn;
    }
}

TEST_F(Turns, ATickThatClosesTheWindowDoesNotOpenItAgain) {
    test.globals.g_bConfirmExit = false;
    test.selectNode("ALIEN");
    window.setState(WindowState::Minimized);
    window.hide();
    test.inMessage = [&] { window.files.mnuExit.choose(); };
    window.tmrRefreshScreen.tick();
    EXPECT_EQ(window.g_Ship, nullptr);
    EXPECT_FALSE(window.isLoaded());
}

TEST(FrmMainTurns, AnEndBehindTheBoxOfASaveOrOfANewShipWaitsForItAndComes) {
    for (const bool isSave : {true, false}) {
        TestWindow test;
        frmMain& window = test.window();
        window.show();
        test.file = (test.folder().path() / "a.shp").string();
        test.selectNode("ALIEN");
        test.inMessage = [&] { window.files.mnuExit.choose(); };
        (isSave ? window.files.mnuSaveAs : window.files.mnuNew).choose();
        EXPECT_EQ(window.g_Ship, nullptr);
        EXPECT_EQ(test.folder().read("a.shp").empty(), !isSave);
    }
}

TEST(FrmMainTurns, ALoadShowsTheShipWhateverWasOnTheScreen) {
    TestWindow test;
    frmMain& window = test.window();
    window.show();
    const std::string ship = test.folder().write("a.shp", "Ship Name: A\nMass: 60\n");
    const std::string base = test.folder().write("b.shp", "Type: Starbase\nThrust: 4\nMass: 60\n");
    std::string first;
    for (int time = 0; time < 2; ++time) {
        ASSERT_TRUE(window.files.loadFile(ship));
        EXPECT_EQ(window.mass.txtMass.text() + ' ' + window.names.txtShipName.text(), "60 A");
        EXPECT_EQ(window.figures.txtCost.text(), std::to_string(test.ship().g_lCost));
        EXPECT_TRUE(window.files.mnuSave.isEnabled() && test.ship().g_bSaved);
        first = time == 0 ? figures(test.ship()) : first;
        EXPECT_EQ(figures(test.ship()), first);
    }
    for (int time = 0; time < 2; ++time) {
        ASSERT_TRUE(window.files.loadFile(base));
        EXPECT_EQ(test.ship().THRUST(), 0);
        EXPECT_TRUE(test.ship().g_bSaved);
    }
}
