#include "paperWorld.h"

#include "FreeRoom.h"
#include "ShipClass.h"

#include <gtest/gtest.h>

namespace fleetwright {

SheetShip shownShip(ShipClass& ship) {
    return {std::to_string(ship.g_iDP),
            std::to_string(ship.g_iDCP),
            std::to_string(ship.g_iFCS),
            ship.g_sShipName,
            ship.g_sDesignerName,
            std::to_string(ship.g_lCost),
            ship};
}

std::vector<ListView::Row> rowsOf(const ShipClass& ship) {
    std::vector<ListView::Row> rows;
    for (const WeapRec& record : ship.systemsAboard()) {
        rows.push_back({std::string(record.name), {}, std::to_string(record.amount)});
    }
    return rows;
}

void expectInsideMargins(const PageDocument& document) {
    constexpr double least = paperMargin - 0.001;
    for (const Page& page : document.pages) {
        for (const PageItem& item : page.items) {
            const Box box = boxOf(item);
            EXPECT_TRUE(box.x >= least && box.y >= least &&
                        box.x + box.width <= document.size.width - least &&
                        box.y + box.height <= document.size.height - least)
                << box.x << ' ' << box.y;
        }
    }
}

}  // namespace fleetwright
