#pragma once

#include "saveFile.h"

#include <filesystem>
#include <string_view>

namespace fleetwright {

/// Says on standard error what has to be said before a file is saved: that it parts from its other
/// names. Nothing if it has none.
void announceSave(const std::filesystem::path& file);

/// Saves a result, announced. Throws FileError as `saveFile` does.
void saveResult(const std::filesystem::path& file, std::string_view bytes);
/// The same for one that is made as it is written.
void saveResult(const std::filesystem::path& file, const FileContents& contents);

}  // namespace fleetwright
