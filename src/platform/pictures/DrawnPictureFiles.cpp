#include "DrawnPictureFiles.h"

#include "DrawingPack.h"
#include "PictureReader.h"
#include "readFile.h"

#include <optional>
#include <utility>

namespace fleetwright {

Raster DrawnPictureFiles::load(const std::filesystem::path& file) {
    std::string bytes = readBytes(file);
    const std::optional<DrawingPack::Picture> known = m_drawings.pictureIn(bytes);
    if (!known) {
        return m_reader.load(file);
    }
    // These very bytes have been decoded once, by the build, so that they cannot be damaged.
    return {known->width, known->height, known->key,
            [&reader = m_reader, kept = std::move(bytes)] { return reader.read(kept); }};
}

Raster DrawnPictureFiles::builtIn(const std::string& name) {
    return m_reader.builtIn(name);
}

}  // namespace fleetwright
