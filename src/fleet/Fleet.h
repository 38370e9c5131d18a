#pragma once

// A fleet: ships that play together, how many of each, and what they must not go beyond. Plain
// values; fleetFile.h reads and writes them, FleetSum.h adds them up.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace fleetwright {

/// What of one kind of ship a fleet may have at most.
struct FleetLimit {
    enum class Unit { Ships, Points };

    std::string kind;       ///< one of `shipKinds`: a hull type, a class or a designation
    std::int32_t most = 0;  ///< 0 or more
    Unit unit = Unit::Ships;

    friend bool operator==(const FleetLimit&, const FleetLimit&) = default;
};

/// A design in a fleet, and how many ships of it there are.
struct FleetShip {
    static constexpr std::int32_t mostCount = 10'000;

    /// The ship file or sheet, from the fleet file's folder on, "/" between folders; or a code that
    /// holds the design.
    std::string file;
    std::int32_t count = 1;  ///< 1 to `mostCount`
    /// The names of its ships, `count` at most. See `ownName` for those that
    /// have none, or an empty one.
    std::vector<std::string> names;
    std::string notes;        ///< lines with "\n" between them
    std::string fingerprint;  ///< of its text when the fleet was written; empty if not known
    std::string asRead;       ///< its lines in the file that it was read from

    friend bool operator==(const FleetShip&, const FleetShip&) = default;
};

struct Fleet {
    /// Of designs, in a file. What so many ships come to fits into 64 bits, whatever they are.
    static constexpr std::size_t mostDesigns = 100'000;

    std::string name;
    std::string player;
    std::string notes;                        ///< lines with "\n" between them
    std::optional<std::int32_t> pointsLimit;  ///< 0 or more
    std::vector<FleetLimit> limits;
    std::string catalogue;  ///< its fingerprint when the fleet was written; empty if not known
    std::vector<FleetShip> ships;
    /// The lines in front of the ships in the file that it was read from. What nobody has changed
    /// is written as it stands here and in `FleetShip::asRead`, down to the last blank.
    std::string asRead;

    friend bool operator==(const Fleet&, const Fleet&) = default;
};

/// Whether one of a design's ships has been given such a name.
inline bool isNameOf(const FleetShip& ship, const std::string& name) {
    return std::find(ship.names.begin(), ship.names.end(), name) != ship.names.end();
}

/// The name of one of a design's ships, `index` from 0 on. `shipName` is that of the design, which
/// is numbered where there are several, by numbers that none of the other names has.
inline std::string ownName(const FleetShip& ship, std::size_t index, const std::string& shipName) {
    if (index < ship.names.size() && !ship.names[index].empty()) {
        return ship.names[index];
    }
    if (ship.count == 1) {
        return shipName;
    }
    std::string name;
    // A number of another ship's is never come to, however often this goes on.
    for (std::size_t number = index + 1; name.empty() || isNameOf(ship, name);
         number += static_cast<std::size_t>(ship.count)) {
        name = shipName + ' ' + std::to_string(number);
    }
    return name;
}

/// How many ships a fleet has, of all designs.
inline std::int64_t shipCount(const Fleet& fleet) {
    std::int64_t count = 0;
    for (const FleetShip& ship : fleet.ships) {
        count += ship.count;
    }
    return count;
}

}  // namespace fleetwright
