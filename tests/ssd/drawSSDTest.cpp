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

std::ostream& operator<<(std::ostream& out, Pen pen) {
    return out << ' ' << pen.x << ',' << pen.y;
}

/// Writes down what happens to it, a line each. It is 50 by 100 pixels large, has 20 twips to the
/// pixel and a border of 30 twips, and its letters are 10 pixels high.
class RecordingSheet : public Sheet {
public:
    std::ostringstream log;
    std::string missing;  ///< name of the picture that there is not
    int inkY = 0;         ///< where column 2 is black

    /// Hands out pictures that the log calls by their names, those of systems in brackets.
    SheetImages images() {
        return {[this](auto name) { return find(std::string(name)); },
                [this](auto name) -> const Raster& { return find('[' + std::string(name) + ']'); }};
    }

    void setPicture(const Raster&) override { log << "picture\n"; }
    int scaleWidth() const override { return 50; }
    int scaleHeight() const override { return (m_height - border) / twipsToThePixel; }
    int controlHeight() const override { return m_height; }
    void setControlHeight(int twips) override {
        m_height = twips;
        log << "height " << twips << '\n';
    }
    int twipsPerPixel() const override { return twipsToThePixel; }
    void paint(const Raster&, int x, int y) override { log << m_found << Pen{x, y} << '\n'; }
    void fill(Pen from, Pen to, std::uint32_t colour) override {
        log << "fill" << from << to << (colour == white ? " white\n" : " another\n");
    }
    Pen print(std::string_view text, Pen pen) override {
        std::string lines(text);
        std::replace(lines.begin(), lines.end(), '\r', '\n');
        log << "print" << pen << '{' << lines << "}\n";
        return {0, pen.y + textHeight(text)};
    }
    int textHeight(std::string_view text) const override {
        return 10 * static_cast<int>(std::count(text.begin(), text.end(), '\r'));
    }
    std::uint32_t pixel(int x, int y) const override { return x == 2 && y == inkY ? black : white; }
    void refresh() override { log << "refresh\n"; }

private:
    static constexpr int border = 30, twipsToThePixel = 20;

    const Raster& find(const std::string& name) {
        static const Raster picture(1, 1);
        m_found = name;
        return name == missing ? throw FileError(name, "is missing") : picture;
    }

    std::string m_found;  // what is painted next
    int m_height = 100 * twipsToThePixel + border;
};

/// Draws a ship of these figures: damage points, parties and fire controls.
std::string drawn(const Case& given) {
    const ShipYard yard(arcCatalogue);
    const auto ship = yard.loaded(given["ship"]);
    const std::vector<std::string> figures = linesOf(given["figures"]);
    const SSDMap map = mapOf(given["map"] + "\nTHRUST: (5,6)\nFTL: (3,4)\nDAMROW: (1,2)");
    RecordingSheet sheet;
    sheet.missing = given["missing"];
    sheet.inkY = std::atoi(given["ink"].c_str());
    SheetLists lists;
    lists.lstShipWeap = {"from an earlier sheet"};
    lists.fillPoints(map);
    lists.fillPoints(map);  // as after an outline that was missing at first
    std::vector<ListView::Row> aboard;
    for (const std::string& line : linesOf(given["systems"])) {
        const std::size_t colon = line.find(':');
        aboard.push_back(
            {.key = line.substr(0, colon), .text = {}, .subItem = line.substr(colon + 1)});
    }
    try {
        sheet.log << lists.fillShipWeap(aboard) << " systems\n";
        drawSSD(sheet, sheet.images(), map, lists,
                {figures.at(0), figures.at(1), figures.at(2), "Magpie", "You", "77", *ship});
        EXPECT_EQ(lists, SheetLists());
    } catch (const Error& error) {
        sheet.log << "failed: " << error.what();
    }
    return sheet.log.str();
}

}  // namespace

TEST(DrawSSD, PastesPicturesAtThePointsOfTheMap) {
    expectCases("ssd/golden/sheets.txt", drawn);
}
