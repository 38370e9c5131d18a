// How a sheet is put together: what is pasted where, in which order, and what is printed.

#include "drawSSD.h"

#include "Error.h"
#include "Sheet.h"
#include "SheetImages.h"
#include "caseFile.h"
#include "sheetWorld.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

using namespace fleetwright;

namespace {

/// Writes down what happens to it, a line each. It is 50 by 100 pixels large, has 20 twips to the
/// pixel and a border of 30 twips, and its letters are 10 pixels high.
class RecordingSheet : public Sheet {
public:
    std::string log;
    std::string picture;  ///< name of the one that was asked for last
    std::string missing;  ///< name of the one that there is not
    int inkY = -1;        ///< where column 2 is black

    /// Hands out pictures that the log calls by their names, those of systems in brackets.
    SheetImages images() {
        return {.file =
                    [this](std::string_view name) {
                        ask(std::string(name));
                        return Raster(1, 1);
                    },
                .system = [this](std::string_view name) -> const Raster& {
                    static const Raster pixel(1, 1);
                    ask('[' + std::string(name) + ']');
                    return pixel;
                }};
    }

    void setPicture(const Raster&) override { log += "picture\n"; }
    int scaleWidth() const override { return 50; }
    int scaleHeight() const override { return (m_height - border) / twipsToThePixel; }
    int controlHeight() const override { return m_height; }
    void setControlHeight(int twips) override {
        m_height = twips;
        log += "height " + std::to_string(twips) + '\n';
    }
    int twipsPerPixel() const override { return twipsToThePixel; }
    void paint(const Raster&, int x, int y) override { log += picture + place({x, y}) + '\n'; }
    void fill(Pen from, Pen to, std::uint32_t colour) override {
        log += "fill" + place(from) + place(to) + (colour == white ? " white\n" : " another\n");
    }
    Pen print(std::string_view text, Pen pen) override {
        std::string lines(text);
        std::replace(lines.begin(), lines.end(), '\r', '\n');
        log += "print" + place(pen) + "{" + lines + "}\n";
        return {0, pen.y + textHeight(text)};
    }
    int textHeight(std::string_view text) const override {
        return 10 * static_cast<int>(std::count(text.begin(), text.end(), '\r'));
    }
    std::uint32_t pixel(int x, int y) const override { return x == 2 && y == inkY ? black : white; }
    void refresh() override { log += "refresh\n"; }

private:
    static constexpr int border = 30, twipsToThePixel = 20;

    static std::string place(Pen pen) {
        return ' ' + std::to_string(pen.x) + ',' + std::to_string(pen.y);
    }
    void ask(const std::string& name) {
        if (name == missing) {
            throw FileError(name, "is missing");
        }
        picture = name;
    }

    int m_height = 100 * twipsToThePixel + border;
};

/// The pieces of a text that stand between slashes.
std::vector<std::string> cut(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> pieces;
    for (std::string piece; std::getline(stream, piece, '/');) {
        pieces.push_back(piece);
    }
    return pieces;
}

/// What is left in the lists.
std::size_t rest(const SheetLists& lists) {
    return lists.lstShipWeap.size() + lists.lstWeaponsF.size() + lists.lstWeaponsP.size() +
           lists.lstWeaponsS.size() + lists.lstWeaponsA.size() + lists.lstWeaponsB.size() +
           lists.lstDCP.size() + lists.lstFirecons.size();
}

/// Draws a ship of these figures: damage points, parties and fire controls.
std::string drawn(const Case& given) {
    const ShipYard yard(arcCatalogue);
    const auto ship = yard.loaded(given["ship"]);
    std::vector<std::string> figures = cut(given["figures"]);
    const SSDMap map = MapFolder().map(given["map"] + "\nDAMROW: (1,2)\nFTL: (3,4)\nTHRUST: (5,6)");
    RecordingSheet sheet;
    sheet.missing = given["missing"];
    sheet.inkY = std::atoi(given["ink"].c_str());
    SheetLists lists;
    lists.lstShipWeap = cut(given["systems"]);
    lists.fillPoints(map);
    lists.fillPoints(map);  // as after an outline that was missing at first
    try {
        drawSSD(sheet, sheet.images(), map, lists,
                {.txtDP = figures.at(0),
                 .txtDCP = figures.at(1),
                 .txtFireCon = figures.at(2),
                 .txtShipName = "Magpie",
                 .txtDesigner = "You",
                 .txtCost = "77",
                 .ship = *ship});
        EXPECT_EQ(rest(lists), 0U);
    } catch (const Error& error) {
        sheet.log += std::string("failed: ") + error.what();
    }
    return sheet.log;
}

}  // namespace

TEST(DrawSSD, PastesPicturesAtThePointsOfTheMap) {
    expectCases("ssd/golden/sheets.txt", drawn);
}

TEST(SheetLists, HoldEachPieceOfEachSystem) {
    SheetLists lists;
    EXPECT_EQ(lists.fillShipWeap(
                  rows({{"FP", "2"}, {"Damage Control Party", "2"}, {"Hidden", "1"}, {"F", "0"}})),
              3);
    EXPECT_EQ(lists.lstShipWeap, (std::vector<std::string>{"FP", "FP", "Damage Control Party",
                                                           "Damage Control Party", "Hidden"}));
    EXPECT_EQ(lists.fillShipWeap(rows({{"damage control party", "1"}})), 1);
    EXPECT_EQ(lists.lstShipWeap.size(), 1U);
    EXPECT_THROW(lists.fillShipWeap(rows({{"FP", "32768"}})), OverflowError);
    EXPECT_THROW(lists.fillShipWeap(rows({{"FP", ""}})), NotANumberError);
}
