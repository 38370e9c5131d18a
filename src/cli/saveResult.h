#pragma once

#include "saveFile.h"

#include <filesystem>
#include <span>
#include <string>
#include <string_view>

namespace fleetwright {

/// Says on standard error what has to be said before a file is saved: that it parts from its other
/// names. Nothing if it has none.
void announceSave(const std::filesystem::path& file);

/// Saves a result, announced. Throws FileError as `saveFile` does.
void saveResult(const std::filesystem::path& file, std::string_view bytes);
/// The same for one that is made as it is written.
void saveResult(const std::filesystem::path& file, const FileContents& contents);

/// The same for one that is made from these files, or from what else these words name. Throws
/// FileError as well if it would take the place of one of them.
void saveResultOf(std::span<const std::string> inputs, const std::filesystem::path& file,
                  std::string_view bytes);

}  // namespace fleetwright
