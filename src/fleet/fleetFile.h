#pragma once

// The fleet file, `.fleet`, which docs/file-formats.md describes.

#include "Fault.h"
#include "Fleet.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace fleetwright {

/// A fleet file as it was understood.
struct ReadFleet {
    Fleet fleet;
    /// What is wrong with single lines, by line. They count for nothing, and stay in the file.
    std::vector<Fault> faults;
    std::vector<int> shipLines;  ///< where each ship begins, from 1 on
    /// Where the points limit stands, if there is one, and behind it where the other limits do.
    std::vector<int> limitLines;
};

/// Whether a text begins like a fleet file, of whatever version.
bool isFleet(std::string_view text);
/// What is wrong with such a one in the place of a ship. Any text makes a ship, if only of mass 2.
inline constexpr const char* fleetIsNoShip = "is a fleet, and no ship";

/// Reads the text of a fleet file, in UTF-8. Throws FaultError if it is none, or one of a
/// later version or with more than `Fleet::mostDesigns`.
ReadFleet parseFleet(std::string_view text);

/// Reads a fleet file. Throws FileError.
ReadFleet readFleet(const std::filesystem::path& file);

/// The ships of a fleet as they were written last. Who writes a fleet after each change of it keeps
/// them, since most of them are still the same.
class WrittenShips {
public:
    /// The lines of a ship, which end in `lineEnd`; `place` is that of the ship in its fleet.
    const std::string& text(std::size_t place, const FleetShip& ship, std::string_view lineEnd);

private:
    struct Written {
        FleetShip ship;
        std::string lineEnd, text;
    };

    std::vector<Written> m_written;  ///< by their places
};

/// The text of a fleet file. Lines that mean nothing to this program, such as comments and keys of
/// a later version, stay where they were, and so do all lines whose value has not changed. A line
/// break inside a name becomes a blank.
std::string fleetText(const Fleet& fleet);
/// The same, in less time if the fleet was written before.
std::string fleetText(const Fleet& fleet, WrittenShips& written);

/// Saves a fleet file. Throws FileError.
void saveFleet(const std::filesystem::path& file, const Fleet& fleet);

/// A limit as files have it and as it is shown: "Capital: 2 ships", "Merchant: 300 points".
std::string limitText(const FleetLimit& limit);

}  // namespace fleetwright
