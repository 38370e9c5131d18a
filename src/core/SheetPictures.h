#pragma once

// The picture files that a drawn sheet is pasted together from, apart from those that the
// catalogue names. Whoever draws, makes or checks pictures takes their names from here.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace fleetwright {

/// The fixed ones.
inline constexpr std::string_view fireControlPicture = "ssdfc.gif";
inline constexpr std::string_view unusedFireControlPicture = "fcblank.gif";
inline constexpr std::string_view noDrivePicture = "blank.gif";

/// Key, among the pictures of systems, of the white one that free places are covered with.
inline constexpr std::string_view blankPictureKey = "BLANK";

/// The sizes of damage track, by the largest mass that a map serves.
enum class TrackSize { Escort, Cruiser, Capital };
inline constexpr TrackSize trackSizes[] = {TrackSize::Escort, TrackSize::Cruiser,
                                           TrackSize::Capital};

/// The size of track that a map of this SIZE takes: up to mass 18, 36 and 100. Larger maps have
/// no track among the delivered pictures; what this returns for them says nothing.
TrackSize trackSize(std::int32_t mapMass);

/// Width and height of a picture in pixels; 0 where they are not known.
struct PictureSize {
    int width = 0;
    int height = 0;
};

/// Width and height of all pictures of sheets but the damage tracks.
inline constexpr int systemPictureSize = 32;

/// The size of a damage track's picture, whatever the number of damage points.
PictureSize trackPictureSize(TrackSize size);

/// The largest mass of ships that delivered outlines are made for.
inline constexpr std::int32_t greatMass = 600;

/// The room that a map of this SIZE has for a damage track: up to 100 that of its picture, above
/// that of one on vector sheets, since there is no picture of it.
PictureSize trackRoom(std::int32_t mapMass);

/// File name of the damage track for a number of damage points, as the ship's window says it.
std::string damageTrackPicture(TrackSize size, std::string_view damagePoints);

/// File name of the picture of a thrust rating.
std::string thrustPicture(std::int32_t thrust);

/// File name of the picture of a drive between the stars, by its code.
std::string drivePicture(std::int32_t ftl);

/// The most damage points that there is a track of this size for. Maps are made for ships up to
/// mass 100, but one may be drawn on a map that was made for lighter ones, and up to mass 600 on
/// the largest of those.
std::int32_t mostDamagePoints(TrackSize size);

/// How many rows a track has: as many damage rows as the ships have that the map is made for, or
/// more where only a heavier ship comes to so many damage points.
std::int32_t trackRows(TrackSize size, std::int32_t damagePoints);

/// All of these files: every track from 0 to `mostDamagePoints`, every thrust and drive.
std::vector<std::string> sheetPictures();

}  // namespace fleetwright
