#include "Raster.h"

#define XXH_INLINE_ALL
#include <xxhash.h>

namespace fleetwright {

Raster Raster::shared() const {
    if (m_shared != nullptr) {
        return *this;
    }
    // A copy of the pixels in any case: somebody may still hold a reference to one of these.
    const auto pixels = std::make_shared<Shared>();
    pixels->pixels = m_pixels;
    Raster picture;
    picture.m_width = m_width;
    picture.m_height = m_height;
    picture.m_shared = pixels;
    return picture;
}

Raster::Key Raster::key() const {
    if (m_shared == nullptr) {
        return workOutKey();
    }
    std::call_once(m_shared->isKeyKnown, [this] { m_shared->key = workOutKey(); });
    return m_shared->key;
}

Raster::Key Raster::workOutKey() const {
    const XXH128_hash_t hash =
        XXH3_128bits_withSeed(pixels().data(), pixels().size() * sizeof(std::uint32_t),
                              static_cast<XXH64_hash_t>(m_width));
    return {hash.high64, hash.low64};
}

}  // namespace fleetwright
