// Sheets on pages: what stands where, and what they become as a file.

#include "PictureFiles.h"
#include "base64.h"
#include "carriedShips.h"
#include "caseFile.h"
#include "fleetDocument.h"
#include "fleetFile.h"
#include "fontTables.h"
#include "paperWorld.h"
#include "sheetHeader.h"
#include "sheetWorld.h"
#include "svgFile.h"
#include "thumbnailPage.h"

#include <regex>

using namespace fleetwright;

namespace {

constexpr std::string_view pageCatalogue =
    "Lance (FP),2 * amount,6 * amount,BEAM,BEAM,FPB,lance.gif\n#> Two dice: 3+ near, 6 far. Then "
    "on 4+.\n"
    "Turret (All),amount,4 * amount,BEAM,BEAM,BFAPS,turret.gif\n"
    "Ward,roundup(amount / 2),3,DEFENSE,DEFENSE,BAPS,ward.gif\n"
    "Lamp,1,1,SYSTEMS,SYSTEMS,AP,lamp.gif\n"
    "Hold,3 * amount,amount,SYSTEMS,SYSTEMS,O,hold.gif\n"
    "Hold of a kind that nobody would have thought of if there had not been a name to be longer "
    "than its room,0,0,SYSTEMS,SYSTEMS,O,hold.gif\n#> It holds what it holds, and what it does not "
    "hold it does not hold, which is more than can be said of many that are said to hold a great "
    "deal more than it does but do not hold it when it comes to holding, as it does in the end to "
    "all that is held, however well it was held, and whoever held it.\n"
    "Damage Control Party,amount,4 * amount,SYSTEMS,SYSTEMS,O,party.gif\n";

/// Pictures without drawings, and no files.
struct Paper : PictureFiles, PictureEncoder, Drawings {
    Raster outline;

    Raster load(const std::filesystem::path&) override { return outline; }
    Raster builtIn(const std::string&) override { return {}; }
    std::string encode(const Raster&, const std::string& format) override { return format; }
    std::shared_ptr<const Drawing> of(const Raster&) const override { return nullptr; }
};

/// The sheet of a ship on a black outline, with its points one upon the other; aboard are systems,
/// too, that have gone from the catalogue since.
VectorSheet sheetOf(const std::string& shipFile, const std::string& width,
                    const std::string& height, const std::string& gone = {}) {
    static const ShipYard yard(pageCatalogue);
    static const Raster picture = box(32, 32, 0x336699);
    const auto ship = yard.loaded(shipFile);
    std::string map = "IMAGE: a.gif\nSIZE: 100\nWEAP: (10,10,B)\n";
    for (int i = 0; i < 5; ++i) {
        map += "DCP: (10,10)\nFIRECON: (10,10)\n";
    }
    Paper paper;
    paper.outline = box(std::stoi(width), std::stoi(height), 0);
    const SheetImages images = {[](auto) { return picture; },
                                [](auto) -> const Raster& { return picture; }};
    std::vector<ListView::Row> aboard = rowsOf(*ship);
    for (const std::string& name : linesOf(gone)) {
        aboard.push_back({name, {}, "2"});
    }
    const Connection told = ship->WeaponNotFound.connect([] { ADD_FAILURE() << "a message"; });
    return vectorSheet(shownShip(*ship), aboard, mapOf(map), {outlinesIn(paper), images, paper});
}

/// A table of a font file.
std::string tableOf(const std::string& font, std::string_view name) {
    for (std::size_t at = 12; at < font.size(); at += 16) {
        if (font.compare(at, name.size(), name) == 0) {
            return font.substr(fontNumber(font, at + 8, 4), fontNumber(font, at + 12, 4));
        }
    }
    return {};
}

/// What a font says of all its signs, and what they are: the edges and the widest.
void expectSumsIn(const std::string& font) {
    const auto half = [](const std::string& table, std::size_t at) {
        return static_cast<std::int16_t>(fontNumber(table, at, 2));
    };
    const std::string glyphs = tableOf(font, "glyf"), places = tableOf(font, "loca"),
                      head = tableOf(font, "head"), lines = tableOf(font, "hhea"),
                      widths = tableOf(font, "hmtx");
    std::vector<int> sums = {0, 0, 0, 0, 0};
    for (std::size_t i = 0; i + 4 < places.size(); i += 4) {
        const std::size_t at = fontNumber(places, i, 4);
        for (std::size_t side = 0; side < 4 && at < fontNumber(places, i + 4, 4); ++side) {
            const int edge = half(glyphs, at + 2 + 2 * side);
            sums[side] = side < 2 ? std::min(sums[side], edge) : std::max(sums[side], edge);
        }
        sums[4] = std::max<int>(sums[4], half(widths, i));
    }
    const std::vector<int> said = {half(head, 36), half(head, 38), half(head, 40), half(head, 42),
                                   half(lines, 10)};
    EXPECT_EQ(said, sums);
    EXPECT_EQ(half(lines, 34), static_cast<int>(places.size() / 4 - 1));
}

}  // namespace

