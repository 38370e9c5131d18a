#include "paperWorld.h"

#include "FreeRoom.h"
#include "ShipClass.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace fleetwright {

namespace {

std::string place(double x, double y) {
    return std::to_string(std::lround(x * 10)) + ' ' + std::to_string(std::lround(y * 10));
}

/// Where it is, in tenths of a millimetre, and what it says or, of a line, how wide it is.
std::string described(const PageItem& item) {
    const Box at = boxOf(item);
    if (const auto* const text = std::get_if<PageText>(&item)) {
        return place(at.x, at.y) + ' ' + text->text;
    }
    const auto* const line = std::get_if<PageLine>(&item);
    return place(at.x, at.y) + " to " + place(at.x + at.width, at.y + at.height) +
           (line != nullptr ? " of " + std::to_string(std::lround(line->width * 100)) : "");
}

}  // namespace

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

std::string describedPages(const std::vector<Page>& pages) {
    std::string text;
    for (const Page& page : pages) {
        text += "\npage";
        for (auto item = page.items.begin(); item != page.items.end();) {
            const std::string first = described(*item);
            const auto isOther = [&](const PageItem& other) { return described(other) != first; };
            const auto end = std::find_if(item, page.items.end(), isOther);
            text +=
                '\n' + first + (end - item > 1 ? ", " + std::to_string(end - item) + " times" : "");
            item = end;
        }
    }
    return text;
}

}  // namespace fleetwright
