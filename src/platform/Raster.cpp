#include "Raster.h"

#include <utility>

#define XXH_INLINE_ALL
#include <xxhash.h>

namespace fleetwright {

/// Shares these pixels.
Raster::Raster(int width, int height, std::vector<std::uint32_t>&& pixels)
    : m_width(width), m_height(height) {
    const auto shared = std::make_shared<Shared>();
    shared->pixels = std::move(pixels);
    m_shared = shared;
}

Raster Raster::shared() const& {
    // A copy of the pixels, since somebody may still hold a reference to one of these.
    return m_shared != nullptr ? *this : Raster(m_width, m_height, std::vector(m_pixels));
}

Raster Raster::shared() && {
    return m_shared != nullptr ? *this : Raster(m_width, m_height, std::move(m_pixels));
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
