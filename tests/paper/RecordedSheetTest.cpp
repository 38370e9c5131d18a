// What is written down of a sheet, against the pixels of the same one.

#include "RasterSheet.h"
#include "RecordingSheet.h"
#include "drawSSD.h"
#include "forSeeds.h"
#include "scaledDrawing.h"
#include "sheetWorld.h"

using namespace fleetwright;

namespace {

constexpr int outlineWidth = 60, outlineHeight = 48;

/// Every third colour has a drawing, which is known by the colour.
struct Colours : Drawings {
    std::shared_ptr<const Drawing> of(const Raster& picture) const override {
        const std::uint32_t colour = picture.pixel(0, 0);
        const Drawing drawing{
            picture.width(), picture.height(), {}, {{.path = {}, .fill = colour, .stroke = {}}}};
        return colour % 3 == 0 ? std::make_shared<const Drawing>(drawing) : nullptr;
    }
};

/// A map of few places, which lie anywhere, also upon each other and outside.
SSDMap anyMap(std::mt19937& random) {
    const auto point = [&](const std::string& key, const std::string& arc) {
        return key + ": (" + std::to_string(anyOf(random, -25, outlineWidth)) + ',' +
               std::to_string(anyOf(random, -25, outlineHeight)) + arc + ")\n";
    };
    std::string text = "SIZE: " + std::to_string(anyOf(random, 1, 120)) + '\n' +
                       point("DAMROW", "") + point("THRUST", "") + point("FTL", "");
    for (int i = anyOf(random, 0, 8); i > 0; --i) {
        text += point("WEAP", std::string(",") + "FPSAB?"[anyOf(random, 0, 5)]);
        text += point(i % 2 == 0 ? "DCP" : "FIRECON", "");
    }
    return mapOf(text);
}

/// Draws a ship, with pictures of any size in a colour each; what has failed, or nothing.
std::string draw(Sheet& sheet, std::mt19937 random, const SSDMap& map, SheetLists lists,
                 ShipClass& ship) {
    std::uint32_t colour = 0;
    Raster system;
    const auto next = [&](auto) {
        return box(anyOf(random, 1, 20), anyOf(random, 1, 20), ++colour);
    };
    const auto nextSystem = [&](auto name) -> const Raster& { return system = next(name); };
    sheet.setPicture(box(outlineWidth, outlineHeight, 0x999999));
    try {
        drawSSD(sheet, {next, nextSystem}, map, lists,
                {"5", "1", "1", "Magpie", "You", "77", ship});
        return {};
    } catch (const Error& error) {
        return error.what();
    }
}

/// The colour that a page shows at a place, in millimetres.
std::uint32_t colourAt(const Page& page, double x, double y) {
    std::uint32_t colour = 0;
    for (const PageItem& item : page.items) {
        const auto& picture = std::get<PagePicture>(item);
        const Box& clip = picture.clip;
        if (x > clip.x && y > clip.y && x < clip.x + clip.width && y < clip.y + clip.height) {
            colour =
                picture.drawing ? *picture.drawing->shapes[0].fill : picture.raster->pixel(0, 0);
        }
    }
    return colour;
}

}  // namespace

TEST(RecordedSheet, CoversAndFailsAsTheRasterDoes) {
    static constexpr const char* systems[] = {"F", "BAS", "PS", "Listed", "Damage Control Party"};
    const ShipYard yard(arcCatalogue);
    const auto ship = yard.newShip();
    forSeeds([&](std::mt19937& random) {
        for (int round = 0; round < 300; ++round) {
            const SSDMap map = anyMap(random);
            SheetLists lists;
            lists.fillPoints(map);
            for (int i = anyOf(random, 0, 6); i > 0; --i) {
                lists.lstShipWeap.emplace_back(systems[anyOf(random, 0, 4)]);
            }
            Raster raster;
            RasterSheet pixels(raster);
            const Colours colours;
            RecordingSheet recording(colours);
            ASSERT_EQ(draw(recording, random, map, lists, *ship),
                      draw(pixels, random, map, lists, *ship));
            Page page;
            constexpr double pixel = 25.4 / 96;  // millimetres
            putDrawing(page, recording.record(), {0, 0, outlineWidth, outlineHeight}, 0, 0, pixel);
            for (int i = 0; i < outlineWidth * outlineHeight; ++i) {
                const int x = i % outlineWidth, y = i / outlineWidth;
                ASSERT_EQ(colourAt(page, (x + 0.5) * pixel, (y + 0.5) * pixel), raster.pixel(x, y));
            }
        }
    });
}

TEST(RecordedSheet, IsAsLargeAsItsOutlineWhereNothingHasInk) {
    auto paper = std::make_shared<Raster>(box(4, 3, Raster::white));
    const SheetRecord record{.outline = {.picture = {.drawing = {}, .raster = paper},
                                         .width = 4,
                                         .height = 3,
                                         .system = {}},
                             .pastes = {},
                             .text = {}};
    EXPECT_EQ(inkOf(record), (Box{0, 0, 4, 3}));
    paper->pixel(2, 1) = 0;
    EXPECT_EQ(inkOf(record), (Box{2, 1, 1, 1}));
}

TEST(RecordedSheet, KeepsThePixelsOfAPictureOnce) {
    const Colours colours;
    RecordingSheet sheet(colours);
    sheet.setPicture(box(outlineWidth, outlineHeight, 1));
    for (const std::uint32_t colour : {2U, 4U, 2U}) {
        sheet.paint(box(5, 5, colour), 0, 0);
    }
    const std::vector<SheetRecord::Paste>& pastes = sheet.record().pastes;
    EXPECT_EQ(pastes[0].picture.raster, pastes[2].picture.raster);
    EXPECT_NE(pastes[0].picture.raster, pastes[1].picture.raster);
}
