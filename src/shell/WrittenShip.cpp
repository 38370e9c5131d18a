#include "WrittenShip.h"

#include "Error.h"
#include "ShipFileLine.h"
#include "text.h"
#include "wholeNumber.h"

#include <array>
#include <cstddef>

namespace fleetwright {

WrittenShip WrittenShip::of(std::string_view shipFile) {
    static const std::string nameKey = shipLine(ShipKey::ShipName),
                             massKey = shipLine(ShipKey::Mass);
    // In this order; between the last two and behind them there may be others.
    static const std::array keys = {nameKey,
                                    shipLine(ShipKey::DesignerName),
                                    massKey,
                                    shipLine(ShipKey::Thrust),
                                    shipLine(ShipKey::Type),
                                    shipLine(ShipKey::Ftl)};
    WrittenShip ship;
    std::size_t found = 0;
    LineReader lines(shipFile);
    for (std::string_view line; found < keys.size() && lines.next(line);) {
        found += line.starts_with(keys.at(found)) ? 1U : 0U;
        if (line.starts_with(nameKey)) {
            ship.name = line.substr(nameKey.size());
        } else if (line.starts_with(massKey)) {
            try {
                ship.mass = wholeNumber(line.substr(massKey.size()));
            } catch (const Error&) {
                return {};
            }
        }
    }
    ship.isWhole = found == keys.size() && shipFile.ends_with("\r\n");
    return ship;
}

}  // namespace fleetwright
