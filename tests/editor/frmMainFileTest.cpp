#include "ShownWindow.h"

using namespace fleetwright;

namespace {

namespace fs = std::filesystem;

/// A window with a ship file in its folder of ships.
class Files : public ShownWindow {
protected:
    Files() {
        fs::create_directory(test.folder().path() / "ships");
        ship = test.folder().write("ships/Wasp.shp",
                                   "Ship Name: Wasp\nMass: 20\nType: Merchant\nSystem: Gun, 2\n");
        test.takeLog();
    }

    /// "caption caption" of the entries of recent files that show; "|" for the separator.
    std::string recent() {
        std::string text = window.files.mnuMRUSep.isVisible() ? "|" : "";
        for (const MenuEntry& entry : window.files.mnuMRUFile) {
            text += entry.isVisible() ? ' ' + entry.caption() : "";
        }
        return text;
    }

    /// Names of the designs put aside.
    std::string aside() {
        std::string text;
        for (const auto& design : RecoveryFolder::list(test.folder().path() / "recovered")) {
            text += design.file.filename().string() + ' ';
        }
        return text;
    }

    void change() {
        window.hull.optThrust[test.ship().THRUST() == 4 ? 5 : 4].choose();
        ASSERT_FALSE(test.ship().g_bSaved);
    }

