#include "SSDMap.h"

#include "checkedArithmetic.h"
#include "paths.h"
#include "readFile.h"
#include "text.h"

#include <algorithm>
#include <cstddef>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

std::string readMapFile(const fs::path& appFolder, const std::string& name) {
    const fs::path file = nativePath(pathText(appFolder / "maps") + '/' + name + ".map");
    try {
        return readTextFile(file);
    } catch (const FileError&) {
        const fs::path other = findFile(file);
        if (other == file) {
            throw;
        }
        return readTextFile(other);
    }
}

fs::path outlineFolder(const fs::path& appFolder) {
    return appFolder / "shipimages";
}

/// Where a map's IMAGE value says that the outline is.
std::string outlinePath(const fs::path& appFolder, std::string_view imageValue) {
    std::string name = toCapitals(imageValue);
    std::replace(name.begin(), name.end(), '\\', '/');
    return pathText(outlineFolder(appFolder)) + '/' + name;
}

/// Adds a point; the count is checked before anything changes.
void append(std::vector<SSDPoint>& points, std::int16_t& count, SSDPoint&& point) {
    const auto newCount = narrow<std::int16_t>(count + 1);
    points.push_back(std::move(point));
    count = newCount;
}

}  // namespace

void SSDMap::ImageFile(const std::string& in_sFileName) {
    m_fileFault.reset();
    try {
        if (!loadMap(in_sFileName)) {
            throw InvalidMapError();
        }
    } catch (const Error& error) {
        if (!m_fileFault) {
            m_fileFault = {0, error.what()};
        }
        throw;
    }
}

bool SSDMap::loadMap(const std::string& in_sFileName) {
    iWeapNDX = iDCPNDX = iFIRECONNDX = 0;
    m_aWeapPnts.clear();
    m_aDCPPnts.clear();
    m_aFireconPnts.clear();
    constexpr std::size_t usualCount = 48;  // few maps have more points for weapons
    m_aWeapPnts.reserve(usualCount);
    const std::string text = readMapFile(m_appFolder, in_sFileName);
    sDisplayName = in_sFileName;

    SSDMapLines lines(text);
    SSDMapLine line;
    while (lines.next(line)) {
        try {
            readLine(line);
        } catch (const Error& error) {
            m_fileFault = {line.number, error.what()};
            throw;
        }
    }
    return true;
}

void SSDMap::readLine(const SSDMapLine& line) {
    switch (line.keyword) {
    case MapKeyword::Size:
        iMaxMass = mapNumber(line.value);
        return;
    case MapKeyword::Image:
        sImgFile = outlinePath(m_appFolder, line.value);  // where that leads is asked at its use
        return;
    case MapKeyword::Weap:
        return append(m_aWeapPnts, iWeapNDX, mapPoint(line));
    case MapKeyword::FireCon:
        return append(m_aFireconPnts, iFIRECONNDX, mapPoint(line));
    case MapKeyword::Dcp:
        return append(m_aDCPPnts, iDCPNDX, mapPoint(line));
    case MapKeyword::DamRow:
        m_ptDam = mapPoint(line);
        return;
    case MapKeyword::Ftl:
        m_ptFTL = mapPoint(line);
        return;
    case MapKeyword::Thrust:
        m_ptThrust = mapPoint(line);
        return;
    case MapKeyword::Unknown:
        return;
    }
}

const SSDPoint& SSDMap::at(const std::vector<SSDPoint>& points, std::int16_t index) {
    if (index < 0 || static_cast<std::size_t>(index) >= points.size()) {
        throw Error("the map has no such point: " + std::to_string(index));
    }
    return points[static_cast<std::size_t>(index)];
}

fs::path SSDMap::outlineFile() const {
    if (sImgFile.empty()) {
        throw Error("the map " + quote(sDisplayName) + " names no outline");
    }
    const std::size_t folderLength = outlinePath(m_appFolder, "").size();
    return fleetwright::outlineFile(m_appFolder, sImgFile.substr(folderLength));
}

fs::path outlineFile(const fs::path& appFolder, std::string_view imageValue) {
    return fileBelow(outlineFolder(appFolder), toCapitals(imageValue));
}

}  // namespace fleetwright
