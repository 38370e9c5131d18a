#include "bestMap.h"

#include "Catalogue.h"
#include "Error.h"
#include "HullRules.h"
#include "SheetLists.h"
#include "ShipClass.h"
#include "text.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <optional>
#include <string>
#include <tuple>
#include <utility>

namespace fleetwright {

namespace {

/// A word in the names of maps, and a hull for which such a map is made.
struct KindWord {
    std::string_view word;  // in capitals
    std::int32_t hullType;
};
constexpr KindWord kindWords[] = {
    {"WARSHIP", Warship},       {"MERCHANT", Merchant},       {"Q-SHIP", QShip},
    {"STARBASE", Starbase},     {"BASE", Starbase},           {"STATION", SpaceStation},
    {"STATION", QSpaceStation}, {"Q-STATION", QSpaceStation},
};

/// Whether the first word of a map's name, in capitals, that tells a kind of hull tells this one.
bool isForHull(std::string_view name, std::int32_t hullType) {
    constexpr std::string_view betweenWords = " _.,:;()";
    for (std::size_t at = 0, end = 0; at < name.size(); at = end + 1) {
        end = std::min(name.find_first_of(betweenWords, at), name.size());
        const std::string_view word = name.substr(at, end - at);
        const auto is = [word](const KindWord& kind) { return kind.word == word; };
        if (std::any_of(std::begin(kindWords), std::end(kindWords), is)) {
            return std::any_of(
                std::begin(kindWords), std::end(kindWords),
                [&](const KindWord& kind) { return is(kind) && kind.hullType == hullType; });
        }
    }
    return false;
}

/// What all maps lack if a ship of this mass, with so many systems besides damage control parties,
/// fits on none of them.
std::string whyNoMap(const SSDMaps& maps, std::int32_t mass, std::int32_t iShipWeapCount) {
    const std::string ship = "a ship of mass " + std::to_string(mass);
    if (maps.all().empty()) {
        return "there are no maps";
    }
    if (!fittingMaps(maps, mass, 0).empty()) {
        return "no map for " + ship + " has a place for each of its systems (" +
               std::to_string(iShipWeapCount) + ')';
    }
    const SSDMaps::Map& largest = *std::ranges::max_element(
        maps.all(), {}, [](const SSDMaps::Map& map) { return map->iMaxMass; });
    return "there is no map for " + ship + "; they serve " + std::to_string(largest->iMaxMass) +
           " at the most";
}

}  // namespace

SSDMaps::Map bestMap(const SSDMaps& maps, const ShipClass& ship,
                     const std::vector<std::string>& systems) {
    const auto furtherParties =
        static_cast<std::int32_t>(std::count(systems.begin(), systems.end(), Catalogue::partyName));
    const auto placed = static_cast<std::int32_t>(systems.size()) - furtherParties;
    const auto isTooSmall = [&](const SSDMap& map) {
        return map.iDCPNDX - furtherParties < ship.g_iDCP || map.iFIRECONNDX < ship.g_iFCS;
    };
    const auto size = [&](const SSDMap& map) { return std::pair(isTooSmall(map), map.iMaxMass); };
    const auto kind = [&](const SSDMap& map) {
        std::string name = toCapitals(map.sDisplayName);
        const bool isForOthers = !isForHull(name, ship.Hull());
        return std::tuple(isForOthers, map.iWeapNDX, std::move(name));
    };
    // Most are told apart by their size alone.
    std::vector<SSDMaps::Map> smallest;
    for (const SSDMaps::Map& map : maps.all()) {
        if (!fitsOn(*map, ship.mass(), placed)) {
            continue;
        }
        if (!smallest.empty() && size(*map) < size(*smallest.front())) {
            smallest.clear();
        }
        if (smallest.empty() || size(*map) == size(*smallest.front())) {
            smallest.push_back(map);
        }
    }
    SSDMaps::Map best;
    std::optional<decltype(kind(*best))> bestKind;
    for (const SSDMaps::Map& map : smallest) {
        if (auto found = kind(*map); !bestKind || found < *bestKind) {
            best = map;
            bestKind = std::move(found);
        }
    }
    return best;
}

SSDMaps::Map bestMapOrWhyNone(const SSDMaps& maps, const ShipClass& ship,
                              const std::vector<ListView::Row>& lvCurrentWeapons) {
    SheetLists lists;
    const std::int32_t iShipWeapCount = lists.fillShipWeap(lvCurrentWeapons);
    SSDMaps::Map best = bestMap(maps, ship, lists.lstShipWeap);
    if (!best) {
        throw Error(whyNoMap(maps, ship.mass(), iShipWeapCount));
    }
    return best;
}

}  // namespace fleetwright
