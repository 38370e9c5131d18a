#include "ShownWindow.h"

using namespace fleetwright;

using DesignPanel = ShownWindow;

namespace {

/// "hull mass thrust ftl armor streamline" of the ship.
std::string design(const ShipClass& ship) {
    return std::to_string(ship.Hull()) + ' ' + std::to_string(ship.mass()) + ' ' +
           std::to_string(ship.THRUST()) + ' ' + std::to_string(ship.FTL()) + ' ' +
           std::to_string(ship.Armor()) + ' ' + std::to_string(ship.Streamline());
}

/// Which of the three groups that a base does not have are open.
std::string openGroups(const frmMain& window) {
    return std::string(window.hull.fraStreamling.isEnabled() ? "S" : "-") +
           (window.hull.fraFTL.isEnabled() ? "F" : "-") +
           (window.hull.fraThrust.isEnabled() ? "T" : "-") +
           (window.hull.optThrust[8].isEnabled() && window.hull.optTug.isEnabled() &&
                    window.hull.optFullStreamling.isEnabled()
                ? "+"
                : "-") +
           (window.hull.fraArmor.isEnabled() ? "A" : "-");
}

}  // namespace

TEST_F(DesignPanel, EachButtonWritesItsValue) {
    const std::vector<std::pair<OptionButton*, const char*>> buttons = {
        {&window.hull.optMerchant, "2 2 2 1 0 0"},
        {&window.hull.optQship, "3 2 2 1 0 0"},
        {&window.hull.optWarship, "1 2 2 1 0 0"},
        {&window.hull.optPartStreamline, "1 2 2 1 0 1"},
        {&window.hull.optFullStreamling, "1 2 2 1 0 2"},
        {&window.hull.optNoStreamline, "1 2 2 1 0 0"},
        {&window.hull.optNoArmor[2], "1 2 2 1 2 0"},
        {&window.hull.optNoArmor[1], "1 2 2 1 1 0"},
        {&window.hull.optNone, "1 2 2 0 1 0"},
        {&window.hull.optTug, "1 2 2 3 1 0"},
        {&window.hull.optNormal, "1 2 2 1 1 0"},
        {&window.hull.optThrust[0], "1 2 0 1 1 0"},
        {&window.hull.optThrust[8], "1 2 8 1 1 0"},
    };
    for (const auto& [button, expected] : buttons) {
        button->choose();
        EXPECT_EQ(design(test.ship()), expected);
        test.ship().g_bSaved = true;
        button->choose();
        EXPECT_TRUE(test.ship().g_bSaved);
    }
    EXPECT_EQ(window.figures.txtCost.text(), std::to_string(test.ship().g_lCost));
}

TEST_F(DesignPanel, BasesLoseWhatMovesAndShipsStayWithoutIt) {
    window.hull.optTug.choose();
    window.hull.optThrust[4].choose();
    window.hull.optFullStreamling.choose();
    window.hull.optNoArmor[2].choose();
    const std::vector<std::pair<OptionButton*, const char*>> bases = {
        {&window.hull.optStarBase, "4 2 0 0 2 0"},
        {&window.hull.optQstation, "6 2 0 0 2 0"},
        {&window.hull.optSpaceStation, "5 2 0 0 2 0"},
    };
    for (const auto& [button, expected] : bases) {
        button->choose();
        EXPECT_EQ(design(test.ship()), expected);
        EXPECT_TRUE(button->isOn());
        EXPECT_EQ(openGroups(window), "----A");
        window.hull.optThrust[3].choose();
        EXPECT_EQ(design(test.ship()), expected);
    }
    window.hull.optWarship.choose();
    EXPECT_EQ(design(test.ship()), "1 2 0 0 2 0");
    EXPECT_EQ(openGroups(window), "SFT+A");
}

TEST_F(DesignPanel, SpinnersStepTheTextAndStopAtTwo) {
    window.mass.updwnMass_5.pressDown();
    EXPECT_EQ(test.ship().mass(), 2);
    window.mass.updwnMass_1.pressUp();
    window.mass.updwnMass_10.pressUp();
    window.mass.updwnMass_5.pressUp();
    EXPECT_EQ(window.mass.txtMass.text(), "64");
    window.mass.updwnMass_5.pressDown();
    window.mass.updwnMass_10.pressDown();
    EXPECT_EQ(test.ship().mass(), 4);
    window.mass.updwnMass_10.pressDown();
    EXPECT_EQ(window.mass.txtMass.text() + design(test.ship()), "21 2 2 1 0 0");
    // The box is locked: a mass is never typed.
    window.mass.txtMass.type("50");
    EXPECT_EQ(test.ship().mass(), 2);
}

TEST_F(DesignPanel, AutoMassHidesTheSpinnersAndSettles) {
    window.mass.updwnMass_5.pressUp();
    window.hull.optNone.choose();
    window.mass.mnuAutoMass.choose();
    EXPECT_TRUE(window.mass.mnuAutoMass.isChecked() && test.ship().g_bAutoMass);
    EXPECT_FALSE(window.mass.fraMassSpinner.isVisible());
    EXPECT_EQ(window.mass.txtMass.text() + ' ' + design(test.ship()), "0 1 0 2 0 0 0");
    window.hull.optNormal.choose();
    EXPECT_EQ(window.mass.txtMass.text() + ' ' + design(test.ship()), "0 1 0 2 1 0 0");
    window.mass.mnuAutoMass.choose();
    EXPECT_FALSE(test.ship().g_bAutoMass);
    EXPECT_TRUE(window.mass.fraMassSpinner.isVisible());

    window.mass.updwnMass_5.pressUp();
    test.selectNode("Sponge");
    window.tree.tvWeapons.doubleClick();
    window.mass.mnuAutoMass.choose();
    EXPECT_EQ(window.sbStatus.text(), "AutoMass found no fitting mass");
    EXPECT_EQ(window.mass.txtMass.text() + ' ' + design(test.ship()), "52 1 52 2 1 0 0");
    EXPECT_EQ(test.list(), "Sponge 1");
    EXPECT_TRUE(test.ship().g_bAutoMass);
}

