#include "SheetPictures.h"

#include "HullRules.h"

#include <algorithm>

namespace fleetwright {

namespace {

/// The largest mass of the ships whose damage tracks do with the smaller room above SIZE 100.
constexpr std::int32_t heavyMass = 300;

/// The largest mass of the ships that maps of this size are made for.
std::int32_t largestMass(TrackSize size) {
    switch (size) {
    case TrackSize::Escort:
        return escortMass;
    case TrackSize::Cruiser:
        return cruiserMass;
    default:
        return capitalMass;
    }
}

HullFigures warship(std::int32_t mass) {
    return hullFigures({.mass = mass, .hullType = Warship});
}

}  // namespace

TrackSize trackSize(std::int32_t mapMass) {
    if (mapMass <= escortMass) {
        return TrackSize::Escort;
    }
    return mapMass <= cruiserMass ? TrackSize::Cruiser : TrackSize::Capital;
}

PictureSize trackPictureSize(TrackSize size) {
    switch (size) {
    case TrackSize::Escort:
        return {64, 28};
    case TrackSize::Cruiser:
        return {80, 43};
    default:
        return {210, 74};
    }
}

PictureSize trackRoom(std::int32_t mapMass) {
    if (mapMass <= capitalMass) {
        return trackPictureSize(trackSize(mapMass));
    }
    return mapMass <= heavyMass ? PictureSize{306, 162} : PictureSize{354, 270};
}

std::string damageTrackPicture(TrackSize size, std::string_view damagePoints) {
    constexpr const char* families[] = {"escort", "cruz", "cap"};
    return families[static_cast<int>(size)] + std::string(damagePoints) + ".gif";
}

std::string thrustPicture(std::int32_t thrust) {
    return "thrust" + std::to_string(thrust) + ".gif";
}

std::string drivePicture(std::int32_t ftl) {
    if (ftl == NormalDrive) {
        return "ftl.gif";
    }
    return ftl == TugDrive ? "ftltug.gif" : std::string(noDrivePicture);
}

std::int32_t mostDamagePoints(TrackSize size) {
    return warship(size == TrackSize::Capital ? greatMass : capitalMass).damagePoints;
}

std::int32_t trackRows(TrackSize size, std::int32_t damagePoints) {
    // The lightest ship with so many points, but none below those that the map is made for;
    // warships have the most for their mass.
    std::int32_t mass = largestMass(size);
    while (mass < greatMass && warship(mass).damagePoints < damagePoints) {
        ++mass;
    }
    return warship(mass).damageRows;
}

std::vector<std::string> sheetPictures() {
    std::vector<std::string> files = {std::string(fireControlPicture),
                                      std::string(unusedFireControlPicture)};
    for (const std::int32_t ftl : {NoDrive, NormalDrive, TugDrive}) {
        files.push_back(drivePicture(ftl));
    }
    for (std::int32_t thrust = 0; thrust <= mostThrust; ++thrust) {
        files.push_back(thrustPicture(thrust));
    }
    for (const TrackSize size : trackSizes) {
        for (std::int32_t points = 0; points <= mostDamagePoints(size); ++points) {
            files.push_back(damageTrackPicture(size, std::to_string(points)));
        }
    }
    return files;
}

}  // namespace fleetwright
