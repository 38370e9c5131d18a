#include "ToolPictures.h"

#include "bmpFile.h"
#include "files.h"
#include "loadPictures.h"
#include "plainGif.h"

#include <optional>

namespace fleetwright {

Raster ToolPictures::load(const std::filesystem::path& file) {
    if (std::optional<Raster> picture = plainGif(readBytes(file))) {
        return std::move(*picture);
    }
    return loadPictures(m_programFolder).files.load(file);
}

Raster ToolPictures::builtIn(const std::string& name) {
    return loadPictures(m_programFolder).files.builtIn(name);
}

std::string ToolPictures::encode(const Raster& picture, const std::string& format) {
    if (format == "bmp" && !picture.isEmpty()) {
        return bmpFile(picture);
    }
    return loadPictures(m_programFolder).encoder.encode(picture, format);
}

std::unique_ptr<Pages> ToolPictures::newPages(Paper paper) {
    return loadPictures(m_programFolder).newPages(paper);
}

}  // namespace fleetwright
