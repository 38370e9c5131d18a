#include "ProgramImages.h"

#include "Error.h"
#include "ImageList.h"
#include "PictureFiles.h"
#include "TextFile.h"
#include "folders.h"

#include <string>

namespace fleetwright {

Raster ProgramImages::file(std::string_view name) {
    return m_pictures.load(findFile(m_folder / nativePath(name)));
}

const Raster& ProgramImages::system(std::string_view name) {
    const std::string key(name);
    if (!m_ilWeapons.contains(key)) {
        throw Error("there is no picture of \"" + key + '"');
    }
    return m_ilWeapons.picture(key);
}

}  // namespace fleetwright