TEST_F(DesignPanel, AfterALoadTheMarkStaysAndTheShipsFlagIsOff) {
    window.mass.mnuAutoMass.choose();
    EXPECT_TRUE(window.files.loadFile(test.folder().write("a.shp", "Mass: 40\nType: Starbase\n")));
    EXPECT_TRUE(window.mass.mnuAutoMass.isChecked());
    EXPECT_FALSE(test.ship().g_bAutoMass);
    EXPECT_TRUE(test.ship().g_bSaved);
    EXPECT_EQ(openGroups(window), "----A");
    window.mass.mnuAutoMass.choose();
    EXPECT_FALSE(window.mass.mnuAutoMass.isChecked() || test.ship().g_bAutoMass);
    window.mass.mnuAutoMass.choose();
    EXPECT_TRUE(test.ship().g_bAutoMass);
}

TEST_F(DesignPanel, ReplacingAndClosingWaitForAutoMass) {
    window.mass.updwnMass_5.pressUp();
    window.mass.mnuAutoMass.choose();
    test.file = test.folder().write("a.shp", "Ship Name: Other\nMass: 30\n");
    test.inTurn = [&] { window.files.mnuLoad.choose(); };
    window.hull.optStarBase.choose();
    EXPECT_EQ(test.ship().g_sShipName, "Other");
    window.tmrRefreshScreen.tick();
    EXPECT_EQ(window.mass.txtMass.text() + ' ' + design(test.ship()), "30 1 30 2 1 0 0");

    TestWindow closing;
    closing.globals.g_bConfirmExit = false;
    closing.window().show();
    closing.window().mass.mnuAutoMass.choose();
    closing.answer = Answer::Yes;
    closing.inTurn = [&] {
        closing.window().files.mnuNew.choose();
        EXPECT_FALSE(closing.window().unload());
        closing.window().files.mnuNew.choose();
    };
    closing.window().hull.optStarBase.choose();
    EXPECT_EQ(closing.window().g_Ship, nullptr);
    EXPECT_TRUE(closing.takeLog().ends_with("free library; unload all; "));
    // What still comes in from the closing window does nothing.
    closing.window().mass.txtMass.loseFocus();
    EXPECT_TRUE(closing.window().unload());
}

TEST_F(DesignPanel, AnActInATurnOfAutoMassIsUndoneByItself) {
    ASSERT_TRUE(window.files.loadFile(
        test.folder().write("big.shp", "Mass: 100000000\nThrust: 0\nFTL: None\n")));
    window.tmrRefreshScreen.tick();
    test.selectNode("Giant");
    std::string status;
    test.inTurn = [&] {
        window.tree.tvWeapons.doubleClick();
        status = window.sbStatus.text();
    };
    window.mass.mnuAutoMass.choose();
    EXPECT_EQ(status, "Number too large");
    EXPECT_EQ(test.list(), "");
    EXPECT_EQ(design(test.ship()), "1 0 0 0 0 0");
}

TEST_F(DesignPanel, AnActThatOverflowsTakesTheMarkOfAutoMassBack) {
    test.folder().write("weaps.dat", "Gun,1,1,BEAM,BEAM,F,gun.gif\n");
    window.files.mnuNew.choose();
    test.selectNode("Giant");
    test.inMessage = [&] {
        window.mass.mnuAutoMass.choose();
        EXPECT_TRUE(test.ship().g_bAutoMass);
        throw OverflowError();
    };
    window.tree.tvWeapons.doubleClick();
    EXPECT_FALSE(test.ship().g_bAutoMass);
    EXPECT_FALSE(window.mass.mnuAutoMass.isChecked());
    EXPECT_TRUE(window.mass.fraMassSpinner.isVisible());
    EXPECT_EQ(window.sbStatus.text(), "Number too large");
}

TEST_F(DesignPanel, AnActThatOverflowsIsUndoneAsAWhole) {
    EXPECT_TRUE(window.files.loadFile(test.folder().write(
        "big.shp", "Type: Merchant\nMass: 1100000000\nThrust: 0\nFTL: None\n")));
    window.tmrRefreshScreen.tick();
    window.hull.optPartStreamline.choose();
    const std::string before = "2 1100000000 0 0 0 0";
    EXPECT_EQ(design(test.ship()), before);
    EXPECT_EQ(window.sbStatus.text(), "Number too large");
    EXPECT_TRUE(window.hull.optNoStreamline.isOn());
    window.hull.optStarBase.choose();
    EXPECT_EQ(design(test.ship()), before);
    EXPECT_TRUE(window.hull.optMerchant.isOn());
    EXPECT_EQ(openGroups(window), "SFT+A");
    EXPECT_EQ(window.mass.txtMass.text(), "1100000000");
}
