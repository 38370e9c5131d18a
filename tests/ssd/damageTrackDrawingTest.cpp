#include "damageTrackDrawing.h"

#include "HullRules.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace fleetwright;

TEST(DamageTrackDrawing, HasABoxThatAPencilCanTickForEachPointOfAnyWarshipInItsRoom) {
    for (std::int32_t mass = smallestMass; mass <= greatMass; ++mass) {
        SCOPED_TRACE(mass);
        const PictureSize room = trackRoom(mass);
        const HullFigures figures = hullFigures({.mass = mass, .hullType = Warship});
        const DamageTrack track = damageTrack(figures.damagePoints, figures.damageRows, room);
        EXPECT_GE(track.side, mass <= cruiserMass ? 13 : 17);
        EXPECT_EQ(std::ssize(track.boxes), figures.damagePoints);

        const Drawing drawing = damageTrackDrawing(figures.damagePoints, figures.damageRows, room);
        EXPECT_EQ(std::ranges::count(drawing.shapes.at(0).path, 'M'), figures.damagePoints);
        EXPECT_TRUE(drawing.ink.width <= room.width && drawing.ink.height <= room.height);
    }
    const Drawing drawing = damageTrackDrawing(3, 2, {40, 16});
    EXPECT_EQ(drawing.shapes.at(0).path, "M0.5 0.5L12.5 0.5L12.5 6.5L0.5 6.5Z"
                                         "M6.5 0.5L6.5 6.5"
                                         "M0.5 9.5L6.5 9.5L6.5 15.5L0.5 15.5Z");
    EXPECT_EQ(drawing.ink.width + drawing.ink.height, 13 + 16);
    EXPECT_TRUE(damageTrackDrawing(0, 2, {40, 16}).shapes.empty());
    EXPECT_TRUE(damageTrackDrawing(15000, 603, trackRoom(32767)).shapes.empty());
}
