#include "SheetPictures.h"

#include "HullRules.h"

#include <gtest/gtest.h>

#include <sstream>

using namespace fleetwright;

TEST(SheetPictures, FitTheMapAndTheShip) {
    std::ostringstream text;
    for (const std::int32_t mass : {2, 18, 19, 36, 37, 100, 150}) {
        const TrackSize size = trackSize(mass);
        const PictureSize pixels = trackPictureSize(size);
        text << mass << ' ' << damageTrackPicture(size, "7") << ' ' << pixels.width << ' '
             << pixels.height << " rows";
        for (const std::int32_t points : {0, 9, 10, 18, 19, 50, 60}) {
            text << ' ' << trackRows(size, points);
        }
        text << '\n';
    }
    for (const std::int32_t ftl : {NoDrive, NormalDrive, TugDrive}) {
        text << drivePicture(ftl) << ' ';
    }
    EXPECT_EQ(text.str(), "2 escort7.gif 64 28 rows 2 2 3 3 4 4 4\n"
                          "18 escort7.gif 64 28 rows 2 2 3 3 4 4 4\n"
                          "19 cruz7.gif 80 43 rows 3 3 3 3 4 4 4\n"
                          "36 cruz7.gif 80 43 rows 3 3 3 3 4 4 4\n"
                          "37 cap7.gif 144 54 rows 4 4 4 4 4 4 4\n"
                          "100 cap7.gif 144 54 rows 4 4 4 4 4 4 4\n"
                          "150 cap7.gif 144 54 rows 4 4 4 4 4 4 4\n"
                          "blank.gif ftl.gif ftltug.gif ");
    // Fire controls, drives, thrusts, and the tracks.
    const std::vector<std::string> all = sheetPictures();
    EXPECT_EQ(all.size(), 2U + 3U + 9U + 3U * 51U);
    EXPECT_EQ(all.back(), "cap50.gif");
    EXPECT_EQ(all[13], thrustPicture(8));
}
