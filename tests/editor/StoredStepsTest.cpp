// The steps of a design put aside, from a file that somebody else may have written.

#include "StoredSteps.h"

#include "HullRules.h"
#include "momentDelta.h"
#include "testWindow.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <functional>
#include <limits>
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
        [](DesignMoment& moment) {
            moment.ship.amounts.emplace(moment.ship.amounts.begin(), 0, -1);
        },
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

TEST(StoredSteps, LeadThereAndBackWhateverDiffers) {
    using Limits = std::numeric_limits<std::int32_t>;
    for (const std::int32_t number :
         {1, 63, 64, 127, 128, 8191, 8192, 16384, Limits::max(), -1, -64, -65, Limits::min()}) {
        SCOPED_TRACE(number);
        const auto record = static_cast<std::size_t>(std::abs(std::int64_t{number}));
        DesignMoment one{.ship = {}, .rows = {7}, .catalogue = nullptr};
        DesignMoment other = one;
        other.ship.hull.mass = one.ship.hull.mass + number / 2;
        other.ship.g_lCost = number;
        other.ship.amounts = {{3, 5}, {record + 3, number}};
        other.rows = {record, 7, record + 1};
        other.ship.g_sShipName = one.ship.g_sShipName + std::string(record % 1000, 'x');
        const std::string delta = deltaBetween(one, other);
        DesignMoment moment = one;
        EXPECT_TRUE(applyDelta(delta, Way::Forth, moment));
        EXPECT_TRUE(isSameDesign(moment, other));
        EXPECT_TRUE(applyDelta(delta, Way::Back, moment));
        EXPECT_TRUE(isSameDesign(moment, one));
        // What is cut short or belongs to another design is none.
        EXPECT_FALSE(applyDelta(delta.substr(0, delta.size() - 1), Way::Forth, moment = one));
        EXPECT_FALSE(applyDelta(delta + '\0', Way::Forth, moment = one));
        EXPECT_FALSE(applyDelta(delta, Way::Back, moment = one));
    }
}
