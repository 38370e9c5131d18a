#pragma once

#include <filesystem>
#include <string>

namespace fleetwright {

class PictureFiles;

/// What keeps the catalogue of an application folder from being used, its pictures included, as one
/// text to show: a line for each fault, up to ten. Empty if nothing does. A catalogue that cannot
/// be read at all has no faults: the main window has a message of its own for that.
std::string catalogueFaults(const std::filesystem::path& appFolder, PictureFiles& pictures);

}  // namespace fleetwright
