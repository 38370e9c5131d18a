#pragma once

// Reading ships, be they in a ship file, inside a sheet, or in a code.

#include "Error.h"

#include <string>

namespace fleetwright {

/// A sheet, a code, or another picture or document, from which no ship can be had.
class SheetError : public FileError {
public:
    using FileError::FileError;
};

/// Where a ship was read from. Only a ship file may be overwritten with one.
enum class ShipSource { File, Sheet, Code };

/// The text of a ship file, in UTF-8.
struct ShipText {
    std::string text;
    ShipSource source = ShipSource::File;
};

/// Reads a ship file, or the one that a sheet carries: its contents tell, and not its name. In the
/// place of a file's name there may be a design code. Throws FileError; SheetError if it is a sheet
/// or a code and has not exactly one ship, whole and sound.
ShipText readShip(const std::string& fileOrCode);

/// What such a one is called in a message of the window: the name of a file without its folder.
/// Codes are mostly pasted.
std::string shipSourceName(const std::string& fileOrCode);

}  // namespace fleetwright
