#include "CatalogueFile.h"

#include "CatalogueCheck.h"
#include "Error.h"
#include "caseFile.h"
#include "faults.h"
#include "readFile.h"
#include "testShip.h"

#include <gtest/gtest.h>

#include <chrono>
#include <map>

using namespace fleetwright;

namespace {

/// All records of a catalogue, "name|mass|cost|arcs|icon" each, as a ship has them.
std::string recordsOf(std::string_view catalogue) {
    const ShipYard yard(catalogue);
    const auto ship = yard.newShip();
    std::string text;
    WeapRec record;
    for (std::int32_t index = 0; index < ship->g_lWeapCount;) {
        const bool isFollowed = ship->listWeap(index, record);
        EXPECT_EQ(isFollowed, index < ship->g_lWeapCount);
        EXPECT_EQ(record.amount, 0);
        text += std::string(record.name) + '|' + std::string(record.massform) + '|' +
                std::string(record.costform) + '|' + std::string(record.arclist) + '|' +
                std::string(record.icon) + '\n';
    }
    EXPECT_THROW(ship->listWeap(ship->g_lWeapCount, record), std::out_of_range);
    return text;
}

/// A catalogue without a fault, to which a case adds one.
const std::string sound = "CATEGORY,0,0,beam,Guns,O,guns.gif\n"
                          "Gun,amount,amount,BEAM,GUNS,FPSAB,gun.gif\n"
                          "a,1,1,x,DEFENSE,6,a.gif\nb,1,1,x,HEAVY,O,b.gif\n"
                          "c,1,1,x,HANGAR,OX,c.gif\nd,1,1,x,ALIEN,F,d.gif\n"
                          "Cloaking Field,1,1,x,SPECIAL,O,e.gif\n"
                          "Damage Control Party,1,1,x,systems,O,f.gif\n";

}  // namespace

TEST(Catalogue, CutsLinesIntoFields) {
    expectCases("core/golden/fields.txt", [](const Case& given) {
        return recordsOf(replaced(given["catalogue"], "\\r", "\r"));
    });
    EXPECT_EQ(recordsOf(" a , b ,c,d,e, f , g "), " a | b |c| f | g \n");
    EXPECT_EQ(recordsOf("L\xE9ger,1,2,3,4,5,6"), "Léger|1|2|5|6\n");
    // An empty first line of a ship file goes on with what the catalogue has left.
    EXPECT_EQ(ShipYard("a,b,c,d,e,f,Mass:9").loaded("\nFoo: 1")->mass(), 9);
}

TEST(Catalogue, IsReadOnceUntilItChanges) {
    const TemporaryFolder folder;
    const std::filesystem::path path = folder.path() / "weaps.dat";
    const CatalogueFile file(path);
    EXPECT_THROW(file.read(), FileError);
    const auto old = std::filesystem::file_time_type::clock::now() - std::chrono::hours(1);
    const auto write = [&](const char* text, bool isOld) {
        folder.write("weaps.dat", text);
        if (isOld) {
            std::filesystem::last_write_time(path, old);
        }
        return file.read();
    };
    const auto first = write("a", true);
    EXPECT_EQ(first->lines().at(0).name, "a");
    EXPECT_EQ(CatalogueFile(file).read(), first);
    // Neither the size nor the time tells these from what was there before.
    EXPECT_EQ(write("b", true)->text(), "b");
    for (const char* text : {"c", "d", "e"}) {
        EXPECT_EQ(write(text, false)->text(), text);
    }
    std::filesystem::remove(path);
    EXPECT_THROW(file.read(), FileError);
    EXPECT_EQ(first->lines().at(0).icon, "a");
}

TEST(Catalogue, TellsHowSystemsArePlayed) {
    const auto ship = ShipYard("a,1,1,BEAM,BEAM,F,a.gif\r\n#>  Two dice, near. \r\n"
                               "b,1,1,BEAM,BEAM,F,b.gif\r\n\r\n#>Behind no record.\r\n")
                          .newShip();
    EXPECT_EQ(ship->rulesOf("a"), "Two dice, near.");
    EXPECT_EQ(ship->rulesOf("b"), "");
    EXPECT_EQ(ship->rulesOf("c"), "");

    // All mountings of a delivered system are played alike, in a line that a card has room for.
    const CatalogueText delivered = readTextFile(SOURCE_FOLDER "/data/weaps.dat");
    std::map<std::string_view, std::string_view> rules;
    for (const CatalogueLine& line : delivered.lines()) {
        if (!line.isCategory()) {
            EXPECT_TRUE(!line.rules.empty() && line.rules.size() <= 110) << line.whole;
            const auto weapon = line.name.substr(0, line.name.find(" ("));
            EXPECT_EQ(rules.try_emplace(weapon, line.rules).first->second, line.rules);
        }
    }
}

TEST(Catalogue, IsCheckedLineByLine) {
    EXPECT_EQ(textOf(checkCatalogue(sound)), "");
    EXPECT_EQ(textOf(checkCatalogue(readTextFile(SOURCE_FOLDER "/data/weaps.dat"))), "");
    expectCases("core/golden/catalogues.txt", [](const Case& given) {
        const CatalogueText whole = given["whole"];
        const CatalogueText added = sound + given["added"];
        const bool isWhole = !whole.text().empty();
        return textOf(checkCatalogue(isWhole ? whole : added)) + "start\n" +
               textOf(checkCatalogue(isWhole ? whole : added, CatalogueCheck::Start));
    });
}
