#include "testShip.h"

#include <gtest/gtest.h>

#include <random>

using namespace fleetwright;

// Ships built at random, with the delivered catalogue: what is saved comes back.
TEST(RoundTrip, RandomShipsComeBackAsTheyWere) {
    const TemporaryFolder folder;
    const ShipServices services = {.catalogueFile = SOURCE_FOLDER "/data/weaps.dat",
                                   .formula = formula_calculate,
                                   .eventLoopTurn = {}};
    std::mt19937 random(4);
    const auto below = [&](std::uint32_t bound) {
        return static_cast<std::int32_t>(random() % bound);
    };
    for (int round = 0; round < 200; ++round) {
        ShipClass ship(services);
        ship.g_sShipName = "Ship " + std::to_string(round) + " – né";
        ship.g_sDesignerName = round % 3 == 0 ? "" : "Designer, with a comma";
        ship.Hull(1 + below(6));
        ship.mass(2 + below(300));
        ship.THRUST(static_cast<std::int16_t>(below(9)));
        ship.FTL(below(3) == 2 ? TugDrive : below(2));
        ship.Armor(below(3));
        ship.Streamline(static_cast<std::int16_t>(below(3)));
        for (int i = below(12); i > 0; --i) {
            WeapRec record;
            std::int32_t index = below(static_cast<std::uint32_t>(ship.g_lWeapCount));
            ship.listWeap(index, record);
            if (record.name != "CATEGORY") {
                ship.addWeap(record.name, 1 + below(20));
            }
        }
        std::string first = (folder.path() / "first.shp").string();
        ASSERT_TRUE(ship.saveShip(first));
        ShipClass loaded(services);
        ASSERT_TRUE(loaded.loadShip(first)) << loaded.fileFault()->text;
        loaded.weapChange();
        EXPECT_EQ(figures(loaded), figures(ship));
        std::string second = (folder.path() / "second.shp").string();
        ASSERT_TRUE(loaded.saveShip(second));
        ASSERT_EQ(folder.read("second.shp"), folder.read("first.shp"));
    }
}
