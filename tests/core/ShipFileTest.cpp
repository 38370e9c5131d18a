#include "testShip.h"

#include <gtest/gtest.h>

using namespace fleetwright;

using ShipFileTest = NewShip;

namespace {

std::string fault(const ShipClass& ship) {
    return ship.fileFault() ? std::to_string(ship.fileFault()->line) + ": " + ship.fileFault()->text
                            : "none";
}

}  // namespace

TEST_F(ShipFileTest, IsWrittenLineByLine) {
    std::string name = (yard.folder().path() / "plain").string();
    EXPECT_TRUE(ship->saveShip(name));
    EXPECT_EQ(name, (yard.folder().path() / "plain.shp").string());
    EXPECT_EQ(yard.folder().read("plain.shp"), "Ship Name: Generic\r\n"
                                               "Designer Name: Nils's Iron Vector Creator\r\n"
                                               "Mass: 2\r\n"
                                               "Thrust: 2\r\n"
                                               "Type: Warship\r\n"
                                               "FTL: Normal\r\n");
    ship->g_sShipName = "Été";
    ship->g_sDesignerName = "";
    ship->Hull(QSpaceStation);
    ship->mass(60);
    ship->THRUST(0);
    ship->FTL(TugDrive);
    ship->Armor(2);
    ship->Streamline(1);
    ship->addWeap("Ballast", 3);
    ship->addWeap("Gun", 12);
    ship->addWeap("Screen", -1);
    EXPECT_TRUE(ship->saveShip(name));
    EXPECT_EQ(yard.folder().read("plain.shp"), "Ship Name: Été\r\n"
                                               "Designer Name: \r\n"
                                               "Mass: 60\r\n"
                                               "Thrust: 0\r\n"
                                               "Type: Q-Space Station\r\n"
                                               "Streamlining: Partial\r\n"
                                               "Armor: Level 2\r\n"
                                               "FTL: Tug\r\n"
                                               "System: Gun, 12\r\n"
                                               "System: Ballast, 3\r\n");
}

TEST_F(ShipFileTest, SavingTakesTheNameAndMarksTheShip) {
    ship->weapChange();
    EventLog events(*ship);
    std::string name = (yard.folder().path() / "a.b.SHP").string();
    EXPECT_TRUE(ship->saveShip(name));
    EXPECT_EQ(ship->g_sTrimmedFileName, "a.b.SHP");
    EXPECT_EQ(ship->g_sSaveName, name);
    EXPECT_TRUE(ship->g_bSaved);
    EXPECT_EQ(events.take(), "saved");

    ship->weapChange();
    events.take();
    const std::string before = ship->g_sSaveName;
    std::string bad = (yard.folder().path() / "missing" / "x.shp").string();
    EXPECT_FALSE(ship->saveShip(bad));
    EXPECT_EQ(fault(*ship), "0: cannot be saved: No such file or directory");
    EXPECT_EQ(ship->g_sSaveName, before);
    EXPECT_FALSE(ship->g_bSaved);
    EXPECT_EQ(events.take(), "");
}

TEST_F(ShipFileTest, LoadingSetsFieldsAndRecalculatesForSystemsOnly) {
    EventLog events(*ship);
    ship->g_bAutoMass = true;
    const std::string file = yard.folder().write(
        "ship.one.txt", "Ship Name:  Two Words \nDesigner Name: D\nMass: 1\nThrust: 12\n"
                        "Type: q-ship\nArmor: Level 1\nStreamlining: Full\nFTL: Tug");
    EXPECT_TRUE(ship->loadShip(file));
    EXPECT_EQ(events.take(), "loaded");
    EXPECT_EQ(ship->g_sShipName + '/' + ship->g_sDesignerName, "Two Words/D");
    EXPECT_EQ(ship->mass(), 1);
    EXPECT_EQ(ship->THRUST(), 12);
    EXPECT_EQ(ship->Hull(), QShip);
    EXPECT_EQ(ship->Armor(), 1);
    EXPECT_EQ(ship->Streamline(), 2);
    EXPECT_EQ(ship->FTL(), TugDrive);
    EXPECT_EQ(ship->g_sTrimmedFileName, "ship.one");
    EXPECT_TRUE(ship->g_bSaved);
    EXPECT_FALSE(ship->g_bAutoMass);
    EXPECT_EQ(ship->g_lCost, 7);

    const auto armed = yard.newShip();
    EventLog armedEvents(*armed);
    armed->loadShip(yard.folder().write("armed.shp", "Mass: 50\nSystem: Gun, 2\nSystem:Screen,1"));
    EXPECT_EQ(armedEvents.take(), "( ) ( ) loaded");
    EXPECT_EQ(figures(*armed), "412 25 4 3 3 16");
    EXPECT_TRUE(armed->g_bSaved);
}

TEST_F(ShipFileTest, KeysAndWordsAreExactButForTheType) {
    const auto loaded = yard.loaded(
        "ship name: x\nShip Name : y\nMASS: 9\n Mass: 9\nType: space station\nFTL: normal\n"
        "FTL: tug\nStreamlining: full\nArmor: Level 3\nArmor: 0\nno colon at all\n");
    EXPECT_EQ(fault(*loaded), "none");
    EXPECT_EQ(loaded->g_sShipName, "Generic");
    EXPECT_EQ(loaded->mass(), 2);
    EXPECT_EQ(loaded->Hull(), SpaceStation);
    EXPECT_EQ(loaded->FTL(), NormalDrive);
    EXPECT_EQ(loaded->Streamline(), 0);
    EXPECT_EQ(loaded->Armor(), 0);
    EXPECT_EQ(yard.loaded("Type: Warships\nType: Starbase")->Hull(), Starbase);
    EXPECT_EQ(yard.loaded("Armor:x2")->Armor(), 2);
}

