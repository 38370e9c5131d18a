#include "CatalogueFile.h"

#include "Error.h"
#include "testShip.h"

#include <gtest/gtest.h>

#include <chrono>

using namespace fleetwright;

namespace {

/// All records of a catalogue, "name|mass|cost|arcs|icon" each.
std::string recordsOf(std::string_view catalogue) {
    const ShipYard yard(catalogue);
    const auto ship = yard.newShip();
    std::string text;
    WeapRec record;
    for (std::int32_t index = 0; index < ship->g_lWeapCount;) {
        ship->listWeap(index, record);
        EXPECT_EQ(record.amount, 0);
        text += std::string(record.name) + '|' + std::string(record.massform) + '|' +
                std::string(record.costform) + '|' + std::string(record.arclist) + '|' +
                std::string(record.icon) + '\n';
    }
    return text;
}

}  // namespace

TEST(Catalogue, TakesFieldsUntrimmedAndTheSeventhWhole) {
    EXPECT_EQ(recordsOf("a,b,c,d,e,f,g,h.gif\r\n"), "a|b|c|f|g,h.gif\n");
    EXPECT_EQ(recordsOf(" a , b ,c,d,e, f , g "), " a | b |c| f | g \n");
    EXPECT_EQ(recordsOf("a,,,,,,"), "a||||\n");
    EXPECT_EQ(recordsOf("CATEGORY,1,2,BEAM,KEY,O,k.gif\ncategory,1,2,3,4,5,6"),
              "CATEGORY|1|2|O|k.gif\ncategory|1|2|5|6\n");
}

TEST(Catalogue, RepeatsTheLastPieceOfAShortLine) {
    EXPECT_EQ(recordsOf("word"), "word|word|word|word|word\n");
    EXPECT_EQ(recordsOf("a,b"), "a|b|b|b|b\n");
    EXPECT_EQ(recordsOf("a,b,"), "a|b|||\n");
}

TEST(Catalogue, PassesOverCommentsAndEmptyLines) {
    EXPECT_EQ(recordsOf("# c\r\n\r\n\n#\r #x,1,2,3,4,5,6\rb,1,2,3,4,5,6\n# end"),
              " #x|1|2|5|6\nb|1|2|5|6\n");
    EXPECT_EQ(recordsOf(""), "");
    EXPECT_EQ(recordsOf("L\xE9ger,1,2,3,4,5,6"), "Léger|1|2|5|6\n");
}

TEST(Catalogue, CountsExactlyAndFindsTheLastCloak) {
    for (const int count : {1, 50, 51, 52, 61, 62, 1000}) {
        std::string catalogue;
        for (int i = 0; i < count; ++i) {
            catalogue += "system " + std::to_string(i) + ",1,1,BEAM,BEAM,F,x.gif\n";
        }
        const ShipYard yard(catalogue);
        EXPECT_EQ(yard.newShip()->g_lWeapCount, count);
    }
    // Two cloaks: the last one counts for the rule, the first one for its name.
    const ShipYard yard(
        "Gun,1,1,B,B,F,a\nCloaking Field,1,1,B,B,F,b\nCloaking Field,1,1,B,B,F,c\n");
    const auto ship = yard.newShip();
    ship->Hull(Merchant);
    EXPECT_TRUE(ship->addWeap("Cloaking Field", 1));
    EXPECT_TRUE(ship->addWeap("Gun", 1));
}

TEST(CatalogueFile, IsReadOnceUntilItChanges) {
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
