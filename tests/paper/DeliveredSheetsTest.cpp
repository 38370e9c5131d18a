// The sheets of all sample ships, as their users hold them in their hands.

#include "DamageTrack.h"
#include "DrawingPack.h"
#include "FreeRoom.h"
#include "PictureReader.h"
#include "SSDMaps.h"
#include "Silhouette.h"
#include "bestMap.h"
#include "bringInOrder.h"
#include "damageBoxes.h"
#include "designCode.h"
#include "paperWorld.h"
#include "paths.h"
#include "readQr.h"
#include "scaledDrawing.h"
#include "sheetDocument.h"
#include "sheetWorld.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>

using namespace fleetwright;

namespace {

constexpr double tolerance = 0.001;

struct GifFiles : PictureReader {
    Raster decode(const std::string&, const std::string&) override { return {}; }
    Raster builtIn(const std::string&) override { return {}; }
};

/// Nothing lies on a code, nor on the white around it. What the drawing has is looked at apart.
void expectAlone(const PageItem& code, const Page& page) {
    const Box box = boxOf(code);
    for (const PageItem& item : page.items) {
        EXPECT_TRUE(!overlap(boxOf(item), box) || &item == &code ||
                    std::holds_alternative<PagePicture>(item));
    }
}

/// No line of text lies on another one, as far as letters without accents reach.
void expectLegible(const PageDocument& document) {
    for (const Page& page : document.pages) {
        std::vector<Box> lines;
        for (const PageItem& item : page.items) {
            if (std::holds_alternative<PageText>(item)) {
                const Box box = boxOf(item);
                lines.push_back({box.x, box.y + box.height / 4, box.width, box.height / 2});
                const auto isUnder = [&](const Box& other) { return overlap(other, lines.back()); };
                EXPECT_TRUE(std::none_of(lines.begin(), lines.end() - 1, isUnder))
                    << std::get<PageText>(item).text;
            }
        }
    }
}

bool isRose(const PagePicture& picture) {
    return picture.drawing->width > 10 * systemPictureSize && picture.place.width < 30;
}

/// Holds a sheet against the pixels of its outline. Damage boxes are measured from line to line.
void expectGood(const VectorSheet& sheet, const Raster& outline, int damageBox) {
    const PageDocument document = sheetDocument({sheet}, {});
    expectInsideMargins(document);
    EXPECT_LE(document.pages.size(), 2U);
    EXPECT_LE(sheetDocument({sheet}, {.paper = {30, 20}}).pages.size(), 20U);
    for (const PageSize& paper : {paperA4, paperLetter, PageSize{105, 148}}) {
        expectLegible(sheetDocument({sheet}, {.paper = paper}));
    }
    const Box ink = inkOf(sheet.record);
    SheetRecord pixels = sheet.record;
    pixels.outline.picture = {nullptr, std::make_shared<const Raster>(outline)};
    const Silhouette silhouette(pixels, ink);
    std::multiset<const Drawing*> inLegend, expected;
    for (const LegendRow& row : sheet.facts.legend) {
        expected.insert(row.picture.drawing.get());
    }
    Box drawing;
    double scale = 0;
    int codes = 0, roses = 0;
    for (const Page& page : document.pages) {
        std::size_t onDrawing = scale == 0 ? 0 : sheet.record.pastes.size() + 1;
        for (const PageItem& item : page.items) {
            const Box box = boxOf(item);
            const auto* const picture = std::get_if<PagePicture>(&item);
            ASSERT_TRUE(picture == nullptr || picture->drawing) << "pixels";
            if (picture != nullptr && onDrawing <= sheet.record.pastes.size()) {
                drawing = onDrawing++ == 0 ? box : drawing;
                scale = drawing.width / ink.width;
                continue;
            }
            if (picture != nullptr && picture->drawing->shapes.size() == 1 &&
                readQr(*picture->drawing, box) == designCode(sheet.shipFile)) {
                ++codes;
                expectAlone(item, page);
            } else if (picture != nullptr && isRose(*picture)) {
                ++roses;
            } else if (picture != nullptr) {
                inLegend.insert(picture->drawing.get());
            }
            const auto [left, right] = silhouette.between((box.y - drawing.y) / scale,
                                                          (box.y + box.height - drawing.y) / scale);
            EXPECT_TRUE(scale == 0 || &page != &document.pages[0] ||
                        drawing.x + left * scale >= box.x + box.width ||
                        drawing.x + right * scale <= box.x)
                << "it lies on the drawing";
        }
    }
    EXPECT_EQ(inLegend, expected);
    EXPECT_EQ(codes, 1) << "no room for the code";
    EXPECT_EQ(roses, sheet.facts.fire == FirePower() ? 0 : 1) << "no room for the rose";
    EXPECT_GE(scale * systemPictureSize, 9 - tolerance);
    EXPECT_GE(scale * damageBox, 4.5 - tolerance);
}

/// Small ships share pages, whatever stands between them, and none is parted from its text.
void expectSharing(const std::vector<VectorSheet>& sheets, bool isPlain, std::size_t mostPages) {
    const PageDocument document = sheetDocument(sheets, {.perPage = 4, .isPlain = isPlain});
    EXPECT_LE(document.pages.size(), mostPages);
    for (const Page& page : document.pages) {
        int parted = 0;
        for (const PageItem& item : page.items) {
            const auto* const text = std::get_if<PageText>(&item);
            const auto* const picture = std::get_if<PagePicture>(&item);
            parted += text != nullptr && text->text.starts_with("Name: ") ? 1 : 0;
            const bool isOutline =
                picture != nullptr && picture->drawing->height > 300 && !isRose(*picture);
            parted -= isOutline ? 1 : 0;
        }
        EXPECT_EQ(parted, 0);
    }
}

/// Holds what the legend says that systems take against the figures of the ship.
void expectAddsUp(const std::vector<LegendRow>& legend, const ShipClass& ship) {
    std::int64_t points = ship.hullFigures().hullCost, mass = ship.g_iMassLeft;
    for (const LegendRow& row : legend) {
        points += row.points;
        mass += row.mass;
    }
    EXPECT_EQ(points, ship.g_lCost);
    EXPECT_EQ(mass, ship.hullFigures().freeMass);
}

/// Each picture is a piece of the system whose picture it is, and each damage point has its box.
void expectKnowsItsPlaces(const VectorSheet& sheet) {
    const std::vector<Box> boxes = damageBoxes(sheet);
    const SheetRecord::Paste& track = sheet.record.pastes.at(0);
    const Box ink = inkOf(track.picture);
    ASSERT_EQ(std::ssize(boxes), sheet.facts.damagePoints);
    EXPECT_EQ(boxes.back().y + boxes.back().height, track.y + ink.height);
    EXPECT_EQ(boxes.front().x, track.x);
    std::map<std::string, std::int32_t> pieces;
    for (const SheetRecord::Paste& paste : sheet.record.pastes) {
        ++pieces[paste.system];
        const auto row = std::ranges::find(sheet.facts.legend, paste.system, &LegendRow::name);
        const bool isBlank = paste.picture.drawing->ink.width == 0;
        ASSERT_EQ(row != sheet.facts.legend.end(), !isBlank && &paste != &track) << paste.system;
        EXPECT_TRUE(paste.system.empty() || row->picture.drawing == paste.picture.drawing);
    }
    for (const LegendRow& row : sheet.facts.legend) {
        EXPECT_TRUE(row.arcs.empty() || pieces[row.name] == row.count) << row.name;
    }
}

}  // namespace

