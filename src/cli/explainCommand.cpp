#include "commands.h"

#include "ShipOnScreen.h"
#include "explainShip.h"

#include <algorithm>

namespace fleetwright {

namespace {

std::string line(std::int64_t value, const std::string& text) {
    constexpr std::size_t width = 8;
    const std::string number = std::to_string(value);
    return std::string(width - std::min(width, number.size()), ' ') + number + "  " + text + '\n';
}

}  // namespace

int runExplain(const Options& options) {
    return forEachShip(options, RefusedLines::AsComplaints,
                       [](const std::string&, ShipOnScreen& screen) {
                           std::string text = screen.ship().g_sShipName + '\n';
                           for (const Explanation& explanation : explainShip(screen.ship())) {
                               for (const Explanation::Term& term : explanation.terms) {
                                   text += line(term.value, term.text);
                               }
                               text += line(explanation.sum, "= " + explanation.figure);
                           }
                           return text;
                       });
}

}  // namespace fleetwright
