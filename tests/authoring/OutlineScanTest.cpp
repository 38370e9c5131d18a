#include "OutlineScan.h"

#include "Error.h"
#include "caseFile.h"
#include "forSeeds.h"
#include "outlines.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace fleetwright;

namespace {

/// The lines of a scan behind the first.
std::string scanned(const Raster& picture) {
    std::string text = scanOutline(picture, "a.gif");
    EXPECT_EQ(text.substr(0, 14), "IMAGE: a.gif\r\n");
    text.erase(0, 14);
    std::erase(text, '\r');
    return text;
}

/// An outline that is painted at random from the upper left corner on, and its map.
class PaintedOutline {
public:
    explicit PaintedOutline(std::mt19937& random)
        : m_random(random), m_width(anyOf(random, 2, 90)) {
        for (int i = 0; i < 300; ++i) {
            paintSomething();
        }
        picture = Raster(m_width, static_cast<int>(m_pixels.size()) / m_width + 1);
        for (std::size_t i = 0; i < m_pixels.size(); ++i) {
            const int place = static_cast<int>(i);
            picture.pixel(place % m_width, place / m_width) = m_pixels[i];
        }
    }

    Raster picture;
    std::string map;

private:
    void paintSomething() {
        static constexpr std::uint32_t plain[] = {Black,    Raster::white, 0xFE0000, 0xFFFF01,
                                                  0x0100FF, 0x7F7F7F,      0x010101};
        static constexpr std::pair<const char*, std::uint32_t> marks[] = {
            {"FIRECON", Red}, {"THRUST", Green}, {"DCP", Blue}, {"FTL", Cyan}};
        static constexpr std::pair<const char*, std::uint32_t> arcs[] = {
            {"F", Red}, {"P", Blue}, {"S", Green}, {"A", Cyan}, {"B", Magenta}};
        switch (anyOf(m_random, 0, 3)) {
        case 0:
            m_pixels.insert(m_pixels.end(), static_cast<std::size_t>(anyOf(m_random, 1, 120)),
                            plain[anyOf(m_random, 0, 6)]);
            return;
        case 1: {
            const auto& [word, colour] = marks[anyOf(m_random, 0, 3)];
            return addMark(word, colour);
        }
        case 2: {
            const auto& [arc, colour] = arcs[anyOf(m_random, 0, 4)];
            if (static_cast<int>(m_pixels.size() + 1) % m_width == 0) {
                m_pixels.push_back(Raster::white);  // an arc's mark stands in the weapon's row
            }
            addMark("WEAP", Yellow, std::string(",") + arc);
            return m_pixels.push_back(colour);
        }
        default:
            return addTrack();
        }
    }

    void addMark(const std::string& word, std::uint32_t colour, const std::string& arc = "") {
        const int place = static_cast<int>(m_pixels.size());
        map += word + ": (" + std::to_string(place % m_width) + ',' +
               std::to_string(place / m_width) + arc + ")\n";
        m_pixels.push_back(colour);
    }

    void addTrack() {
        static constexpr int lengths[] = {0, 1, 62, 63, 64, 78, 79, 80, 142, 143, 144};
        const int black = lengths[anyOf(m_random, 0, 10)];
        addMark("DAMROW", Magenta);
        m_pixels.insert(m_pixels.end(), static_cast<std::size_t>(black), Black);
        m_pixels.push_back(Raster::white);
        map += black == 63 ? "SIZE: 18\n" : black == 79 ? "SIZE: 36\n" : "";
        map += black == 143 ? "SIZE: 100\n" : "";
    }

    std::mt19937& m_random;
    int m_width;
    std::vector<std::uint32_t> m_pixels;
};

}  // namespace

TEST(OutlineScan, MakesTheMapOfTheMarks) {
    expectCases("authoring/golden/scans.txt",
                [](const Case& given) { return scanned(outlineOf(given["picture"])); });
    forSeeds([](std::mt19937& random) {
        for (int i = 0; i < 50; ++i) {
            const PaintedOutline outline(random);
            ASSERT_EQ(scanned(outline.picture), outline.map);
        }
    });
}

TEST(OutlineScan, NamesTheOutlineWithoutItsFolder) {
    for (const char* name :
         {"Ship 1.gif", "C:\\maps\\Ship 1.gif", "/a.b/Ship 1.gif", "\\/Ship 1.gif"}) {
        EXPECT_EQ(scanOutline(Raster(3, 2), name), "IMAGE: Ship 1.gif\r\n");
    }
    EXPECT_EQ(mapFileContents(scanOutline(Raster(), "")), "IMAGE: \r\n\r\n");
}

TEST(OutlineScan, ShowsEachPlaceAndStopsWhenTold) {
    const Raster picture = outlineOf(".YR\n..Y");
    std::string places, stretches;
    EXPECT_TRUE(OutlineScan(picture, "a").run([&](int x, int y) {
        places += std::to_string(x) + ',' + std::to_string(y) + ' ';
        return true;
    }));
    EXPECT_EQ(places, "0,0 2,0 0,1 1,1 3,1 ");
    EXPECT_TRUE(OutlineScan(picture, "a").runInStretches([&](int x, int y, int count) {
        for (int i = 0; i < count; ++i) {
            stretches += std::to_string(x + i) + ',' + std::to_string(y) + ' ';
        }
        return true;
    }));
    EXPECT_EQ(stretches, places);
    for (int last = 1; last <= 5; ++last) {
        OutlineScan cancelled(picture, "a");
        int pixels = 0;
        EXPECT_FALSE(cancelled.run([&](int, int) { return ++pixels < last; }));
        EXPECT_EQ(pixels, last);
        EXPECT_EQ(cancelled.text(), "Operation Cancelled");
    }
}

TEST(OutlineScan, RefusesWhatAMapCannotHold) {
    EXPECT_NO_THROW(OutlineScan(Raster(32767, 1), "a"));
    EXPECT_THROW(OutlineScan(Raster(32768, 1), "a"), OverflowError);
    EXPECT_THROW(OutlineScan(Raster(1, 32768), "a"), OverflowError);
}