TEST(SheetPages, HaveAPlaceForEverything) {
    expectCases("paper/golden/pages.txt", [](const Case& given) {
        const std::vector<std::string> size = linesOf(given["outline"]);
        std::vector<VectorSheet> sheets;
        for (const std::string& name : linesOf(given["names"])) {
            sheets.push_back(sheetOf("Ship Name: " + name + '\n' + given["ship"], size.at(0),
                                     size.at(1), given["gone"]));
        }
        const double side = std::atof(given["square paper"].c_str());
        const SheetOptions options = {.paper = side > 0 ? PageSize{side, side} : paperA4,
                                      .perPage = std::atoi(given["per page"].c_str()),
                                      .isPlain = given["plain"] == "yes"};
        const PageDocument document = sheetDocument(sheets, options);
        expectInsideMargins(document);
        SheetSeries series{{},
                           [&](std::size_t i) { return std::make_shared<VectorSheet>(sheets[i]); },
                           [&](std::size_t i) { return sheets[i].shipFile; }};
        for (const VectorSheet& sheet : sheets) {
            series.notes.push_back(noteOf(sheet, options));
        }
        const PageDocument made = sheetDocument(std::move(series), options);
        std::vector<Page> pages;
        made.eachPage([&](const Page& page) { pages.push_back(page); });
        EXPECT_EQ(describedPages(pages), describedPages(document.pages));
        EXPECT_EQ(made.metadata, document.metadata);
        Paper paper;
        EXPECT_EQ(svgFile(made, paper), svgFile(document, paper));
        return document.title + "; " + document.author + "; " + document.subject +
               describedPages(document.pages);
    });
}

TEST(SheetPages, OfAFleetBearTheNamesOfItsShips) {
    const Fleet fleet = parseFleet("FleetWright fleet 1\nship = a.shp\ncount = 2\nnamed = Ann\n"
                                   "ship = lost.shp\nship = a.shp\n")
                            .fleet;
    const FleetRows rows(fleet.ships.size(), std::make_shared<const FleetRow>());
    const auto sheet =
        std::make_shared<const VectorSheet>(sheetOf("Ship Name: Wasp\nMass: 8\n", "60", "60"));
    const SheetOptions options;
    const PageDocument document = fleetDocument(
        fleet, rows, FleetSeries(fleet, options).series({sheet, nullptr, sheet}), options);
    std::string contents;
    document.eachPage([&contents](const Page& page) {
        for (const std::string& name : page.contents) {
            contents += name + "; ";
        }
    });
    EXPECT_EQ(contents, "Roster; Ann; Wasp 2; Wasp; ");
    EXPECT_EQ(shipsIn("%PDF-1.6 <?xpacket begin=\"\"?>" + document.metadata +
                      "<?xpacket end=\"w\"?> %%EOF")
                  .size(),
              3);
}

