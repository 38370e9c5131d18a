#include "paperWorld.h"

#include "ShipClass.h"

#include <gtest/gtest.h>

namespace fleetwright {

namespace {

struct Covered {
    Box operator()(const PageText& text) const {
        // From accents on capitals to the lower ends of letters.
        return {text.x, text.y - 0.96 * text.size, textWidth(text.text, text.size, text.font),
                1.21 * text.size};
    }
    Box operator()(const PageLine& line) const {
        return {line.x1, line.y1, line.x2 - line.x1, line.y2 - line.y1};
    }
    Box operator()(const PageRectangle& rectangle) const { return rectangle.place; }
    Box operator()(const PagePicture& picture) const { return picture.clip; }
};

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

Box boxOf(const PageItem& item) {
    return std::visit(Covered(), item);
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
