#include "Raster.h"

#include <utility>

#define XXH_INLINE_ALL
#include <xxhash.h>

namespace fleetwright {

namespace {

Raster::Key keyOf(const void* bytes, std::size_t count, std::uint64_t seed) {
    const XXH128_hash_t hash = XXH3_128bits_withSeed(bytes, count, seed);
    return {hash.high64, hash.low64};
}

}  // namespace

/// Shares these pixels.
Raster::Raster(int width, int height, std::vector<std::uint32_t>&& pixels)
    : m_width(width), m_height(height) {
    const auto shared = std::make_shared<Shared>();
    shared->pixels = std::move(pixels);
    m_shared = shared;
}

Raster::Raster(int width, int height, const Key& key, std::function<Raster()> decode)
    : m_width(width), m_height(height) {
    const auto shared = std::make_shared<Shared>();
    shared->decode = std::move(decode);
    std::call_once(shared->isKeyKnown, [&] { shared->key = key; });
    m_shared = shared;
}

void Raster::decodeInto(const Shared& shared) {
    Raster decoded = shared.decode();
    shared.pixels = std::move(decoded.ownPixels());
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
    return keyOf(pixels().data(), pixels().size() * sizeof(std::uint32_t),
                 static_cast<std::uint64_t>(m_width));
}

Raster::Key Raster::fileKey(std::string_view bytes) {
    return keyOf(bytes.data(), bytes.size(), 0);
}

}  // namespace fleetwright
