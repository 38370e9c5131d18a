#include "ProgramImages.h"

#include "Error.h"
#include "ImageList.h"

#include <string>

namespace fleetwright {

const Raster& ProgramImages::system(std::string_view name) {
    const std::string key(name);
    if (!m_ilWeapons.contains(key)) {
        throw Error("there is no picture of \"" + key + '"');
    }
    return m_ilWeapons.picture(key);
}

}  // namespace fleetwright
