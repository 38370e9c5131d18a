#include "ShownWindow.h"

using namespace fleetwright;

using MainWindow = ShownWindow;

TEST(FrmMain, LoadsInOrderAndShowsASavedShip) {
    TestWindow test("CATEGORY,0,0,BEAM,Guns,O,guns.gif\n# comment\n\nGun,1,1,x,guns,F,gun,1.gif\n");
    EXPECT_FALSE(test.window().g_bLoaded);
    test.window().load();
    EXPECT_EQ(test.takeLog(), "Preparing to load weapons; picture: images/guns.gif; "
                              "Loading: Gun; paint; picture: images/gun,1.gif; Weapons Loaded; ");
    EXPECT_TRUE(test.window().g_bLoaded);
    EXPECT_FALSE(test.window().isVisible());
    EXPECT_EQ(test.ship().g_sDesignerName, "Somebody");
    EXPECT_TRUE(test.ship().g_bSaved);
    EXPECT_EQ(test.window().mass.txtMass.text() + test.window().figures.txtCost.text() +
                  test.window().mass.lblMassLeft.caption() + test.window().figures.txtClass.text() +
                  test.window().names.txtDesigner.text(),
              "271EscortSomebody");
    std::string nodes;
    for (const TreeView::Node& node : test.window().tree.tvWeapons.nodes()) {
        nodes += node.key + (node.parent == nullptr ? "" : '<' + node.parent->key) + ' ';
    }
    EXPECT_EQ(nodes, "BEAM DEFENSE HEAVY SYSTEMS HANGAR SPECIAL ALIEN GUNS<BEAM Gun<GUNS ");
    EXPECT_EQ(test.window().aboard.lvCurrentWeapons.columns()[0].width, 2055);
    EXPECT_EQ(test.window().aboard.lvCurrentWeapons.columns()[1].width, 1370);
}

TEST(FrmMain, FindsPicturesWhateverTheCaseOfTheirNames) {
    TestWindow test("Gun,1,1,x,BEAM,F,GUN.gif\nScreen,1,1,x,BEAM,F,Screen.gif\n");
    test.folder().write("images/Gun.GIF", "");
    test.window().load();
    EXPECT_EQ(test.takeLog(),
              "Preparing to load weapons; Loading: Gun; paint; picture: images/Gun.GIF; "
              "Loading: Screen; paint; picture: images/Screen.gif; Weapons Loaded; ");
}

TEST(FrmMain, WithoutACatalogueSaysSoAndEnds) {
    TestWindow test;
    std::filesystem::remove(test.folder().path() / "weaps.dat");
    EXPECT_THROW(test.window().load(), EndOfProgram);
    EXPECT_EQ(test.takeLog(), "box: Error Creating Ship Object; ");
    EXPECT_FALSE(test.window().g_bLoaded);
}

TEST_F(MainWindow, StatusOutlivesOneTickAndNotTwo) {
    window.sbStatus.setText("message");
    window.tmrRefreshScreen.tick();
    EXPECT_EQ(window.sbStatus.text(), "message");
    window.sbStatus.setText("message");
    window.tmrRefreshScreen.tick();
    EXPECT_EQ(window.sbStatus.text(), "");
    window.sbStatus.setText("other");
    window.tmrRefreshScreen.tick();
    EXPECT_EQ(window.sbStatus.text(), "other");
}

TEST_F(MainWindow, ATickBehindABoxInALoadIsAnActOfItsOwn) {
    test.inTurn = [&] {
        window.tmrRefreshScreen.tick();
        EXPECT_EQ(window.sbStatus.text(), "Number too large");
    };
    EXPECT_FALSE(window.files.loadFile(
        test.folder().write("big.shp", "Mass: 2000000000\nSystem: Nothing, 1\n")));
    for (int tick = 0; tick < 2; ++tick) {
        window.tmrRefreshScreen.tick();
    }
    EXPECT_EQ(window.sbStatus.text() + window.mass.txtMass.text(), "2");
}

TEST_F(MainWindow, TickShowsWhatWasWrittenWithoutARecalculation) {
    test.ship().g_sShipName = "Renamed";
    window.tmrRefreshScreen.tick();
    EXPECT_EQ(window.names.txtShipName.text(), "Renamed");
    window.figures.txtCost.type("9999");
    window.tmrRefreshScreen.tick();
    EXPECT_EQ(window.figures.txtCost.text(), "7");
    EXPECT_TRUE(test.ship().g_bSaved);
}

