#include "OutlineScan.h"

#include "Error.h"
#include "caseFile.h"
#include "forSeeds.h"
#include "outlines.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

using namespace fleetwright;

namespace {

/// The lines of a scan behind the first.
std::string scanned(const Raster& picture) {
    std::string text = scanOutline(picture, "a.gif");
    std::erase(text, '\r');
    return text.substr(text.find('\n') + 1);
}

/// What an author paints, and what the map says of it around its place.
struct Stroke {
    std::string word, tail;
    std::vector<std::uint32_t> pixels;
};

std::vector<Stroke> allStrokes() {
    std::vector<Stroke> strokes;
    for (const MapMark& mark : mapMarks) {
        if (mark.colour != Yellow && mark.colour != Magenta) {
            strokes.push_back({std::string(mapWord(mark.keyword)), ")\n", {mark.colour}});
        }
    }
    for (const ArcMark& arc : arcMarks) {
        strokes.push_back({"WEAP", std::string(",") + arc.arc + ")\n", {Yellow, arc.colour}});
    }
    for (const std::size_t black : {0U, 1U, 62U, 63U, 64U, 78U, 79U, 80U, 142U, 143U, 144U}) {
        const char* const size = black == 63    ? "SIZE: 18\n"
                                 : black == 79  ? "SIZE: 36\n"
                                 : black == 143 ? "SIZE: 100\n"
                                                : "";
        strokes.push_back({"DAMROW", std::string(")\n") + size, {Magenta}});
        strokes.back().pixels.resize(black + 1, Black);
        strokes.back().pixels.push_back(Raster::white);
    }
    return strokes;
}

/// Paints an outline at random, from the upper left corner on, and says its map.
Raster paintedOutline(std::mt19937& random, std::string& map) {
    static const std::vector<Stroke> strokes = allStrokes();
    static constexpr std::uint32_t plain[] = {Black,    Raster::white, 0xFE0000, 0xFFFF01,
                                              0x0100FF, 0x7F7F7F,      0x010101};
    const int width = anyOf(random, 2, 90);
    std::vector<std::uint32_t> pixels;
    for (int i = 0; i < 300; ++i) {
        const auto length = static_cast<std::size_t>(anyOf(random, 0, 120));
        pixels.insert(pixels.end(), length, plain[anyOf(random, 0, 6)]);
        const Stroke& stroke = strokes[random() % strokes.size()];
        if (static_cast<int>(pixels.size() + 1) % width == 0) {
            pixels.push_back(Raster::white);  // the mark of an arc stands in the weapon's row
        }
        const int place = static_cast<int>(pixels.size());
        map += stroke.word + ": (" + std::to_string(place % width) + ',' +
               std::to_string(place / width) + stroke.tail;
        pixels.insert(pixels.end(), stroke.pixels.begin(), stroke.pixels.end());
    }
    Raster picture(width, static_cast<int>(pixels.size()) / width + 1);
    std::copy(pixels.begin(), pixels.end(), &picture.pixel(0, 0));
    return picture;
}

}  // namespace

TEST(OutlineScan, MakesTheMapOfTheMarks) {
    expectCases("authoring/golden/scans.txt",
                [](const Case& given) { return scanned(outlineOf(given["picture"])); });
    forSeeds([](std::mt19937& random) {
        for (int i = 0; i < 50; ++i) {
            std::string map;
            const Raster outline = paintedOutline(random, map);
            ASSERT_EQ(scanned(outline), map);
        }
    });
}

TEST(OutlineScan, ShowsEachPlaceAndStopsWhenTold) {
    const Raster picture = outlineOf(".YR\n..Y");
    std::string places;
    EXPECT_TRUE(OutlineScan(picture, "a").run([&](int x, int y) {
        places += std::to_string(x) + ',' + std::to_string(y) + ' ';
        return true;
    }));
    EXPECT_EQ(places, "0,0 2,0 0,1 1,1 3,1 ");
    for (int last = 1; last <= 5; ++last) {
        OutlineScan cancelled(picture, "a");
        int pixels = 0;
        EXPECT_FALSE(cancelled.run([&](int, int) { return ++pixels < last; }));
        EXPECT_EQ(pixels, last);
        EXPECT_EQ(cancelled.text(), "Operation Cancelled");
    }
}

TEST(OutlineScan, NamesTheOutlineWithoutItsFolderAndRefusesWhatAMapCannotHold) {
    for (const char* name : {"Ship.gif", "C:\\maps\\Ship.gif", "/a.b/Ship.gif", "\\/Ship.gif"}) {
        EXPECT_EQ(mapFileContents(scanOutline(Raster(), name)), "IMAGE: Ship.gif\r\n\r\n");
    }
    EXPECT_NO_THROW(OutlineScan(Raster(32767, 1), "a"));
    EXPECT_THROW(OutlineScan(Raster(32768, 1), "a"), Error);
    EXPECT_THROW(OutlineScan(Raster(1, 32768), "a"), Error);
}
