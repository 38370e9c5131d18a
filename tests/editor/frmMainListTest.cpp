#include "ShownWindow.h"

using namespace fleetwright;

using SystemList = ShownWindow;

TEST_F(SystemList, GrowsThroughTheTree) {
    window.tree.tvWeapons.doubleClick();
    test.selectNode("GUNS");
    window.tree.tvWeapons.doubleClick();
    window.tree.tvWeapons.pressMouse({.button = RightButton});
    EXPECT_EQ(test.list(), "");
    test.takeLog();
    test.selectNode("Gun");
    window.tree.tvWeapons.doubleClick();
    window.tree.tvWeapons.doubleClick();
    window.tree.tvWeapons.pressMouse({.button = LeftButton});
    EXPECT_EQ(test.takeLog(), "");
    window.tree.tvWeapons.pressMouse({.button = RightButton});
    EXPECT_EQ(test.takeLog(), "menu: mnuAddWeaps; ");
    window.tree.mnuAddWeap[9].choose();
    window.tree.mnuAddWeapEx[2].choose();
    EXPECT_EQ(test.list(), "Gun 112");
    EXPECT_EQ(amountOf(test.ship(), "Gun"), 112);
    EXPECT_EQ(window.tree.mnuAddWeap[0].caption() + window.tree.mnuAddWeapEx[0].caption(), "X1X20");
}

TEST_F(SystemList, ShrinksByDoubleClick) {
    test.selectNode("Gun");
    window.tree.mnuAddWeap[1].choose();
    test.selectNode("Ballast");
    window.tree.tvWeapons.doubleClick();
    window.aboard.lvCurrentWeapons.doubleClick();
    EXPECT_EQ(test.list(), "Gun 2, Ballast 1");
    window.aboard.lvCurrentWeapons.select(0);
    window.aboard.lvCurrentWeapons.doubleClick();
    EXPECT_EQ(test.list(), "Gun 1*, Ballast 1");
    window.aboard.lvCurrentWeapons.doubleClick();
    EXPECT_EQ(test.list(), "Ballast 1");
    EXPECT_EQ(amountOf(test.ship(), "Gun"), 0);
    window.aboard.lvCurrentWeapons.select(0);
    window.aboard.lvCurrentWeapons.doubleClick();
    EXPECT_EQ(test.list(), "");
    EXPECT_EQ(test.previews(), "1 0 |  ");
}

TEST_F(SystemList, AmountDialogTakesAnyNumberAway) {
    window.moveTo(1000, 2000);
    test.selectNode("Gun");
    window.tree.mnuAddWeapEx[0].choose();
    window.tree.mnuAddWeap[4].choose();
    test.takeLog();
    window.aboard.lvCurrentWeapons.pressMouse({.button = RightButton});
    EXPECT_EQ(test.takeLog(), "");
    window.aboard.lvCurrentWeapons.select(0);
    window.aboard.lvCurrentWeapons.pressMouse({.button = LeftButton});
    EXPECT_EQ(test.takeLog(), "");

    const auto open = [&](std::int32_t remaining, bool isTaken) {
        test.inDialog = [=](Form& form) {
            auto& dialog = dynamic_cast<frmAmountSlider&>(form);
            dialog.sliCount.slide(remaining);
            EXPECT_EQ(dialog.lblAmount.caption(), std::to_string(remaining));
            (isTaken ? dialog.cmdOK : dialog.cmdCancel).press();
            EXPECT_FALSE(dialog.isVisible());
        };
        window.aboard.lvCurrentWeapons.pressMouse({.button = RightButton, .x = 10.5, .y = 20.5});
    };
    open(24, false);
    EXPECT_EQ(test.takeLog(), "dialog: frmAmountSlider of frmMain; ");
    EXPECT_EQ(test.list(), "Gun 25*");
    const frmAmountSlider& dialog = *window.aboard.frmSld;
    EXPECT_EQ(dialog.left(), 3636);
    EXPECT_EQ(dialog.top(), 6010);
    EXPECT_EQ(dialog.sliCount.max(), 25);
    EXPECT_EQ(dialog.sliCount.tickFrequency(), 2);
    EXPECT_EQ(dialog.sliCount.largeChange(), 2);
    test.ship().g_bSaved = true;
    open(25, true);
    EXPECT_TRUE(test.ship().g_bSaved);
    open(3, true);
    EXPECT_EQ(test.list(), "Gun 3*");
    EXPECT_EQ(amountOf(test.ship(), "Gun"), 3);
    EXPECT_FALSE(test.ship().g_bSaved);
    open(0, true);
    EXPECT_EQ(test.list(), "");
    EXPECT_EQ(amountOf(test.ship(), "Gun"), 0);
    EXPECT_EQ(window.aboard.frmSld->sliCount.tickFrequency(), 1);
}

TEST_F(SystemList, RefusalsLeaveListAndShipInStep) {
    window.hull.optMerchant.choose();
    test.selectNode("Cloaking Field");
    window.tree.tvWeapons.doubleClick();
    const auto refuses = [&](const std::function<void()>& act) {
        window.sbStatus.setText("");
        act();
        EXPECT_EQ(window.sbStatus.text(),
                  "Cannot have cloak and other weapons on a merchant hull...");
        EXPECT_EQ(test.list().substr(0, 16), "Cloaking Field 1");
        EXPECT_EQ(amountOf(test.ship(), "Cloaking Field"), 1);
    };
    refuses([&] { window.tree.tvWeapons.doubleClick(); });
    test.selectNode("Gun");
    refuses([&] { window.tree.tvWeapons.doubleClick(); });
    window.aboard.lvCurrentWeapons.select(0);
    refuses([&] { window.aboard.lvCurrentWeapons.doubleClick(); });
    EXPECT_EQ(test.list(), "Cloaking Field 1*");

    // A category without systems is no system: one box, and no row.
    test.takeLog();
    test.selectNode("ALIEN");
    test.takeLog();
    window.tree.tvWeapons.doubleClick();
    EXPECT_EQ(test.list(), "Cloaking Field 1*");

    window.hull.optWarship.choose();
    test.selectNode("Giant");
    window.tree.tvWeapons.doubleClick();
    window.mass.updwnMass_5.pressUp();
    const std::string before = test.list();
    test.selectNode("Gun");
    for (int i = 0; i < 3; ++i) {
        window.tree.mnuAddWeapEx[2].choose();
    }
    EXPECT_EQ(test.list(), before + ", Gun 300");
}

TEST_F(SystemList, LoadedShipsFillItInTheOrderOfTheCatalogue) {
    test.selectNode("Ballast");
    window.tree.tvWeapons.doubleClick();
    EXPECT_TRUE(window.files.loadFile(test.folder().write(
        "a.shp",
        "Mass: 90\nSystem: Giant, 1\nSystem: Gun, 2\nSystem: Nothing, 1\nSystem: Gun, 1")));
    EXPECT_EQ(test.list(), "Gun 3, Giant 1");
    EXPECT_TRUE(test.ship().g_bSaved);
    EXPECT_FALSE(window.files.loadFile(test.folder().write("b.shp", "Mass: x")));
    EXPECT_EQ(test.list(), "");
    EXPECT_EQ(test.ship().mass(), 2);
}
