#include "checkMapPlaces.h"

#include "faults.h"
#include "mapMarks.h"

#include <gtest/gtest.h>

using namespace fleetwright;

namespace {

/// A map that has all it needs, one place a line from line 2 on, on an outline of 200 by 150.
class MapPlacesCheck : public testing::Test {
protected:
    MapPlacesCheck() {
        for (const char* arc : {"F", "P", "S", "A", "B"}) {
            add("WEAP", 32 * static_cast<int>(m_map.places.size()), 0, arc);
        }
        add("FIRECON", 0, 40);
        add("DCP", 32, 40);
        add("FTL", 168, 118);
        add("THRUST", 136, 118);
        add("DAMROW", 0, 122);
        setSize(18, 1);
    }

    MapPlace& add(const char* word, int x, int y, const char* arc = "") {
        const int line = m_map.places.empty() ? 2 : m_map.places.back().line + 1;
        m_map.places.push_back(
            {.keyword = mapKeyword(word), .x = x, .y = y, .arc = arc, .line = line});
        return m_map.places.back();
    }

    void remove(const std::string& key) {
        std::erase_if(m_map.places,
                      [&](const MapPlace& place) { return place.keyword == mapKeyword(key); });
    }

    void setSize(int size, int line) {
        m_map.size = size;
        m_map.sizeLine = line;
    }

    /// "line: text" for each fault.
    std::vector<std::string> faults() const {
        std::vector<std::string> texts;
        for (const Fault& fault : checkMapPlaces(m_map, m_outline)) {
            texts.push_back(std::to_string(fault.line) + ": " + fault.text);
        }
        return texts;
    }

    using Texts = std::vector<std::string>;

    MapPlaces m_map;
    Raster m_outline{200, 150};
};

}  // namespace

TEST_F(MapPlacesCheck, BoxesMayTouchEachOtherAndTheEdges) {
    EXPECT_EQ(faults(), Texts());
}

TEST_F(MapPlacesCheck, NamesBoxesThatOverlapOrLeaveTheOutline) {
    m_map.places[1].x -= 1;
    m_map.places[7] = {.keyword = MapKeyword::Ftl, .x = 169, .y = 119, .arc = {}, .line = 9};
    add("DCP", -1, 80);
    add("DCP", 63, 121);
    EXPECT_EQ(faults(),
              Texts({"3: the WEAP box at (31,0) overlaps the WEAP box at (0,0) of line 2",
                     "9: the FTL box at (169,119) leaves the outline, which is 200 by 150 pixels",
                     "12: the DCP box at (-1,80) leaves the outline, which is 200 by 150 pixels",
                     "13: the DCP box at (63,121) leaves the outline, which is 200 by 150 pixels",
                     "13: the DCP box at (63,121) overlaps the DAMROW box at (0,122) of line 11"}));
}

TEST_F(MapPlacesCheck, OnlyTheLastLineOfADriveOrTrackCounts) {
    m_map.places[7].x = 1000;
    add("FTL", 168, 118);
    EXPECT_EQ(faults(), Texts());
}

TEST_F(MapPlacesCheck, NamesWhatIsMissing) {
    for (const char* key : {"FTL", "THRUST", "DAMROW"}) {
        remove(key);
    }
    m_map.places[1].arc = "X";
    m_map.places[3].arc = "B";
    setSize(0, 0);
    EXPECT_EQ(faults(),
              Texts({"3: unknown arc \"X\", so that the point is neither used nor covered",
                     "0: no SIZE line, so that the map is offered to no ship",
                     "0: no DAMROW line, so that the damage track is drawn at (0,0)",
                     "0: no FTL line, so that the FTL drive is drawn at (0,0)",
                     "0: no THRUST line, so that the thrust drive is drawn at (0,0)",
                     "0: no weapon point for the arc P, A"}));
}

TEST_F(MapPlacesCheck, LargeShipsNeedMorePoints) {
    m_outline = Raster(300, 300);
    setSize(36, 1);
    EXPECT_EQ(faults(),
              Texts({"1: 1 FIRECON points, but ships of this SIZE have up to 2 fire controls",
                     "1: 1 DCP points, but ships of this SIZE have up to 2 damage control "
                     "parties"}));
    add("FIRECON", 0, 200);
    add("DCP", 40, 200);
    EXPECT_EQ(faults(), Texts());
    setSize(100, 1);
    EXPECT_EQ(faults().size(), 3U) << "the track of large ships reaches the thrust drive";
    setSize(150, 1);
    EXPECT_EQ(faults().front(), "1: above SIZE 100 no damage track is drawn");
}

TEST_F(MapPlacesCheck, NamesMarksThatStayToBeSeen) {
    m_outline.pixel(0, 0) = Yellow;
    m_outline.pixel(31, 31) = Red;
    m_outline.pixel(0, 122) = Magenta;
    for (int x = 1; x < 64; ++x) {
        m_outline.pixel(x, 122) = Black;
    }
    m_outline.pixel(100, 60) = 0xFE0000;
    EXPECT_EQ(faults(), Texts());
    m_outline.pixel(64, 122) = Black;
    m_outline.pixel(0, 32) = Red;
    EXPECT_EQ(faults(), Texts({"11: the mark of the damage track is 1 pixels longer than the track",
                               "0: the mark at (0,32) is covered by nothing"}));
    for (int x = 0; x < 20; ++x) {
        m_outline.pixel(x, 90) = Cyan;
    }
    EXPECT_EQ(faults().size(), 12U);
    EXPECT_EQ(faults().back(), "0: 11 more marks are covered by nothing");
}

TEST(ReadMapPlaces, TakesWhatTheLinesSayAndPassesOverWhatIsWrong) {
    const MapPlaces map = readMapPlaces("# x\r\nimage: a.gif\r\nSIZE: 36\r\nweap: (1, 2, f)\r\n"
                                        "ABC: 1\r\nWEAP: (3,4)\r\nDCP: (x,1)\r\nFTL: (5,6)\r\n"
                                        "SIZE: big\r\nDAMROW: (-1,0)\r\n");
    EXPECT_EQ(map.size, 36);
    EXPECT_EQ(map.sizeLine, 9);
    EXPECT_EQ(map.image, "a.gif");
    EXPECT_EQ(map.imageLine, 2);
    EXPECT_EQ(map.unread, std::vector{MapKeyword::Dcp});
    std::string places;
    for (const MapPlace& place : map.places) {
        places += std::to_string(place.line) + std::string(mapWord(place.keyword)) +
                  std::to_string(place.x) + ',' + std::to_string(place.y) + place.arc + ' ';
    }
    EXPECT_EQ(places, "4WEAP1,2F 6WEAP3,44 8FTL5,6 10DAMROW-1,0 ");
}

TEST(ReadMapPlaces, WithoutAnOutlineTheRestIsChecked) {
    const MapPlaces map =
        readMapPlaces("SIZE: 18\nFTL: (\nDCP: ()\nFIRECON: (0,0)\nFIRECON: (9000,1)\n"
                      "WEAP: (1,1,F)\nTHRUST: (50,50)\nDAMROW: (200,50)");
    EXPECT_EQ(textOf(checkMapPlaces(map, Raster())),
              "6: the WEAP box at (1,1) overlaps the FIRECON box at (0,0) of line 4\n"
              "0: no weapon point for the arc P, S, A, B\n");
}
