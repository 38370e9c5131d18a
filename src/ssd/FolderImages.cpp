#include "FolderImages.h"

#include "PictureFiles.h"
#include "TextFile.h"
#include "folders.h"

namespace fleetwright {

Raster FolderImages::file(std::string_view name) {
    return m_pictures.load(findFile(m_folder / nativePath(name)));
}

}  // namespace fleetwright
