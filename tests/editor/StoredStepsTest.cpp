// The steps of a design put aside, from a file that somebody else may have written.

#include "StoredSteps.h"

#include "HullRules.h"
#include "momentDelta.h"
#include "testWindow.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

using namespace fleetwright;

TEST(StoredSteps, AreTakenOnlyWhereTheyLeadToDesignsThatCanBe) {
    TestWindow test;
    test.window().show();
    test.ship().addWeap("Gun", 1);
    test.ship().addWeap("Screen", 2);
    const std::shared_ptr<const CatalogueText> catalogue = test.ship().catalogueText();
    DesignMoment now{.ship = test.ship().state(), .rows = {}, .catalogue = catalogue};
    for (const auto& [record, amount] : now.ship.amounts) {
        now.rows.push_back(record);
    }
    using Change = std::function<void(DesignMoment&)>;
    const auto isTaken = [&](const Change& change, std::size_t count) {
        StoredSteps stored{.now = now, .steps = {}, .at = count};
        change(stored.now);
        stored.steps.assign(count, deltaBetween(stored.now, stored.now));
        return StoredSteps::of(stored.text(), test.ship()).has_value();
    };
    const Change none = [](DesignMoment&) {};
    EXPECT_TRUE(isTaken(none, 2 * StoredSteps::most));
    EXPECT_FALSE(isTaken(none, 2 * StoredSteps::most + 1));

    const std::vector<Change> thatCanBe = {
        [](DesignMoment& moment) { moment.ship.hull.mass = -1; },
        [](DesignMoment& moment) { moment.ship.hull.thrust = 99; },
        [](DesignMoment& moment) { moment.ship.amounts.emplace_back(4, -1); }};
    for (std::size_t i = 0; i < thatCanBe.size(); ++i) {
        EXPECT_TRUE(isTaken(thatCanBe[i], 1)) << i;
    }
    const std::vector<Change> thatCannot = {
        [](DesignMoment& moment) { moment.ship.hull.hullType = 0; },
        [](DesignMoment& moment) { moment.ship.hull.hullType = 7; },
        [](DesignMoment& moment) { moment.ship.hull.ftl = 2; },
        [](DesignMoment& moment) { moment.ship.lastHull = {}; },
        [](DesignMoment& moment) { moment.ship.lastHull.hullCost += 1; },
        [](DesignMoment& moment) { moment.ship.g_lCost -= 1; },
        [](DesignMoment& moment) { moment.ship.g_iMassLeft += 1; },
        [](DesignMoment& moment) { moment.ship.g_iDP += 1; },
        [](DesignMoment& moment) { moment.ship.g_iDamRows += 1; },
        [](DesignMoment& moment) { moment.ship.g_iDCP += 1; },
        [](DesignMoment& moment) { moment.ship.g_iFCS += 1; },
        [](DesignMoment& moment) { moment.ship.lastHull.design.mass = 2147483647; },
        [](DesignMoment& moment) { moment.ship.lastHull = hullFigures({.hullType = 7}); },
        [](DesignMoment& moment) { moment.ship.amounts.emplace_back(0, 0); },
        [](DesignMoment& moment) { moment.ship.amounts.push_back(moment.ship.amounts.back()); },
        [](DesignMoment& moment) {
            moment.ship.amounts.push_back(moment.ship.amounts.back());
            moment.rows.push_back(moment.rows.back());
        },
        [](DesignMoment& moment) { std::swap(moment.ship.amounts[0], moment.ship.amounts[1]); }};
    for (std::size_t i = 0; i < thatCannot.size(); ++i) {
        EXPECT_FALSE(isTaken(thatCannot[i], 1)) << i;
    }
}
