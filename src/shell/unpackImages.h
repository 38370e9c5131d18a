#pragma once

#include <filesystem>
#include <functional>

namespace fleetwright {

/// Runs the archive with "-o" in the folder, in which it lies; whether it ended well.
using RunArchive =
    std::function<bool(const std::filesystem::path& archive, const std::filesystem::path& folder)>;

/// Makes the folder of pictures, "images", out of the archive "images.exe" in the application
/// folder. A program that starts takes a folder of that name for complete, so everything is
/// unpacked beside it and gets its name last; what is half made is taken away again. Throws
/// FileError.
void unpackImages(const std::filesystem::path& appFolder, const RunArchive& runArchive);

/// Unpacks the pictures once more, over those that are there. Throws FileError.
void renewImages(const std::filesystem::path& appFolder, const RunArchive& runArchive);

}  // namespace fleetwright