    std::string ship;
};

TEST_F(Files, NewAsksForAnUnsavedShipAndLeavesASavedOne) {
    change();
    window.mass.mnuAutoMass.choose();
    test.takeLog();
    window.files.mnuNew.choose();
    EXPECT_EQ(test.takeLog(), "box: Ship not saved, delete? / Ship not saved! yes-no info; ");
    EXPECT_EQ(test.ship().THRUST(), 4) << "answered with No";
    EXPECT_TRUE(window.mass.mnuAutoMass.isChecked());

    test.answer = Answer::Yes;
    window.files.mnuNew.choose();
    EXPECT_EQ(test.ship().THRUST(), 2);
    EXPECT_TRUE(test.ship().g_bSaved) << "whatever the buttons have clicked";
    EXPECT_EQ(test.ship().g_sDesignerName, "Nils's Iron Vector Creator");
    EXPECT_FALSE(window.mass.mnuAutoMass.isChecked());
    EXPECT_TRUE(window.mass.fraMassSpinner.isVisible());
    EXPECT_FALSE(window.files.mnuSave.isEnabled());
    test.takeLog();
    window.files.mnuNew.choose();
    EXPECT_EQ(test.takeLog(), "") << "a saved ship goes without a question";
}

TEST_F(Files, LoadAsksNothingAndFillsTheList) {
    change();
    window.mass.mnuAutoMass.choose();
    window.files.mnuLoad.choose();
    EXPECT_EQ(test.ship().THRUST(), 4) << "cancelled";

    test.file = ship;
    test.takeLog();
    window.files.mnuLoad.choose();
    EXPECT_EQ(test.takeLog(), "");
    EXPECT_EQ(test.list(), "Gun 2");
    EXPECT_TRUE(window.hull.optMerchant.isOn());
    EXPECT_TRUE(test.ship().g_bSaved);
    EXPECT_EQ(recent(), "| Wasp");
    EXPECT_TRUE(window.mass.mnuAutoMass.isChecked()) << "the entry stays, the new ship has none";
    EXPECT_FALSE(test.ship().g_bAutoMass);
    EXPECT_FALSE(window.mass.fraMassSpinner.isVisible());
    window.tmrRefreshScreen.tick();
    EXPECT_TRUE(window.files.mnuSave.isEnabled());

    const std::string half = "Type: Merchant\nThrust: 4\nSystem: Gun, 1\nMass: many\n";
    for (const std::string& file :
         {std::string("missing.shp"), test.folder().write("half.shp", half)}) {
        test.file = file;
        window.files.mnuLoad.choose();
        EXPECT_EQ(test.takeLog(), "");
        EXPECT_EQ(test.list(), "");
        EXPECT_TRUE(window.hull.optWarship.isOn()) << "the new ship is seen at once";
        EXPECT_TRUE(test.ship().g_bSaved) << file;
        EXPECT_FALSE(window.files.mnuSave.isEnabled());
        EXPECT_EQ(test.ship().g_sSaveName, "");
        EXPECT_EQ(recent(), "| Wasp");
    }
}

TEST_F(Files, ACatalogueThatCannotBeUsedLeavesTheShipAtHand) {
    window.CMRUList->addFile("Wasp");
    window.fillMRU();
    change();
    test.file = ship;
    test.answer = Answer::Yes;
    fs::remove(test.folder().path() / "weaps.dat");
    for (const std::string fault : {"weaps.dat: cannot be read", "weaps.dat:3: double key"}) {
        for (MenuEntry* const entry :
             {&window.files.mnuLoad, &window.files.mnuNew, &window.files.mnuMRUFile[0]}) {
            test.takeLog();
            entry->choose();
            EXPECT_TRUE(test.takeLog().find(fault) != std::string::npos) << fault;
            EXPECT_EQ(test.ship().THRUST(), 4);
        }
        test.folder().write("weaps.dat", windowCatalogue);
        test.catalogueFaults = "weaps.dat:3: double key\n";
    }
}

TEST_F(Files, AnotherCatalogueIsThatOfTheNextShip) {
    test.folder().write("weaps.dat",
                        "Gun,1,1,BEAM,guns,F,gun.gif\nRaft,1,9,x,SYSTEMS,O,raft.gif\n");
    test.file = test.folder().write("raft.shp", "Mass: 20\nSystem: Raft, 2\nSystem: Ballast, 1\n");
    test.selectNode("Ballast");
    window.tree.tvWeapons.doubleClick();
    EXPECT_EQ(test.list(), "Ballast 1") << "this ship keeps its own";
    test.selectNode("SYSTEMS");
    test.takeLog();
    window.files.mnuLoad.choose();
    EXPECT_EQ(test.takeLog(), "box: Couldn 't find the weapon; ");
    test.selectNode("Ballast");
    test.inMessage = [&] { window.tmrRefreshScreen.tick(); };
    window.tree.tvWeapons.doubleClick();
    EXPECT_EQ(test.list(), "Raft 2");
    EXPECT_EQ(amountOf(test.ship(), "Raft"), 2);
}

TEST_F(Files, SavingNamesTheShipAndTheRecentFile) {
    change();
    window.files.mnuSaveAs.choose();
    EXPECT_EQ(window.sbStatus.text(), "") << "cancelled";
    test.file = (test.folder().path() / "Hornet").string();
    window.files.mnuSaveAs.choose();
    EXPECT_TRUE(fs::exists(*test.file + ".shp"));
    EXPECT_EQ(window.sbStatus.text(), "Saved...");
    EXPECT_TRUE(test.ship().g_bSaved);
    EXPECT_TRUE(window.files.mnuSave.isEnabled());
    EXPECT_EQ(recent(), "| Hornet");

    change();
    test.file.reset();
    window.files.mnuSave.choose();
    EXPECT_TRUE(test.ship().g_bSaved);

    change();
    test.file = (test.folder().path() / "none" / "Hornet").string();
    window.files.mnuSaveAs.choose();
    EXPECT_EQ(window.sbStatus.text(), "Saving...");
    EXPECT_FALSE(test.ship().g_bSaved);
    EXPECT_EQ(recent(), "| Hornet");
}

TEST_F(Files, ARecentFileIsLookedForAmongTheShips) {
    test.file = ship;
    window.files.mnuLoad.choose();
    test.file = (test.folder().path() / "Elsewhere").string();
    window.files.mnuSaveAs.choose();
    EXPECT_EQ(recent(), "| Elsewhere Wasp");
    window.files.mnuMRUFile[1].choose();
    EXPECT_EQ(recent(), "| Wasp Elsewhere");
    EXPECT_EQ(test.ship().g_sShipName, "Wasp");
    window.files.mnuMRUFile[1].choose();
    EXPECT_EQ(test.ship().g_sSaveName, "") << "it was saved outside that folder";
    EXPECT_EQ(recent(), "| Wasp Elsewhere");
}

TEST_F(Files, PrintsEachCopyInItsFont) {
    window.files.mnuPrint.choose();
    EXPECT_EQ(test.takeLog(), "") << "cancelled";
    test.copies = 2;
    window.files.mnuPrint.choose();
    const std::string copy = "font Courier New; size 10; 17 lines; ";
    EXPECT_EQ(test.takeLog(), copy + copy + "size 12; font Sans; ");
    test.printerFails = true;
    window.files.mnuPrint.choose();
    EXPECT_EQ(test.takeLog(), "font Courier New; size 10; ");
}

TEST_F(Files, ANameIsOpenedAndCommitted) {
    EXPECT_TRUE(window.names.txtShipName.isLocked());
    window.names.txtShipName.type("Ignored");
    window.names.txtShipName.doubleClick();
    window.names.txtShipName.type("Mayfly");
    window.tmrRefreshScreen.tick();
    EXPECT_EQ(window.names.txtShipName.text(), "Generic")
        << "not committed: the ship's own name is back";
    window.names.txtShipName.type("Mayfly");
    window.names.txtShipName.pressKey('x');
    EXPECT_FALSE(window.names.txtShipName.isLocked());
    window.names.txtShipName.pressKey(EnterKey);
    EXPECT_TRUE(window.names.txtShipName.isLocked());
    EXPECT_EQ(test.ship().g_sShipName, "Mayfly");
    EXPECT_TRUE(test.ship().g_bSaved);

    window.names.txtDesigner.doubleClick();
    window.names.txtDesigner.type("Me");
    window.names.txtDesigner.doubleClick();
    EXPECT_EQ(test.ship().g_sDesignerName, "Me");
    EXPECT_TRUE(window.names.txtDesigner.isLocked());
}

TEST_F(Files, TheExtrasPageShowsTheShipsNamesAndGivesThemBack) {
    test.file = ship;
    window.files.mnuLoad.choose();
    window.tmrRefreshScreen.tick();
    test.inDialog = [&](Form& form) {
        auto& page = dynamic_cast<frmExtras&>(form);
        EXPECT_EQ(page.txtShipName.text(), "Wasp");
        page.txtShipName.type("Bee");
        page.cmdClearMRU.press();
        page.cmdOK.press();
    };
    window.windows.mnuExtrasPage.choose();
    EXPECT_EQ(window.names.txtShipName.text(), "Bee");
    EXPECT_TRUE(test.ship().g_bSaved);
    EXPECT_EQ(recent(), "");
}

TEST_F(Files, ADesignThatGoesUnsavedIsKept) {
    window.recovery.tmrRecovery.tick();
    EXPECT_EQ(aside(), "") << "nothing has changed";
    change();
    window.recovery.tmrRecovery.tick();
    EXPECT_EQ(aside(), "Generic time 1.shp~1 ");
    test.file = (test.folder().path() / "Hornet").string();
    window.files.mnuSaveAs.choose();
    EXPECT_EQ(aside(), "") << "saved";

    window.hull.optThrust[5].choose();
    test.file = ship;
    window.files.mnuLoad.choose();
    EXPECT_EQ(aside(), "Generic time 2.shp ") << "replaced within two seconds";
    window.names.txtShipName.doubleClick();
    window.names.txtShipName.type("Bee");
    window.names.txtShipName.doubleClick();
    window.recovery.tmrRecovery.tick();
    EXPECT_TRUE(aside().find("Bee time 3.shp~1 ") != std::string::npos) << "a name is work, too";
    window.unload();
    EXPECT_TRUE(aside().find("Bee time 3.shp ") != std::string::npos);
}

TEST(Recovered, EachDesignThatCrashesHaveLeftIsNamed) {
    TestWindow test;
    const fs::path folder = test.folder().path() / "recovered";
    fs::create_directory(folder);
    const auto leave = [&](const char* file, int secondsAgo) {
        test.folder().write((fs::path("recovered") / file).string(), "Mass: 4\n");
        fs::last_write_time(folder / file,
                            fs::file_time_type::clock::now() - std::chrono::seconds(secondsAgo));
    };
    leave("Bee t1.shp~7", 20);
    leave("Wasp t2.shp~8", 10);
    test.window().show();
    EXPECT_EQ(test.window().sbStatus.text(),
              "Recovered designs: Wasp t2, Bee t1 in " + folder.string());

    TestWindow other;
    fs::create_directory(other.folder().path() / "recovered");
    const std::string ant = other.folder().write("recovered/Ant t1.shp~7", "Mass: 4\n");
    other.window().show();
    EXPECT_EQ(other.window().sbStatus.text(), "Recovered design: " + ant.substr(0, ant.find('~')));
}

TEST_F(Files, AFileThatDoesNotFitLeavesANewShip) {
    for (const char* const line : {"Thrust: 100000\n", "Mass: 2147483647\n", "Mass: x\n"}) {
        test.file =
            test.folder().write("bad.shp", std::string("Ship Name: Bad\nSystem: Gun, 1\n") + line);
        window.files.mnuLoad.choose();
        window.tmrRefreshScreen.tick();
        EXPECT_EQ(window.names.txtShipName.text() + test.list(), "Generic") << line;
        EXPECT_EQ(window.figures.txtCost.text(), "7");
        EXPECT_TRUE(window.files.fileFault);
    }
}

TEST_F(Files, ADesignThatCannotBePutAsideGoesOnlyIfThePlayerSaysSo) {
    test.folder().write("recovered", "in the way");
    change();
    window.recovery.tmrRecovery.tick();
    EXPECT_TRUE(window.sbStatus.text().starts_with("The design cannot be put aside: "));
    test.file = ship;
    window.files.mnuLoad.choose();
    EXPECT_TRUE(
        test.takeLog().starts_with("box: The design is not saved and cannot be put aside: "));
    EXPECT_EQ(test.ship().THRUST(), 4);
    test.globals.g_bConfirmExit = false;
    EXPECT_FALSE(window.unload());
    test.answer = Answer::Yes;
    window.files.mnuLoad.choose();
    EXPECT_EQ(test.ship().g_sShipName, "Wasp");
}

TEST_F(Files, StandardHullsSetHullAndMass) {
    window.hull.optStarBase.choose();
    window.mass.mnuFrigate.choose();
    EXPECT_EQ(window.mass.txtMass.text() + ' ' + window.figures.txtRelSize.text(), "10 Frigate");
    EXPECT_TRUE(window.hull.optWarship.isOn() && window.hull.optThrust[3].takesActs());
    EXPECT_EQ(test.ship().THRUST(), 0);
    window.mass.mnuTAnker.choose();
    EXPECT_TRUE(window.hull.optMerchant.isOn());
    EXPECT_EQ(test.ship().mass(), 100);
    test.ship().g_bSaved = true;
    window.mass.mnuTAnker.choose();
    EXPECT_TRUE(test.ship().g_bSaved);
    test.takeLog();
    window.mass.txtMass.pressMouse({.button = MiddleButton});
    EXPECT_EQ(test.takeLog(), "menu: mnuStdHulls; ");
}

TEST_F(Files, ASystemIsDraggedToTheList) {
    int drags = 0;
    const Connection dragged = window.drag.imgDrag.DragWanted.connect([&] { ++drags; });
    test.selectNode("BEAM");
    window.tree.tvWeapons.moveMouse({.button = LeftButton});
    test.selectNode("Gun");
    window.tree.tvWeapons.moveMouse({.button = LeftButton | RightButton});
    window.tree.tvWeapons.moveMouse({.button = RightButton});
    EXPECT_EQ(drags, 0);
    window.tree.tvWeapons.moveMouse({.button = LeftButton, .x = 30, .y = 45});
    EXPECT_EQ(drags, 1);
    EXPECT_TRUE(window.drag.imgDrag.isVisible());
    EXPECT_EQ(window.drag.imgDrag.place().left, 6825 + 30);
    window.aboard.lvCurrentWeapons.drop(window.figures.txtCost);
    EXPECT_EQ(test.list(), "");
    window.aboard.lvCurrentWeapons.drop(window.drag.imgDrag);
    window.aboard.lvCurrentWeapons.drop(window.drag.imgDrag);
    EXPECT_EQ(test.list(), "Gun 2");
    window.tree.tvWeapons.releaseMouse({.button = LeftButton});
    EXPECT_FALSE(window.drag.imgDrag.isVisible());
}

TEST_F(Files, AMinimizedWindowHidesOnlyWhereATrayKeepsIt) {
    bool hasTray = false;
    window.tray.tray1.askAvailable = [&] { return hasTray; };
    window.setState(WindowState::Minimized);
    EXPECT_TRUE(window.isVisible() && window.tray.tray1.isOn()) << "no tray";
    window.setState(WindowState::Normal);
    EXPECT_FALSE(window.tray.tray1.isOn());

    hasTray = true;
    test.globals.g_bHide = false;
    window.setState(WindowState::Minimized);
    EXPECT_TRUE(window.isVisible()) << "not to be hidden";
    window.tray.mnuRestore.choose();
    test.globals.g_bHide = true;
    window.setState(WindowState::Minimized);
    EXPECT_FALSE(window.isVisible());
    raise(window.tray.tray1.onLeftClick);
    EXPECT_TRUE(window.isVisible() && !window.tray.tray1.isOn());

    window.setState(WindowState::Minimized);
    hasTray = false;
    window.tmrRefreshScreen.tick();
    EXPECT_TRUE(window.isVisible()) << "the tray has gone";
    hasTray = true;
    change();
    window.tray.mnuExitTask.choose();
    EXPECT_TRUE(window.isLoaded()) << "the question was answered with No";
}

}  // namespace
