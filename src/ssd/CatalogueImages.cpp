#include "CatalogueImages.h"

#include "Error.h"
#include "SheetPictures.h"
#include "ShipClass.h"

namespace fleetwright {

const Raster& CatalogueImages::system(std::string_view name) {
    auto known = m_loaded.find(name);
    if (known == m_loaded.end()) {
        known = m_loaded.emplace(name, load(name)).first;
    }
    return known->second;
}

Raster CatalogueImages::load(std::string_view name) {
    if (name == blank) {
        return {systemPictureSize, systemPictureSize};
    }
    std::int32_t index = m_ship.weapNameToIndex(name);
    if (index < 0) {
        throw Error("there is no picture of \"" + std::string(name) + '"');
    }
    WeapRec record;
    m_ship.listWeap(index, record);
    return file(record.icon);
}

}  // namespace fleetwright
