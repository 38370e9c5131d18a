#include "OutlineScan.h"

#include "Error.h"

#include <gtest/gtest.h>

#include <map>

using namespace fleetwright;

namespace {

constexpr std::uint32_t white = Raster::white;

/// A picture from a letter a pixel: R, G, B, C, M and Y are marks, # is black, . is white and
/// lower case is a mark's colour one off in a channel.
Raster drawn(const std::vector<std::string>& rows) {
    const std::map<char, std::uint32_t> colours = {
        {'R', 0xFF0000}, {'G', 0x00FF00}, {'B', 0x0000FF}, {'C', 0x00FFFF}, {'M', 0xFF00FF},
        {'Y', 0xFFFF00}, {'#', 0x000000}, {'.', white},    {'r', 0xFE0000}, {'g', 0x01FF00},
        {'b', 0x0001FF}, {'c', 0x00FFFE}, {'m', 0xFF01FF}, {'y', 0xFFFF01}, {'k', 0x000001}};
    Raster picture(static_cast<int>(rows.front().size()), static_cast<int>(rows.size()));
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            picture.pixel(x, y) =
                colours.at(rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)]);
        }
    }
    return picture;
}

/// The lines of a scan behind the first, each ended by a blank.
std::string scanned(const std::vector<std::string>& rows) {
    std::string text = scanOutline(drawn(rows), "a.gif");
    EXPECT_EQ(text.substr(0, 14), "IMAGE: a.gif\r\n");
    text.erase(0, 14);
    for (std::size_t end = 0; (end = text.find("\r\n", end)) != std::string::npos;) {
        text.replace(end, 2, " ");
    }
    return text;
}

std::string row(int black, const std::string& behind) {
    return 'M' + std::string(static_cast<std::size_t>(black), '#') + behind;
}

/// The line of a mark in the first row.
std::string lineOf(std::string key, int x, const char* arc = "") {
    return key.append(": (").append(std::to_string(x)).append(",0").append(arc).append(") ");
}

}  // namespace

TEST(OutlineScan, NamesTheOutlineWithoutItsFolder) {
    const Raster blank(3, 2);
    for (const char* name :
         {"Ship 1.gif", "C:\\maps\\Ship 1.gif", "/a.b/Ship 1.gif", "\\/Ship 1.gif"}) {
        EXPECT_EQ(scanOutline(blank, name), "IMAGE: Ship 1.gif\r\n");
    }
    EXPECT_EQ(scanOutline(Raster(), ""), "IMAGE: \r\n");
    EXPECT_EQ(mapFileContents("IMAGE: \r\n"), "IMAGE: \r\n\r\n");
}

TEST(OutlineScan, FindsEveryMarkInReadingOrder) {
    EXPECT_EQ(scanned({".R.G#", "B....", "...YC", "M...C"}),
              "FIRECON: (1,0) THRUST: (3,0) DCP: (0,1) WEAP: (3,2,A) DAMROW: (0,3) FTL: (4,3) ");
    EXPECT_EQ(scanned({"rgbcmyk.#"}), "");
    // Many pixels are looked at in one go, and none of them may hide a mark.
    for (std::size_t x = 0; x < 70; ++x) {
        std::string wide(70, '#');
        wide[x] = 'R';
        EXPECT_EQ(scanned({wide}), lineOf("FIRECON", static_cast<int>(x)));
    }
}

TEST(OutlineScan, TheArcMarkIsNoMarkOfItsOwn) {
    EXPECT_EQ(scanned({".........................", "YRRYBBYGGYCCYMMYYYY#YkYr."}),
              "WEAP: (0,1,F) FIRECON: (2,1) WEAP: (3,1,P) DCP: (5,1) WEAP: (6,1,S) THRUST: (8,1) "
              "WEAP: (9,1,A) FTL: (11,1) WEAP: (12,1,B) DAMROW: (14,1) WEAP: (15,1,A) "
              "WEAP: (17,1,S) WEAP: (20,1,S) WEAP: (22,1,S) ");
}

TEST(OutlineScan, WithoutAnArcMarkThePlaceDecides) {
    // 8 by 10: the thirds are 2 and 3 wide, and what is over goes to the right and to the bottom.
    const Raster picture(8, 10);
    const std::vector<std::string> arcs = {"FFFFFFFF", "FFFFFFFF", "FFFFFFFF", "FFFFFFFF",
                                           "PPPBSSSS", "PPPBSSSS", "PPPASSSS", "PPPASSSS",
                                           "PPPASSSS", "PPPASSSS"};
    for (int y = 0; y < picture.height(); ++y) {
        std::string found;
        for (int x = 0; x < picture.width(); ++x) {
            found += weapArc(picture, x, y);
        }
        EXPECT_EQ(found, arcs[static_cast<std::size_t>(y)]) << y;
    }
    // In the last column nothing stands to the right, and the next row begins as any other.
    EXPECT_EQ(scanned({"...", "..Y", "R.."}), "WEAP: (2,1,F) FIRECON: (0,2) ");
}

