// How often an act works the ship's figures out anew. Controls that a refresh sets write back to
// the ship, so one act can cause several recalculations; their number belongs to the rules. A
// renderer that answered a control's change with an act of its own would add to them.

#include "FormWindow.h"
#include "testWindow.h"

#include <gtest/gtest.h>

#include <QApplication>

using namespace fleetwright;

namespace {

struct Act {
    const char* name;
    int recalculations;
    std::function<void(TestWindow&)> run;
    std::function<void(TestWindow&)> prepare = {};
};

void fit(TestWindow& test, const char* system) {
    test.selectNode(system);
    test.window().tree.tvWeapons.doubleClick();
}

void fitGun(TestWindow& test) {
    fit(test, "Gun");
}

void startAutoMass(TestWindow& test) {
    for (int i = 0; i < 3; ++i) {
        test.window().mass.updwnMass_10.pressUp();
    }
    test.window().mass.mnuAutoMass.choose();
}

void loadFile(TestWindow& test) {
    test.ship().loadShip(test.folder().write("some.shp", "Mass: 60\n"
                                                         "Thrust: 4\n"
                                                         "Type: Merchant\n"
                                                         "Armor: Level 1\n"
                                                         "FTL: Tug\n"
                                                         "System: Gun, 2\n"
                                                         "System: Ballast, 1\n"));
}

const std::vector<Act> acts = {
    {"thrust", 1, [](TestWindow& test) { test.window().hull.optThrust[4].choose(); }},
    {"armor", 1, [](TestWindow& test) { test.window().hull.optNoArmor[1].choose(); }},
    {"streamlining", 1, [](TestWindow& test) { test.window().hull.optFullStreamling.choose(); }},
    {"drive", 1, [](TestWindow& test) { test.window().hull.optTug.choose(); }},
    {"hull of a ship", 1, [](TestWindow& test) { test.window().hull.optMerchant.choose(); }},
    {"hull of a base", 5, [](TestWindow& test) { test.window().hull.optStarBase.choose(); }},
    {"mass arrow", 1, [](TestWindow& test) { test.window().mass.updwnMass_10.pressUp(); }},
    {"one system more", 1, fitGun},
    {"one system less", 1,
     [](TestWindow& test) {
         test.window().aboard.lvCurrentWeapons.select(0);
         test.window().aboard.lvCurrentWeapons.doubleClick();
     },
     fitGun},
    {"AutoMass on", 4, [](TestWindow& test) { test.window().mass.mnuAutoMass.choose(); },
     [](TestWindow& test) { test.window().mass.updwnMass_5.pressUp(); }},
    {"one system more, with AutoMass", 3, fitGun, startAutoMass},
    {"load of a file", 7, loadFile},
    {"refresh by the timer", 0, [](TestWindow& test) { test.window().tmrRefreshScreen.tick(); }},
};

/// Runs an act on a new window's ship, with or without something that draws it.
int recalculationsOf(const Act& act, bool isDrawn) {
    TestWindow test;
    std::optional<FormWindow> drawn;
    if (isDrawn) {
        drawn.emplace(test.window());
    }
    test.window().show();
    if (act.prepare) {
        act.prepare(test);
    }
    QApplication::processEvents();
    int count = 0;
    const Connection counting = test.ship().Recalculated.connect([&] { ++count; });
    act.run(test);
    QApplication::processEvents();
    return count;
}

}  // namespace

TEST(RecalculationCountTest, ActsCauseAsManyAsTheRulesSayAndDrawingCausesNone) {
    for (const Act& act : acts) {
        EXPECT_EQ(recalculationsOf(act, false), act.recalculations) << act.name;
        EXPECT_EQ(recalculationsOf(act, true), act.recalculations) << act.name << ", drawn";
    }
}
