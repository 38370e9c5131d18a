// What goes by the size of a ship: the names of its size, and the pictures of its sheet.

#include "SheetPictures.h"

#include "HullRules.h"
#include "caseFile.h"
#include "designWords.h"
#include "wholeNumber.h"

#include <gtest/gtest.h>

#include <sstream>

using namespace fleetwright;

TEST(Sizes, ChangeAtTheirBounds) {
    expectCases("core/golden/sizes.txt", [](const Case& given) {
        std::ostringstream text;
        for (const std::string& line : linesOf(given["masses"])) {
            const std::int32_t mass = wholeNumber(line);
            text << mass << ": " << classOf(mass) << ", " << designationOf(mass);
            const TrackSize size = trackSize(mass);
            const PictureSize pixels = trackPictureSize(size);
            text << ", " << damageTrackPicture(size, "7") << ' ' << pixels.width << 'x'
                 << pixels.height << ", rows";
            for (const std::int32_t points : {0, 9, 10, 18, 19, 50, 60}) {
                text << ' ' << trackRows(size, points);
            }
            text << '\n';
        }
        return text.str();
    });
}

TEST(SheetPictures, AreThoseOfAllTracksThrustsAndDrives) {
    EXPECT_EQ(drivePicture(NoDrive) + drivePicture(NormalDrive) + drivePicture(TugDrive),
              "blank.gifftl.gifftltug.gif");
    // Fire controls, drives, thrusts, and the tracks.
    const std::vector<std::string> all = sheetPictures();
    EXPECT_EQ(all.size(), 2U + 3U + 9U + 2U * 51U + 301U);
    EXPECT_EQ(all.back(), "cap300.gif");
    EXPECT_EQ(all[13], thrustPicture(8));
}