TEST(OutlineScan, ThreeLengthsOfTheTrackSayTheSize) {
    for (const auto& [black, size] :
         std::map<int, std::string>{{63, "18"}, {79, "36"}, {143, "100"}}) {
        for (const int other : {black - 1, black + 1}) {
            EXPECT_EQ(scanned({row(other, ".")}), "DAMROW: (0,0) ") << other;
        }
        const std::string found = "DAMROW: (0,0) SIZE: " + size + ' ';
        const int end = black + 1;
        EXPECT_EQ(scanned({row(black, ".")}), found);
        EXPECT_EQ(scanned({row(black, "k")}), found);
        EXPECT_EQ(scanned({row(black, "R")}), found + lineOf("FIRECON", end));
        EXPECT_EQ(scanned({row(black, "YB")}), found + lineOf("WEAP", end, ",P"));
        EXPECT_EQ(scanned({row(black, "M.")}), found + lineOf("DAMROW", end));
        EXPECT_EQ(scanned({row(black, "")}), "DAMROW: (0,0) ")
            << "the end of the picture ends no run";
    }
    EXPECT_EQ(scanned({row(0, "."), row(1, "")}), "DAMROW: (0,0) DAMROW: (0,1) ");
}

TEST(OutlineScan, ARunGoesOnInTheNextRow) {
    const std::string black(60, '#');
    const std::string blank(59, '.');
    EXPECT_EQ(scanned({blank + 'M', black, "###" + blank.substr(2)}), "DAMROW: (59,0) SIZE: 18 ");
    EXPECT_EQ(scanned({'M' + black.substr(1), '.' + black.substr(1)}), "DAMROW: (0,0) ");
    EXPECT_EQ(scanned({row(20, "") + row(63, "."), row(20, std::string(65, '.'))}),
              "DAMROW: (0,0) DAMROW: (21,0) SIZE: 18 DAMROW: (0,1) ");
    // The arc mark behind a weapon is passed over, also by a run that it would have begun.
    EXPECT_EQ(scanned({"Y" + row(63, ".")}), "WEAP: (0,0,B) ");
}

TEST(OutlineScan, ALongRunDoesNotComeRoundToALengthAgain) {
    constexpr int side = 300;
    Raster picture(side, side);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            picture.pixel(x, y) = Black;
        }
    }
    picture.pixel(0, 0) = Magenta;
    constexpr int wrapped = 65536 + 63;  // where a counter of 16 bits is at 64 again
    picture.pixel((wrapped + 1) % side, (wrapped + 1) / side) = white;
    EXPECT_EQ(scanOutline(picture, "a"), "IMAGE: a\r\nDAMROW: (0,0)\r\n");
}

TEST(OutlineScan, ShowsEachPlaceAndStopsWhenTold) {
    const Raster picture = drawn({".YR", "..Y"});
    OutlineScan scan(picture, "a");
    std::string places;
    EXPECT_TRUE(scan.run([&](int x, int y) {
        places += std::to_string(x) + ',' + std::to_string(y) + ' ';
        return true;
    }));
    EXPECT_EQ(places, "0,0 2,0 0,1 1,1 3,1 ");

    OutlineScan inStretches(picture, "a");
    std::string stretches;
    EXPECT_TRUE(inStretches.runInStretches([&](int x, int y, int count) {
        for (int i = 0; i < count; ++i) {
            stretches += std::to_string(x + i) + ',' + std::to_string(y) + ' ';
        }
        return true;
    }));
    EXPECT_EQ(stretches, places);

    OutlineScan cancelled(picture, "a");
    int pixels = 0;
    std::string before;
    EXPECT_FALSE(cancelled.run([&](int, int) {
        before = cancelled.text();
        return ++pixels < 2;
    }));
    EXPECT_EQ(pixels, 2);
    EXPECT_EQ(before, "IMAGE: a\r\nWEAP: (1,0,F)\r\n");
    EXPECT_EQ(cancelled.text(), "Operation Cancelled");
}

TEST(OutlineScan, RefusesWhatAMapCannotHold) {
    EXPECT_NO_THROW(OutlineScan(Raster(32767, 1), "a"));
    EXPECT_THROW(OutlineScan(Raster(32768, 1), "a"), OverflowError);
    EXPECT_THROW(OutlineScan(Raster(1, 32768), "a"), OverflowError);
}
