// Designs as one line of text.

#include "designCode.h"
#include "caseFile.h"
#include "designDictionary.h"
#include "fingerprint.h"
#include "forSeeds.h"
#include "paths.h"
#include "readFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

using namespace fleetwright;

namespace {

std::vector<std::string> sampleShips() {
    std::vector<std::string> ships;
    for (const auto& file : listFolder(SOURCE_FOLDER "/data/ships", ".shp")) {
        ships.push_back(readBytes(file));
    }
    return ships;
}

std::optional<std::string> soundShipIn(const std::string& code) {
    try {
        return shipInCode(code);
    } catch (const DesignCodeError&) {
        return std::nullopt;
    }
}

}  // namespace

TEST(DesignCode, IsShortForTheSampleShips) {
    std::vector<std::size_t> sizes;
    for (const std::string& ship : sampleShips()) {
        sizes.push_back(designCode(ship).size());
        EXPECT_EQ(shipInCode(designCode(ship)), ship);
    }
    std::sort(sizes.begin(), sizes.end());
    EXPECT_LE(sizes[sizes.size() / 2], 100U);
    EXPECT_LE(sizes.back(), 200U);
}

TEST(DesignCode, IsReadWithTheDictionaryOfTheFirstOne) {
    EXPECT_EQ(fingerprint(designDictionary()), "6108-6800172497051419163");
}

TEST(DesignCode, IsFoundInWhatPeopleSendEachOther) {
    expectCases("core/golden/designCodes.txt", [](const Case& given) -> std::string {
        try {
            return replaced(shipInCode(given["text"]), "\r\n", "\n");
        } catch (const DesignCodeError& error) {
            return error.what() + std::string(hasDesignCode(given["text"]) ? "" : " (none)");
        }
    });
}

TEST(DesignCode, IsNeverTakenForAnotherDesignWhenDamaged) {
    const std::vector<std::string> ships = sampleShips();
    const std::string letters = "0123456789ABCDEFGHJKMNPQRSTVWXYZ";
    forSeeds([&](std::mt19937& random) {
        for (int count = 0; count < 2000 && !testing::Test::HasFailure(); ++count) {
            const auto any = [&](std::size_t size) {
                return static_cast<std::size_t>(anyOf(random, 0, static_cast<int>(size) - 1));
            };
            const std::string& ship = ships[any(ships.size())];
            const std::string code = designCode(ship);
            std::string damaged = code;
            const std::size_t place = 4 + any(code.size() - 4);
            switch (count % 5) {
            case 0:
                damaged[place] = letters[any(letters.size())];
                break;
            case 1:
                damaged.resize(place);
                break;
            case 2:
                std::swap(damaged[place], damaged[4 + any(code.size() - 4)]);
                break;
            case 3:
                damaged.erase(place, 1 + any(3));
                break;
            default:
                damaged.insert(place, 1, letters[any(letters.size())]);
            }
            EXPECT_EQ(soundShipIn(damaged), damaged == code ? std::optional(ship) : std::nullopt)
                << damaged << "\n"
                << code;
        }
    });
}

TEST(DesignCode, IsRefusedWhereItWouldGrowWithoutEnd) {
    const std::string most(longestCodedShip, 'A');
    EXPECT_EQ(soundShipIn(designCode(most)), most);
    EXPECT_THROW(designCode(most + 'A'), DesignCodeError);
}