TEST(DeliveredSheets, AreLargeEnoughAndWhole) {
    GifFiles files;
    const DrawingPack drawings(APP_FOLDER "/drawings.dat");
    const LoadedMaps maps = loadMaps(APP_FOLDER);
    std::vector<VectorSheet> sheets;
    for (const auto& file : listFolder(SOURCE_FOLDER "/data/ships", ".shp")) {
        SCOPED_TRACE(file);
        ShipClass ship(
            {std::filesystem::path(SOURCE_FOLDER "/data/weaps.dat"), formula_calculate, {}});
        ASSERT_TRUE(ship.loadShip(file.string()));
        bringInOrder(ship);
        SheetLists lists;
        lists.fillShipWeap(rowsOf(ship));
        const SSDMaps::Map map = bestMap(maps.maps, ship, lists.lstShipWeap);
        ASSERT_TRUE(map);
        const std::int32_t rows = map->iMaxMass > capitalMass
                                      ? ship.g_iDamRows
                                      : trackRows(trackSize(map->iMaxMass), ship.g_iDP);
        const SheetImages images = catalogueImages(picturesReadOnce(PICTURES_FOLDER, files), ship);
        const PictureSize room = trackRoom(map->iMaxMass);
        const VectorSheet& sheet = sheets.emplace_back(vectorSheet(
            shownShip(ship), rowsOf(ship), *map, {outlinesIn(files), images, drawings}));
        EXPECT_EQ(sheet.record.pastes.at(0).width, room.width) << "no damage track";
        expectAddsUp(sheet.facts.legend, ship);
        expectKnowsItsPlaces(sheet);
        expectGood(sheet, files.load(map->outlineFile()),
                   damageTrack(ship.g_iDP, rows, room).side - 1);
    }
    expectSharing(sheets, false, sheets.size() + 1);
    expectSharing(sheets, true, sheets.size() * 4 / 5);
}
