#pragma once

// One map file: which ship outline a sheet is drawn on, up to which ship mass it serves, and where
// each group of pictures goes. The format is described in docs/file-formats.md.

#include "Error.h"
#include "Fault.h"
#include "SSDMapLine.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace fleetwright {

/// A file that was read to its end and yet is no map. As long as the format has no rule that
/// refuses a file as a whole, none is.
class InvalidMapError : public Error {
public:
    static constexpr int number = 11111;  ///< for who tells faults by their numbers
    InvalidMapError() : Error("Not a valid Map file!!!") {}
};

/// A map is empty until `ImageFile` fills it, and is not changed from then on.
class SSDMap {
public:
    explicit SSDMap(std::filesystem::path appFolder) : m_appFolder(std::move(appFolder)) {}

    std::int16_t iMaxMass = 0;     ///< largest ship mass that the map serves
    std::string sImgFile;          ///< path of the outline, its name in capitals; see outlineFile
    std::string sDisplayName;      ///< name of the file without its extension
    std::int16_t iWeapNDX = 0;     ///< number of weapon points
    std::int16_t iDCPNDX = 0;      ///< number of damage control party points
    std::int16_t iFIRECONNDX = 0;  ///< number of fire control points

    /// Loads the map of this display name from the application folder. A failure leaves the map
    /// unusable: FileError, NotANumberError, OverflowError, another Error for a value that is too
    /// short, InvalidMapError. `fileFault` then says why.
    void ImageFile(const std::string& in_sFileName);
    /// The outline's file, whatever the case of its name. Throws Error if the map names none, or
    /// one out of the folder of outlines.
    std::filesystem::path outlineFile() const;
    /// What was wrong at the last load, and in which line.
    const std::optional<Fault>& fileFault() const { return m_fileFault; }

    // Points, counted from 0, in the order of the file. Beyond the last one they throw Error.
    std::int16_t getWeapPntX(std::int16_t in_iNDX) const { return at(m_aWeapPnts, in_iNDX).iPntX; }
    std::int16_t getWeapPntY(std::int16_t in_iNDX) const { return at(m_aWeapPnts, in_iNDX).iPntY; }
    /// An arc letter; another text belongs to no arc.
    const std::string& getWeapPntArc(std::int16_t in_iNDX) const {
        return at(m_aWeapPnts, in_iNDX).sArc;
    }
    std::int16_t getDAMPntX() const { return m_ptDam.iPntX; }
    std::int16_t getDAMPntY() const { return m_ptDam.iPntY; }
    std::int16_t getDCPPntX(std::int16_t in_iNDX) const { return at(m_aDCPPnts, in_iNDX).iPntX; }
    std::int16_t getDCPPntY(std::int16_t in_iNDX) const { return at(m_aDCPPnts, in_iNDX).iPntY; }
    std::int16_t getFIRECONPntX(std::int16_t in_iNDX) const {
        return at(m_aFireconPnts, in_iNDX).iPntX;
    }
    std::int16_t getFIRECONPntY(std::int16_t in_iNDX) const {
        return at(m_aFireconPnts, in_iNDX).iPntY;
    }
    std::int16_t getFTLPntX() const { return m_ptFTL.iPntX; }
    std::int16_t getFTLPntY() const { return m_ptFTL.iPntY; }
    std::int16_t getThrustPntX() const { return m_ptThrust.iPntX; }
    std::int16_t getThrustPntY() const { return m_ptThrust.iPntY; }

private:
    static const SSDPoint& at(const std::vector<SSDPoint>& points, std::int16_t index);

    /// Reads the file; whether it is a map as a whole.
    bool loadMap(const std::string& in_sFileName);
    void readLine(const SSDMapLine& line);

    std::filesystem::path m_appFolder;
    std::optional<Fault> m_fileFault;
    std::vector<SSDPoint> m_aWeapPnts;
    std::vector<SSDPoint> m_aDCPPnts;
    std::vector<SSDPoint> m_aFireconPnts;
    SSDPoint m_ptFTL;
    SSDPoint m_ptThrust;
    SSDPoint m_ptDam;
};

/// The file of the outline that a map's IMAGE value names. Throws FileError as `fileBelow` does.
std::filesystem::path outlineFile(const std::filesystem::path& appFolder,
                                  std::string_view imageValue);

}  // namespace fleetwright