TEST_F(ShipFileTest, ValuesEndAtTheNextColonAndPiecesRepeat) {
    EXPECT_EQ(yard.loaded("Ship Name: Alpha: Beta")->g_sShipName, "Alpha");
    EXPECT_EQ(yard.loaded("Ship Name")->g_sShipName, "Ship Name");
    EXPECT_EQ(yard.loaded("Ship Name:")->g_sShipName, "");
    EXPECT_EQ(amountOf(*yard.loaded("System: Gun , 3 , 4"), "Gun"), 3);
    EXPECT_EQ(amountOf(*yard.loaded("System: :Gun,5"), "Gun"), 5);
    EXPECT_EQ(amountOf(*yard.loaded("System: Gun, 2.5"), "Gun"), 2);
    // An empty line goes on with what the line before has left.
    EXPECT_EQ(yard.loaded("Foo:Mass:50\n\n")->mass(), 50);
    EXPECT_EQ(yard.loaded("Foo:Armor: 2\n\n")->Armor(), 2);
    EXPECT_EQ(yard.loaded("Mass: 30\n\n\nThrust: 1")->mass(), 30);
    EXPECT_EQ(yard.loaded("\n\nMass: 7")->mass(), 7);
}

TEST_F(ShipFileTest, BadNumbersEndTheLoadAtTheirLine) {
    const std::pair<const char*, const char*> cases[] = {
        {"Mass: ten", "1: \"ten\" is no number"},
        {"Ship Name: x\r\n\r\nThrust: 1e1", "3: \"1e1\" is no number"},
        {"Armor: None", "1: \"e\" is no number"},
        {"Armor: Level 1 ", "1: \"\" is no number"},
        {"System: Gun", "1: \"Gun\" is no number"},
        {"System: Gun, many", "1: \"many\" is no number"},
        {"Mass: 2147483648", "1: number too large"},
        {"Mass: 2000000000", "0: number too large"},
        {"Mass: 50\nSystem: Gun, 1\nSystem: Giant, 1\nSystem: Giant, 1", "none"},
        {"Mass: 100000000\nThrust: 0\nSystem: Gun, 1\nThrust: 20\nSystem: Gun, 1",
         "5: number too large"},
        {"Foo:Mass\n\n", "2: \"Mass\" is no number"},
    };
    for (const auto& [text, expected] : cases) {
        const auto loaded = yard.loaded(text);
        EXPECT_EQ(fault(*loaded), expected) << text;
        EXPECT_EQ(loaded->g_sSaveName.empty(), loaded->fileFault().has_value()) << text;
    }
    const auto kept = yard.loaded("Ship Name: kept\nMass: x\nMass: 30");
    EXPECT_EQ(kept->g_sShipName, "kept");
    EXPECT_EQ(kept->mass(), 2);
    // A base that the window will stop fits, although it would not while it moved.
    EXPECT_EQ(fault(*yard.loaded("Mass: 800000000\nType: Starbase\nFTL: Tug\nThrust: 0")), "none");
}

TEST_F(ShipFileTest, UnknownAndRefusedSystemsArePassedOverAndNamed) {
    EventLog events(*ship);
    EXPECT_TRUE(ship->loadShip(yard.folder().write(
        "x.shp", "Type: Merchant\nSystem: Laser, 1\nSystem: Cloaking Field, 1\nSystem: Gun, 1\n")));
    EXPECT_EQ(events.take(), "unknown ( ) ( ) cloak loaded");
    ASSERT_EQ(ship->refusedLines().size(), 2U);
    EXPECT_EQ(ship->refusedLines()[0].text, "System: Laser, 1");
    EXPECT_EQ(ship->refusedLines()[0].fault, (Fault{2, "unknown system \"Laser\""}));
    EXPECT_EQ(ship->refusedLines()[1].fault,
              (Fault{4, "a merchant hull cannot have a cloak and other systems"}));
    EXPECT_EQ(amountOf(*ship, "Gun"), 0);
}

TEST_F(ShipFileTest, NamesAreCutAtEitherSeparator) {
    EXPECT_TRUE(ship->loadShip(yard.folder().write("C:\\ships\\abc.txt", "")));
    EXPECT_EQ(ship->g_sTrimmedFileName, "abc");
    EXPECT_TRUE(ship->loadShip(yard.folder().write("naïveté", "")));
    EXPECT_EQ(ship->g_sTrimmedFileName, "naï");

    const auto unnamed = yard.newShip();
    EXPECT_FALSE(unnamed->loadShip(yard.folder().write("abc", "Mass: 9")));
    EXPECT_EQ(fault(*unnamed), "0: file name is too short");
    EXPECT_EQ(unnamed->mass(), 9);
    EXPECT_FALSE(unnamed->loadShip((yard.folder().path() / "none.shp").string()));
    EXPECT_EQ(fault(*unnamed), "0: cannot be read: No such file or directory");
}
