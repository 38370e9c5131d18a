#include "CatalogueFile.h"
#include "caseFile.h"
#include "comparisonTexts.h"
#include "fireRose.h"
#include "testShip.h"

using namespace fleetwright;

TEST(Comparison, SaysWhatIsGoneFromACatalogueAndWhatMayOnlyHaveAnotherName) {
    expectCases("comparison/golden/catalogues.txt",
                [](const Case& each) { return textOf(changesOf(each["before"], each["after"])); });
}

TEST(FirePower, CountsWeaponsWhereTheyBearAndDrawsThemByTheirAreas) {
    expectCases("comparison/golden/fire.txt", [](const Case& each) {
        const ShipYard yard(each["catalogue"]);
        const FirePower power = firePowerOf(*yard.loaded(each["ship"]));
        std::string text = wordsOf(power) + '\n';
        for (const RoseOf measure : {RoseOf::Weapons, RoseOf::Points}) {
            const Drawing rose = fireRose(power, measure, fullSectorOf({&power}, measure));
            for (const DrawnShape& shape : rose.shapes) {
                text += shape.path + '\n';
            }
        }
        return text;
    });
}
