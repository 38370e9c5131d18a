#include "HullRules.h"

#include "Error.h"
#include "caseFile.h"
#include "decimals.h"
#include "forSeeds.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <sstream>

using namespace fleetwright;

namespace {

/// Rounding up as its rule says it: a number has a fraction if its 15 digits as they are printed
/// have one. What is not finite stays what it is.
double roundUpByText(double x) {
    if (!std::isfinite(x)) {
        return x;
    }
    char text[40];
    std::snprintf(text, sizeof text, "%.14e", std::fabs(x));  // one digit before the point
    const std::string printed(text);
    const std::string digits = printed[0] + printed.substr(2, 14);
    const int whole = std::max(std::atoi(printed.c_str() + printed.find('e') + 1) + 1, 0);
    const bool hasFraction =
        digits.find_first_not_of('0', static_cast<std::size_t>(whole)) != std::string::npos;
    return hasFraction ? std::trunc(x) + 1 : std::nearbyint(x);
}

void writeFigures(std::ostream& text, const HullDesign& design) {
    const HullFigures figures = hullFigures(design);
    EXPECT_EQ(figures.design, design);
    text << figures.hullCost << " + " << figures.ftlCost << " + " << figures.thrustCost << " = "
         << figures.cost << ", free " << figures.freeMass << ", points " << figures.damagePoints
         << ", rows " << figures.damageRows << ", parties " << figures.damageControlParties
         << ", controls " << figures.fireControls << '\n';
}

}  // namespace

TEST(RoundUp, GoesByTheDecimalText) {
    expectCases("core/golden/rounding.txt", [](const Case& given) {
        std::string text;
        for (const std::string& number : linesOf(given["numbers"])) {
            try {
                text += number + " -> " + std::to_string(roundUp(std::stod(number))) + '\n';
            } catch (const OverflowError& error) {
                text += number + ": " + error.what() + '\n';
            }
        }
        return text;
    });
    EXPECT_EQ(roundUpWhole(-INFINITY), -INFINITY);
}

TEST(RoundUp, AgreesWithTheTextForAnyNumber) {
    forSeeds([](std::mt19937& random) {
        std::uniform_real_distribution<double> mantissa(-1, 1);
        for (int i = 0; i < 20'000; ++i) {
            double x = std::ldexp(mantissa(random), anyOf(random, -10, 53));
            if (i % 2 == 0) {
                // Next to a whole number, where the last digits decide.
                x = std::nearbyint(x);
                const int steps = anyOf(random, -40, 39);
                for (int step = 0; step < std::abs(steps); ++step) {
                    x = std::nextafter(x, steps < 0 ? -INFINITY : INFINITY);
                }
            }
            ASSERT_EQ(roundUpWhole(x), roundUpByText(x)) << std::hexfloat << x;
        }
    });
}

TEST(HullRules, PriceAHullByItsMassAndParts) {
    expectCases("core/golden/hulls.txt", [](const Case& given) {
        std::istringstream hull(given["hull type, ftl, thrust, armor, streamline"]);
        HullDesign design;
        hull >> design.hullType >> design.ftl >> design.thrust >> design.armor >> design.streamline;
        std::ostringstream text;
        std::istringstream masses(given["masses"]);
        while (masses >> design.mass) {
            text << "mass " << design.mass << ": ";
            try {
                writeFigures(text, design);
            } catch (const OverflowError& error) {
                text << error.what() << '\n';
            }
        }
        return text.str();
    });
}
