#include "SheetPictures.h"

#include "HullRules.h"
#include "renderedSets.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace fleetwright {
namespace {

QImage sheetPicture(const std::string& name) {
    const auto found = renderedSheet().find(name);
    EXPECT_NE(found, renderedSheet().end()) << name;
    return found == renderedSheet().end() ? QImage() : decode(found->second, "gif");
}

QImage track(TrackSize size, int points) {
    return sheetPicture(damageTrackPicture(size, std::to_string(points)));
}

/// Whether the upper left corner of a box with white inside is here.
bool isBoxCorner(const QImage& image, int x, int y) {
    return x + 2 < image.width() && y + 2 < image.height() && isInk(image, x, y) &&
           isInk(image, x + 1, y) && isInk(image, x, y + 1) && !isInk(image, x + 1, y + 1) &&
           isInk(image, x + 2, y);
}

/// How many boxes stand in each row.
std::vector<int> boxesInRows(const QImage& image) {
    std::vector<int> rows;
    for (int y = 0; y < image.height(); ++y) {
        int boxes = 0;
        for (int x = 0; x < image.width(); ++x) {
            boxes += isBoxCorner(image, x, y) ? 1 : 0;
        }
        if (boxes > 0) {
            rows.push_back(boxes);
        }
    }
    return rows;
}

TEST(SheetPictures, AllThatTheRulesCanAskForAreThereAndNoOthers) {
    std::vector<std::string> made;
    for (const auto& [name, bytes] : renderedSheet()) {
        made.push_back(name);
        EXPECT_FALSE(decode(bytes, "gif").isNull()) << name;
    }
    std::vector<std::string> asked = sheetPictures();
    std::sort(asked.begin(), asked.end());
    EXPECT_EQ(made, asked);

    for (std::int32_t mass = smallestMass; mass <= capitalMass; ++mass) {
        for (std::int32_t hull = Warship; hull <= QSpaceStation; ++hull) {
            const auto points = hullFigures({.mass = mass, .hullType = hull}).damagePoints;
            const TrackSize size = trackSize(mass);
            EXPECT_TRUE(renderedSheet().contains(damageTrackPicture(size, std::to_string(points))))
                << "mass " << mass << ", hull " << hull;
        }
    }
}

TEST(SheetPictures, TracksHaveTheWidthOfTheirSizeWhateverTheirPoints) {
    for (int points = 0; points <= mostDamagePoints(); ++points) {
        EXPECT_EQ(track(TrackSize::Escort, points).width(), 64);
        EXPECT_EQ(track(TrackSize::Cruiser, points).width(), 80);
        EXPECT_EQ(track(TrackSize::Capital, points).width(), 144);
        for (const TrackSize size : trackSizes) {
            EXPECT_EQ(track(size, points).height(), track(size, 0).height());
        }
    }
}

TEST(SheetPictures, TracksHaveABoxForEachPointInEvenRows) {
    for (const TrackSize size : trackSizes) {
        EXPECT_EQ(inkCount(track(size, 0)), 0);
        for (int points = 1; points <= mostDamagePoints(); ++points) {
            SCOPED_TRACE(damageTrackPicture(size, std::to_string(points)));
            const std::vector<int> rows = boxesInRows(track(size, points));
            int sum = 0;
            for (const int boxes : rows) {
                sum += boxes;
            }
            ASSERT_EQ(sum, points);
            EXPECT_EQ(static_cast<int>(rows.size()), std::min(points, trackRows(size, points)));
            EXPECT_TRUE(std::is_sorted(rows.rbegin(), rows.rend()));
            EXPECT_LE(rows.front() - rows.back(), 1);
        }
    }
}

TEST(SheetPictures, TracksHaveAsManyRowsAsTheShipsDamageRows) {
    EXPECT_EQ(mostDamagePoints(), 50);
    EXPECT_EQ(trackRows(TrackSize::Escort, 9), 2);
    EXPECT_EQ(trackRows(TrackSize::Cruiser, 5), 3);
    EXPECT_EQ(trackRows(TrackSize::Cruiser, 18), 3);
    EXPECT_EQ(trackRows(TrackSize::Capital, 3), 4);
    EXPECT_EQ(trackRows(TrackSize::Capital, 50), 4);
    // A ship that has outgrown its map has the rows of its own mass.
    EXPECT_EQ(trackRows(TrackSize::Escort, 12), 3);
    EXPECT_EQ(trackRows(TrackSize::Escort, 19), 4);
}

TEST(SheetPictures, WhatCoversAPlaceIsWhiteAndAsLargeAsWhatItCovers) {
    const std::string fireControl(fireControlPicture);
    const QImage cover = sheetPicture(std::string(unusedFireControlPicture));
    EXPECT_EQ(inkCount(cover), 0);
    EXPECT_EQ(cover.size(), sheetPicture(fireControl).size());
    EXPECT_GT(inkCount(sheetPicture(fireControl)), 0);

    const QImage noDrive = sheetPicture(std::string(noDrivePicture));
    EXPECT_EQ(inkCount(noDrive), 0);
    for (const std::int32_t drive : {NormalDrive, TugDrive}) {
        EXPECT_EQ(sheetPicture(drivePicture(drive)).size(), noDrive.size());
        EXPECT_GT(inkCount(sheetPicture(drivePicture(drive))), 0);
    }
}

TEST(SheetPictures, ThrustGrowsByOneFlame) {
    // Below the engine with its number, which takes the upper half.
    const auto flames = [](int thrust) {
        const QImage image = sheetPicture(thrustPicture(thrust));
        int count = 0;
        for (int y = 15; y < image.height(); ++y) {
            for (int x = 1; x < image.width(); ++x) {
                const bool isUpperLeft =
                    isInk(image, x, y) && !isInk(image, x - 1, y) && !isInk(image, x, y - 1);
                count += isUpperLeft ? 1 : 0;
            }
        }
        return count;
    };
    for (int thrust = 0; thrust <= mostThrust; ++thrust) {
        EXPECT_EQ(flames(thrust), thrust);
    }
}

}  // namespace
}  // namespace fleetwright
