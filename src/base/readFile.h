#pragma once

// Reading whole files.

#include <filesystem>
#include <string>

namespace fleetwright {

/// The contents of a file, byte for byte. Throws FileError, also for a file so large that it is
/// none of ours.
std::string readBytes(const std::filesystem::path& file);

/// The contents of a text file in UTF-8. A byte order mark is passed over, and what is not valid
/// UTF-8 is taken as Windows-1252, so that old files keep their accents.
std::string toUtf8(std::string contents);

/// The contents of a text file in UTF-8, as above. Throws FileError as `readBytes` does.
std::string readTextFile(const std::filesystem::path& file);

}  // namespace fleetwright
