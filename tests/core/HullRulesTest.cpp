#include "HullRules.h"

#include "Error.h"
#include "decimals.h"
#include "roundUpByText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>

using namespace fleetwright;

namespace {

std::string figuresOf(std::int32_t hullType, std::int32_t mass) {
    const HullFigures figures = hullFigures({.mass = mass, .hullType = hullType, .ftl = NoDrive});
    return std::to_string(figures.damageControlParties) + ' ' +
           std::to_string(figures.fireControls) + ' ' + std::to_string(figures.damageRows);
}

}  // namespace

TEST(RoundUp, GoesByTheDecimalText) {
    const std::pair<double, std::int32_t> cases[] = {
        {3.0000000000000004, 3},
        {0.30000000000000004, 1},
        {2.25, 3},
        {0, 0},
        {4, 4},
        {-13.5, -12},
        {-0.5, 1},
        {1e-20, 1},
        {7.5, 8},
        {2.9999999999999996, 3},
        {9.99999999999999, 10},
        {30 * 0.1, 3},
        {-3, -3},
        {-2.9999999999999996, -3},
        {-0.9999999999999999, -1},
        {-0.999999999999999, 1},
        {2147483646.5, 2147483647},
    };
    for (const auto& [x, expected] : cases) {
        EXPECT_EQ(roundUp(x), expected) << x;
    }
    EXPECT_THROW(roundUp(2147483647.5), OverflowError);
    EXPECT_THROW(roundUp(std::nan("")), OverflowError);
}

TEST(RoundUp, AgreesWithTheTextForAnyNumber) {
    std::mt19937_64 random(20);
    std::uniform_real_distribution<double> mantissa(-1, 1);
    for (int i = 0; i < 200'000; ++i) {
        double x = std::ldexp(mantissa(random), static_cast<int>(random() % 64) - 10);
        if (i % 2 == 0) {
            // Next to a whole number, where the last digits decide.
            x = std::nearbyint(x);
            const int steps = static_cast<int>(random() % 80) - 40;
            for (int step = 0; step < std::abs(steps); ++step) {
                x = std::nextafter(x, steps < 0 ? -INFINITY : INFINITY);
            }
        }
        ASSERT_EQ(roundUpWhole(x), roundUpByText(x)) << std::hexfloat << x;
    }
}

TEST(HullRules, CountPartiesFireControlsAndRowsByMass) {
    const struct {
        std::int32_t from, to;
        const char *military, *merchant;
    } ranges[] = {
        {-4, 6, "0 1 2", "0 1 2"},
        {7, 18, "1 1 2", "1 1 2"},
        {19, 36, "2 2 3", "1 1 3"},
        {37, 100, "3 3 4", "1 1 4"},
        {101, 149, "3 3 5", "1 1 5"},
        {150, 199, "4 4 6", "2 2 6"},
        {1000, 1049, "21 21 23", "19 19 23"},
    };
    for (const auto& range : ranges) {
        for (const std::int32_t mass : {range.from, range.to}) {
            for (const std::int32_t hull : {Warship, QShip, Starbase, QSpaceStation}) {
                EXPECT_EQ(figuresOf(hull, mass), range.military) << hull << ' ' << mass;
            }
            for (const std::int32_t hull : {Merchant, SpaceStation}) {
                EXPECT_EQ(figuresOf(hull, mass), range.merchant) << hull << ' ' << mass;
            }
        }
    }
}

TEST(HullRules, PriceThrustByHullAndMass) {
    const struct {
        std::int32_t hull, mass, thrust, cost;
    } cases[] = {
        {Warship, 18, 3, 14},      {Warship, 19, 3, 29},      {Warship, 36, 3, 54},
        {Warship, 37, 3, 111},     {Warship, 100, 3, 300},    {Warship, 101, 3, 606},
        {QShip, 5, 1, 2},          {QShip, 101, 8, 1616},     {Merchant, 5, 1, 5},
        {Merchant, 100, 2, 200},   {Merchant, 101, 2, 404},   {Starbase, 50, 4, 0},
        {SpaceStation, 200, 4, 0}, {QSpaceStation, 10, 4, 0},
    };
    for (const auto& example : cases) {
        const HullFigures figures =
            hullFigures({.mass = example.mass, .hullType = example.hull, .thrust = example.thrust});
        EXPECT_EQ(figures.thrustCost, example.cost) << example.hull << ' ' << example.mass;
    }
}

TEST(HullRules, PriceHullAndDriveAndLeaveFreeMass) {
    const struct {
        HullDesign design;
        std::int32_t hullCost, damagePoints, ftlCost, freeMass;
    } cases[] = {
        {{.mass = 3, .hullType = Warship, .armor = 1}, 8, 2, 3, 2},
        {{.mass = 10, .hullType = Warship, .armor = 2, .streamline = 2, .ftl = 3}, 40, 5, 30, 5},
        {{.mass = 10, .hullType = Warship, .ftl = 0}, 20, 5, 0, 8},
        {{.mass = 10, .hullType = QShip, .ftl = 0}, 15, 3, 0, 8},
        {{.mass = 30, .hullType = Merchant}, 45, 8, 30, 3},
        {{.mass = 31, .hullType = Merchant, .ftl = 0}, 47, 8, 0, 4},
        {{.mass = 7, .hullType = Starbase, .ftl = 0}, 14, 4, 0, 4},
        {{.mass = 7, .hullType = SpaceStation, .ftl = 0}, 11, 2, 0, 1},
        {{.mass = 7, .hullType = QSpaceStation, .ftl = 0}, 11, 2, 0, 4},
        {{.mass = 10, .hullType = 9}, 0, 0, 10, 0},
    };
    for (const auto& example : cases) {
        const HullFigures figures = hullFigures(example.design);
        EXPECT_EQ(figures.hullCost, example.hullCost) << example.design.hullType;
        EXPECT_EQ(figures.damagePoints, example.damagePoints) << example.design.hullType;
        EXPECT_EQ(figures.ftlCost, example.ftlCost) << example.design.hullType;
        EXPECT_EQ(figures.freeMass, example.freeMass) << example.design.hullType;
        EXPECT_EQ(figures.cost, figures.hullCost + figures.ftlCost + figures.thrustCost);
    }
}

TEST(HullRules, OverflowIsAnErrorInEachProductAndSum) {
    EXPECT_THROW(hullFigures({.mass = 1'073'741'824}), OverflowError);
    EXPECT_THROW(hullFigures({.mass = 800'000'000, .hullType = SpaceStation, .ftl = TugDrive}),
                 OverflowError);
    EXPECT_THROW(hullFigures({.mass = 200'000'000, .hullType = Merchant, .thrust = 8}),
                 OverflowError);
    EXPECT_THROW(hullFigures({.mass = 750'000'000, .thrust = 0}), OverflowError);
    EXPECT_EQ(hullFigures({.mass = 700'000'000, .ftl = NoDrive, .thrust = 0}).cost, 1'400'000'000);
}
