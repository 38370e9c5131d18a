#pragma once

// File names as the program's formats take them: they count without regard to case, also where
// the file system tells cases apart.

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace fleetwright {

/// A path as the program keeps paths in texts: in UTF-8.
std::string pathText(const std::filesystem::path& path);

/// The files of a folder, but no folders, whose names end in `ending` without regard to case; by
/// name without regard to case. A folder that is not there has none. Throws FileError if it cannot
/// be read.
std::vector<std::filesystem::path> listFolder(const std::filesystem::path& folder,
                                              std::string_view ending);

/// Makes a folder and those that it stands in, unless they are there. Throws FileError.
void makeFolder(const std::filesystem::path& folder);

/// What stands under this path: the path itself if there is such an entry, else the first one by
/// name whose path differs from it only in case. The path itself if there is none at all.
std::filesystem::path findFile(const std::filesystem::path& file);

}  // namespace fleetwright
