#pragma once

// Reading ship files, be they files of their own or inside a sheet.

#include "Error.h"

#include <filesystem>
#include <string>

namespace fleetwright {

/// A sheet, or another picture or document, from which no ship can be had.
class SheetError : public FileError {
public:
    using FileError::FileError;
};

/// The text of a ship file, in UTF-8.
struct ShipText {
    std::string text;
    bool isInSheet =
        false;  ///< the file is a sheet, which is not to be overwritten with a ship file
};

/// Reads a ship file, or the one that a sheet carries; its contents tell, and not its name. Throws
/// FileError; SheetError if it is a sheet and has not exactly one ship, whole and sound.
ShipText readShip(const std::filesystem::path& file);

}  // namespace fleetwright
