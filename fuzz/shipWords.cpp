#include "shipWords.h"

#include "Error.h"
#include "TemporaryFolder.h"
#include "explainShip.h"
#include "files.h"
#include "require.h"
#include "text.h"

#include <algorithm>
#include <numeric>

namespace fleetwright {

std::string deliveredCatalogue(const TemporaryFolder& folder) {
    const std::string text = readTextFile(SOURCE_FOLDER "/data/weaps.dat");
    std::string records;
    LineReader lines(text);
    std::string_view line;
    while (lines.next(line)) {
        if (!isCatalogueComment(line)) {
            records.append(line).append("\r\n");
        }
    }
    return folder.write("delivered.dat", records);
}

std::string figuresOf(const ShipClass& ship) {
    return "cost " + std::to_string(ship.g_lCost) + ", points " + std::to_string(ship.g_iDP) +
           ", rows " + std::to_string(ship.g_iDamRows) + ", parties " +
           std::to_string(ship.g_iDCP) + ", controls " + std::to_string(ship.g_iFCS) +
           ", mass left " + std::to_string(ship.g_iMassLeft) + ", hull cost " +
           std::to_string(ship.hullFigures().hullCost) + '\n';
}

std::string describe(const ShipClass& ship, bool withDebts) {
    const HullDesign& hull = ship.hullDesign();
    std::string text = ship.g_sShipName + '\n' + ship.g_sDesignerName + "\nmass " +
                       std::to_string(hull.mass) + ", hull " + std::to_string(hull.hullType) +
                       ", armor " + std::to_string(hull.armor) + ", streamline " +
                       std::to_string(hull.streamline) + ", ftl " + std::to_string(hull.ftl) +
                       ", thrust " + std::to_string(hull.thrust) + '\n' + figuresOf(ship);
    for (const auto& [record, amount] : ship.state().amounts) {
        if (amount > 0 || withDebts) {
            text += std::to_string(record) + " x " + std::to_string(amount) + '\n';
        }
    }
    return text;
}

void requireSums(ShipClass& ship) {
    for (const Explanation& figure : explainShip(ship)) {
        const std::int64_t sum =
            std::accumulate(figure.terms.begin(), figure.terms.end(), std::int64_t{0},
                            [](std::int64_t s, const auto& term) { return s + term.value; });
        require(sum == figure.sum, "a figure is the sum of its terms");
    }
}

HullDesign inOrder(HullDesign hull) {
    hull.mass = std::max(hull.mass, smallestMass);
    if (isBase(hull.hullType)) {
        hull.ftl = NoDrive;
        hull.thrust = 0;
        hull.streamline = 0;
    }
    return hull;
}

bool breaksCloakRule(const ShipClass& ship) {
    const std::vector<WeapRec> aboard = ship.systemsAboard();
    return isMerchantType(ship.Hull()) && aboard.size() > 1 &&
           std::any_of(aboard.begin(), aboard.end(),
                       [](const WeapRec& record) { return record.name == Catalogue::cloakName; });
}

bool overflowsOnTheWay(const ShipClass& ship, const ShipServices& services) {
    const ShipState whole = ship.state();
    ShipClass part(services);
    ShipState state = part.state();
    state.hull = whole.hull;
    for (const auto& system : whole.amounts) {
        state.amounts.push_back(system);
        part.restore(state);
        try {
            part.weapChange();
        } catch (const OverflowError&) {
            return true;
        }
    }
    return false;
}

}  // namespace fleetwright
