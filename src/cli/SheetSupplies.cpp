#include "SheetSupplies.h"

#include "Error.h"
#include "commands.h"
#include "paths.h"

#include <system_error>

namespace fleetwright {

namespace {

ToolPictures picturesFor(const Options& options) {
    const std::filesystem::path images = options.appFolder / "images";
    if (std::error_code unknown; !std::filesystem::is_directory(findFile(images), unknown)) {
        throw FileError(images, "is not there; fleetwright-cli unpack unpacks the pictures");
    }
    return ToolPictures(options.programFolder);
}

}  // namespace

SheetSupplies::SheetSupplies(const Options& options, std::size_t sheets, Kind kind, int& status)
    : m_pictures(picturesFor(options)), m_drawings(drawingsFile(options.appFolder)),
      m_drawnPictures(m_pictures, m_drawings), m_maps(mapsOf(options, status)),
      tools(toolsFor(options, sheets, kind)) {}

SheetTools SheetSupplies::toolsFor(const Options& options, std::size_t sheets, Kind kind) {
    PictureFiles& files =
        kind == Kind::Pixels ? static_cast<PictureFiles&>(m_pictures) : m_drawnPictures;
    // The outline of a single ship is read once in any case, and is the largest picture.
    return {options.appFolder,
            picturesReadOnce(options.appFolder, files),
            sheets == 1 ? outlinesIn(files) : outlinesReadOnce(files),
            m_pictures,
            m_drawings,
            m_maps};
}

}  // namespace fleetwright
