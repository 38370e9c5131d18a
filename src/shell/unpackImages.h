#pragma once

#include <filesystem>
#include <functional>

namespace fleetwright {

/// Runs the archive with "-o" in a folder; whether it ended well.
using RunArchive =
    std::function<bool(const std::filesystem::path& archive, const std::filesystem::path& folder)>;

/// Makes the folder of pictures, "images", in the application folder, unless it is there. The
/// archive "images.exe" stands beside the program, and no other one is ever run.
///
/// A program that starts takes a folder of that name for complete, so everything is unpacked beside
/// it, and gets its name last and for good. What runs that were cut short have left is made good or
/// taken away. Throws FileError.
void unpackImages(const std::filesystem::path& appFolder,
                  const std::filesystem::path& programFolder, const RunArchive& runArchive);

/// Makes the folder of pictures anew, over one that is there. What the archive does not have are
/// files of the user's own, which stay. Whatever happens, the old pictures are whole or the new
/// ones are; while another run is at this work, it is waited for. Throws FileError, also where
/// "images" is a link, since it would be somebody else's folder that is exchanged.
void renewImages(const std::filesystem::path& appFolder, const std::filesystem::path& programFolder,
                 const RunArchive& runArchive);

}  // namespace fleetwright