TEST_F(MainWindow, PreviewsEndSilentlyWhereNothingIsSelected) {
    window.hull.optThrust[4].choose();
    EXPECT_EQ(test.previews(), "  |  ");
    test.selectNode("Screen");
    window.tree.tvWeapons.click();
    EXPECT_EQ(test.previews(), "1 6 |  ");
    window.tree.tvWeapons.doubleClick();
    EXPECT_EQ(test.previews(), "1 6 |  ");
    window.aboard.lvCurrentWeapons.select(0);
    window.aboard.lvCurrentWeapons.click();
    EXPECT_EQ(test.previews(), "1 6 | 1 6");
    window.tree.tvWeapons.doubleClick();
    window.mass.updwnMass_5.pressUp();
    EXPECT_EQ(test.previews(), "6 156 | 12 312");
    test.selectNode("DEFENSE");
    window.tree.tvWeapons.click();
    EXPECT_EQ(test.previews(), "6 156 | 12 312");
    window.tmrRefreshScreen.tick();
    EXPECT_EQ(test.previews(), "  | 12 312");
    window.tree.cmdCollapseAll.press();
    // A category without systems counts as one, and no ship knows it.
    test.takeLog();
    test.selectNode("ALIEN");
    window.tree.tvWeapons.click();
    EXPECT_EQ(test.takeLog(), "box: Couldn 't find the weapon; box: Couldn 't find the weapon; ");
    EXPECT_EQ(test.previews(), "0 0 | 12 312");
}

TEST_F(MainWindow, PointingAtAFigureOrASystemExplainsIt) {
    EXPECT_EQ(window.figures.txtCost.toolTip(), "       4  Warship hull of mass 2\n"
                                                "       2  FTL drive: Normal\n"
                                                "       1  Thrust 2\n"
                                                "       7  = Cost");
    test.selectNode("Gun");
    window.tree.mnuAddWeap[1].choose();
    EXPECT_EQ(window.mass.lblMassLeft.toolTip(),
              "       1  Free mass of the Warship hull of mass 2\n"
              "      -4  2 x Gun\n"
              "      -3  = Mass left");
    EXPECT_EQ(window.figures.txtDP.toolTip(), "       1  Warship hull of mass 2\n"
                                              "       1  = Damage points");
    const std::string gun = window.tree.tvWeapons.nodeToolTip(*window.tree.tvWeapons.find("Gun"));
    EXPECT_EQ(gun.substr(0, gun.find("\n\n")),
              "1 x Gun\nMass: 2 = 2 * amount\nCost: 6 = 6 * amount\nArcs: FPS");
    const std::string row =
        window.aboard.lvCurrentWeapons.rowToolTip(window.aboard.lvCurrentWeapons.rows()[0]);
    EXPECT_EQ(row.substr(0, row.find("\n\n")),
              "2 x Gun\nMass: 4 = 2 * amount\nCost: 12 = 6 * amount\nArcs: FPS");
    EXPECT_EQ(window.tree.tvWeapons.nodeToolTip(*window.tree.tvWeapons.find("BEAM")), "");
    // Pointing at a category without systems is no act, and says nothing of unknown weapons.
    test.takeLog();
    EXPECT_EQ(window.tree.tvWeapons.nodeToolTip(*window.tree.tvWeapons.find("ALIEN")), "");
    EXPECT_EQ(test.takeLog(), "");
}

TEST_F(MainWindow, CategoryButtonsOpenOneAndCloseTheRest) {
    const auto open = [&] {
        std::string text;
        for (const TreeView::Node& node : window.tree.tvWeapons.nodes()) {
            text += node.isExpanded ? node.key + ' ' : "";
        }
        return text;
    };
    window.tree.cmdBeams.press();
    EXPECT_EQ(open(), "BEAM ");
    window.tree.cmdSystems.press();
    EXPECT_EQ(open(), "SYSTEMS ");
    window.tree.cmdSystems.press();
    EXPECT_EQ(open(), "");
    window.tree.cmdExpandAll.press();
    window.tree.cmdBeams.press();
    EXPECT_EQ(open(), "");
    const std::pair<Button*, const char*> buttons[] = {
        {&window.tree.cmdDefense, "DEFENSE "}, {&window.tree.cmdHeavy, "HEAVY "},
        {&window.tree.cmdHangars, "HANGAR "},  {&window.tree.cmdSpecial, "SPECIAL "},
        {&window.tree.cmdAlien, "ALIEN "},
    };
    for (const auto& [button, expected] : buttons) {
        button->press();
        EXPECT_EQ(open(), expected);
    }
}

TEST(FrmMain, ClosingAsksOnlyForAnUnsavedShipAndWhenItShould) {
    for (const bool confirms : {false, true}) {
        for (const bool isSaved : {false, true}) {
            for (const Answer answer : {Answer::Yes, Answer::No}) {
                TestWindow test;
                test.window().show();
                test.globals.g_bConfirmExit = confirms;
                test.ship().g_bSaved = isSaved;
                test.answer = answer;
                test.takeLog();
                const bool asks = confirms && !isSaved;
                const bool closes = !asks || answer == Answer::Yes;
                EXPECT_EQ(test.window().unload(), closes);
                EXPECT_EQ(test.takeLog(),
                          std::string(asks ? "box: Ship not saved, continue with exit? / Ship not "
                                             "saved! yes-no info; "
                                           : "") +
                              (closes ? "free library; unload all; " : ""));
                EXPECT_EQ(test.window().g_Ship == nullptr, closes);
                EXPECT_EQ(test.window().state() == WindowState::Minimized, closes);
            }
        }
    }
}
