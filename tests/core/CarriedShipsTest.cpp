// Ships that travel in sheets come back as they were.

#include "carriedShips.h"
#include "PngChunks.h"
#include "designCode.h"
#include "forSeeds.h"
#include "readFile.h"
#include "testShip.h"

#include <gtest/gtest.h>

using namespace fleetwright;

namespace {

/// A name that is hard on XML, on PNG and on the ship file itself.
std::string anyName(std::mt19937& random) {
    const std::string pieces[] = {"\"",   "'",    "<", ">",    "&",   "&#65;", "]]>", "ü",
                                  "–",    " ",    ":", "\r\n", "\n",  "\r",    "\t",  "a",
                                  "\x01", "\x7F", "%", "=",    "-->", "%%EOF"};
    std::string name;
    for (int i = anyOf(random, 0, 12); i > 0; --i) {
        name += pieces[anyOf(random, 0, static_cast<int>(std::size(pieces)) - 1)];
    }
    return name;
}

/// The file of a ship of any kind.
std::string anyShipFile(const ShipServices& services, std::mt19937& random) {
    ShipClass ship(services);
    ship.g_sShipName = anyName(random);
    ship.g_sDesignerName = anyName(random);
    ship.Hull(anyOf(random, 1, 6));
    ship.mass(anyOf(random, 2, 600));
    for (int i = anyOf(random, 0, 9); i > 0; --i) {
        WeapRec record;
        std::int32_t index = anyOf(random, 0, ship.g_lWeapCount - 1);
        ship.listWeap(index, record);
        ship.addWeap(record.name, anyOf(random, 1, 9));
    }
    return ship.shipFile();
}

}  // namespace

TEST(CarriedShips, ComeBackWithoutADifference) {
    const ShipYard yard(readTextFile(SOURCE_FOLDER "/data/weaps.dat"));
    const ShipServices services = yard.services();
    const std::string png = std::string(pngSignature) + pngChunk("IHDR", "") + pngChunk("IEND", "");
    int files = 0;  // to write over one takes longer
    const auto stateIn = [&](const std::string& file) {
        ShipClass ship(services);
        EXPECT_TRUE(ship.loadShip(yard.folder().write(std::to_string(++files) + ".shp", file)));
        EXPECT_EQ(ship.g_sSaveName.empty(), isSheet(file)) << "nothing is saved into a sheet";
        ship.g_sSaveName = ship.g_sTrimmedFileName = ship.origin = "";
        return ship.state();
    };
    forSeeds([&](std::mt19937& random) {
        for (std::size_t count = 0; count < 200 && !testing::Test::HasFailure(); ++count) {
            const std::string shipFile = anyShipFile(services, random);
            CarriedShips carried(1, shipFile.size());
            carried.add(shipFile);
            const std::string element = std::move(carried).element();
            const std::string sheets[] = {
                "<svg><metadata>" + element + "</metadata></svg>", withShip(png, shipFile),
                "%PDF-1.6 <?xpacket begin=\"\"?>" + element + "<?xpacket end=\"w\"?> %%EOF"};
            for (const std::string& sheet : sheets) {
                EXPECT_EQ(shipsIn(sheet), std::vector{shipFile});
            }
            const ShipState state = stateIn(shipFile);
            EXPECT_EQ(stateIn(sheets[count % std::size(sheets)]), state);
            ShipClass coded(services);
            EXPECT_TRUE(coded.loadShip(designCode(shipFile)) && !coded.g_bSaved);
            coded.g_bSaved = true;
            EXPECT_EQ(coded.state(), state) << "nor has a code a file";
        }
    });
}