TEST(SheetPages, BecomeAnSvgFile) {
    Paper paper;
    const auto drawing = std::make_shared<const Drawing>(
        Drawing{.width = 10,
                .height = 20,
                .ink = {1, 2, 3, 4},
                .shapes = {{.path = "M1 2L4 6", .fill = {}, .stroke = 0xFF}}});
    const auto wide =
        std::make_shared<const Drawing>(Drawing{.width = 10,
                                                .height = 20,
                                                .ink = {1, 2, 10, 4},
                                                .shapes = {{.path = "M0 0L1 2Z",
                                                            .fill = 0x8,
                                                            .stroke = 0x123456,
                                                            .strokeWidth = 0.5,
                                                            .cap = DrawnShape::Cap::Round,
                                                            .join = DrawnShape::Join::Bevel,
                                                            .opacity = 0.25,
                                                            .isEvenOdd = true}}});
    const auto nothing = std::make_shared<const Drawing>();
    const auto raster = std::make_shared<const Raster>(3, 4);
    PageDocument document{.size = {50, 40},
                          .pages = {},
                          .title = "<Ship & \x01\"Co\">",
                          .author = "You",
                          .subject = "A ship",
                          .language = "en",
                          .date = {},
                          .metadata = "<ship xmlns='x'/>"};
    document.pages.resize(2);
    document.pages[0].items = {PagePicture{drawing, nullptr, {1, 2, 5, 10}, {1, 2, 5, 10}},
                               PagePicture{drawing, nullptr, {1, 2, 5, 10}, {1, 2, 2.5, 10}},
                               PagePicture{nullptr, raster, {0, 0, 3, 4}, {0, 0, 3, 4}},
                               PagePicture{wide, nullptr, {0, 0, 5, 10}, {0, 1, 5, 9}},
                               PagePicture{nothing, nullptr, {0, 0, 5, 10}, {0, 0, 5, 10}},
                               PageLine{1, 2, 3, 1.0 / 3, 0.25, 0xABCDEF},
                               PageLine{-0.00004, -12345.67899, 70.05, 0.00025, 1e10, 1}};
    document.pages[1].items = {PageText{"\x03"}, PageText{"ink", 4, 5, 6},
                               PageText{"a  <b>\r\t\x7F\xFF\uFFFE\u5DE1\U0001F680", 1, 2, 3,
                                        PageFont::Bold, PageText::Anchor::End, 0x123456},
                               PageRectangle{{1, 1, 2, 2}, 0xFFFFFF, 0, 0.5, 1},
                               PageRectangle{{1, 1, 3, 2}, {}, {}, 0.5, 0}};
    const std::regex fontBytes("(font/ttf;base64,AAEAAAAK)[A-Za-z0-9+/]*=*");
    expectCases("paper/golden/svg.txt", [&](const Case&) {
        return std::regex_replace(svgFile(document, paper), fontBytes, "$1");
    });
}

TEST(SheetPages, OfThumbnailsShareASquare) {
    SheetRecord ship;
    ship.outline.picture.raster = std::make_shared<const Raster>(box(40, 20, 0));
    ship.outline.width = 40;
    ship.outline.height = 20;
    std::vector<Page> pages;
    for (std::size_t count = 1; count <= 5; ++count) {
        pages.push_back(thumbnailPage(std::vector(count, ship)));
    }
    pages.push_back(thumbnailPage({trackRecord(5, 2)}));
    EXPECT_EQ(describedPages(pages),
              "\npage\n20 260 to 980 740"
              "\npage\n20 385 to 480 615\n520 385 to 980 615"
              "\npage\n20 135 to 480 365\n520 135 to 980 365\n270 635 to 730 865"
              "\npage\n20 135 to 480 365\n520 135 to 980 365"
              "\n20 635 to 480 865\n520 635 to 980 865"
              "\npage\n20 135 to 480 365\n520 135 to 980 365"
              "\n20 635 to 480 865\n520 635 to 980 865"
              "\npage\n20 163 to 980 837");
}

TEST(SheetPages, HaveARowForAFigureThatIsTooWide) {
    Page page;
    putBlock(page,
             figuresBlock({{"HULL", "Sloop"}, {"DRIVE", std::string(40, 'W')}, {"MASS", "2"}}, 50),
             0, 0);
    EXPECT_EQ(describedPages({page}),
              "\npage\n0 0 to 500 0 of 50\n0 7 HULL\n0 31 Sloop\n0 86 DRIVE\n0 126 " +
                  std::string(21, 'W') + "…\n0 165 MASS\n0 189 2\n0 237 to 500 237 of 20");
}

TEST(SheetPages, JoinArabicLettersInAnSvgFile) {
    Paper paper;
    PageDocument document;
    document.pages = {{{PageText{.text = "\u0633\u0644\u0627\u0645"}}}};
    const std::string svg = svgFile(document, paper);
    EXPECT_EQ(svg.find("textLength"), std::string::npos)
        << "the width is not that of joined letters";
    constexpr std::string_view start = "base64,";
    const std::size_t font = svg.find(start) + start.size();
    const std::string bytes = fromBase64(svg.substr(font, svg.find(')', font) - font)).value_or("");
    expectSumsIn(bytes);
    const std::u32string ends = U"\uFE82\uFE82\uFE8D\uFE8E\uFEB1\uFEB4\uFEDD\uFEE4\uFEF5\uFEFC";
    for (std::size_t i = 0; i < ends.size(); i += 2) {
        std::string group;  // of the table of characters
        addFontNumber(group, ends[i], 4);
        addFontNumber(group, ends[i + 1], 4);
        EXPECT_NE(bytes.find(group), std::string::npos) << i;
    }
}
