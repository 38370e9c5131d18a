#include "SheetLists.h"

#include "SSDMap.h"
#include "ShipClass.h"
#include "arcWords.h"
#include "checkedArithmetic.h"
#include "wholeNumber.h"

namespace fleetwright {

namespace {

void fillDescending(PointList& list, std::int16_t count) {
    list.clear();
    for (std::int16_t i = count; i > 0; --i) {
        list.push_back(static_cast<std::int16_t>(i - 1));
    }
}

}  // namespace

std::int32_t SheetLists::fillShipWeap(const std::vector<ListView::Row>& lvCurrentWeapons) {
    lstShipWeap.clear();
    std::int32_t iShipWeapCount = 0;
    for (const ListView::Row& row : lvCurrentWeapons) {
        const auto count = narrow<std::int16_t>(wholeNumber(row.subItem));
        if (count > 0) {
            lstShipWeap.insert(lstShipWeap.end(), static_cast<std::size_t>(count), row.key);
            iShipWeapCount += row.key == Catalogue::partyName ? 0 : count;
        }
    }
    return iShipWeapCount;
}

void SheetLists::fillPoints(const SSDMap& map) {
    for (const char arc : sheetArcs) {
        weaponsIn(arc)->clear();
    }
    for (std::int16_t i = 0; i < map.iWeapNDX; ++i) {
        const std::string& arc = map.getWeapPntArc(i);
        if (isMapArc(arc)) {
            weaponsIn(arc.front())->push_back(i);
        }
    }
    fillDescending(lstFirecons, map.iFIRECONNDX);
    fillDescending(lstDCP, map.iDCPNDX);
}

std::int16_t SheetLists::pickWeapPoint(const ShipClass& ship, std::string_view name) {
    for (const char arc : ship.GimmeWeapArc(name)) {
        PointList* const list = weaponsIn(arc);
        if (list != nullptr && !list->empty()) {
            const std::int16_t point = list->front();
            list->pop_front();
            return point;
        }
    }
    return 0;
}

PointList* SheetLists::weaponsIn(char arc) {
    switch (arc) {
    case 'F':
        return &lstWeaponsF;
    case 'P':
        return &lstWeaponsP;
    case 'S':
        return &lstWeaponsS;
    case 'A':
        return &lstWeaponsA;
    case 'B':
        return &lstWeaponsB;
    default:
        return nullptr;
    }
}

}  // namespace fleetwright
