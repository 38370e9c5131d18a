#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <span>
#include <string_view>
#include <vector>

namespace fleetwright {

/// A picture of single pixels with the origin at the upper left corner. A colour is 0xRRGGBB.
class Raster {
public:
    Raster() = default;
    /// All white.
    Raster(int width, int height) : m_width(width) {
        reserve(m_pixels, static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
        setHeight(height);
    }

    /// Tells pictures apart: 128 bits of a hash of width and pixels.
    using Key = std::array<std::uint64_t, 2>;

    /// A picture of which this much is known before it is decoded, for whoever may never look at
    /// its pixels. `decode` is called when somebody first does, by any of the threads that have
    /// copies; it gives a picture of this size and key.
    Raster(int width, int height, const Key& key, std::function<Raster()> decode);

    static constexpr std::uint32_t white = 0xFFFFFF;

    int width() const { return m_width; }
    int height() const { return m_height; }
    bool isEmpty() const { return m_width == 0 || m_height == 0; }

    /// Whether two pictures show the same, pixel by pixel.
    friend bool operator==(const Raster& one, const Raster& other) {
        return one.m_width == other.m_width && one.m_height == other.m_height &&
               one.pixels() == other.pixels();
    }

    /// A pixel inside the picture.
    std::uint32_t& pixel(int x, int y) { return ownPixels()[index(x, y)]; }
    std::uint32_t pixel(int x, int y) const { return pixels()[index(x, y)]; }

    /// The pixels of a row inside the picture.
    std::span<std::uint32_t> row(int y) {
        return {ownPixels().data() + index(0, y), static_cast<std::size_t>(m_width)};
    }
    std::span<const std::uint32_t> row(int y) const {
        return {pixels().data() + index(0, y), static_cast<std::size_t>(m_width)};
    }

    /// Adds white rows at the bottom, or cuts some off.
    void setHeight(int height) {
        ownPixels().resize(static_cast<std::size_t>(m_width) * static_cast<std::size_t>(height),
                           white);
        m_height = height;
    }

    /// The same picture, for whoever hands it out again and again: its copies share the pixels and
    /// the key, which is worked out once for all of them. A copy that is changed gets pixels of its
    /// own. Any number of threads may have copies.
    Raster shared() const&;
    Raster shared() &&;  ///< without a copy of the pixels, and with an end to what refers to them

    Key key() const;
    /// The same of a picture file, of its bytes.
    static Key fileKey(std::string_view bytes);

private:
    /// Pixels that nobody can change any more, so that what is known of them stays true.
    struct Shared {
        mutable std::vector<std::uint32_t> pixels;
        std::function<Raster()> decode = {};  ///< makes the pixels, if they come later
        mutable std::once_flag isDecoded = {};
        mutable std::once_flag isKeyKnown = {};
        mutable Key key = {};
    };

    const std::vector<std::uint32_t>& pixels() const {
        const Shared* const shared = m_shared.get();
        if (shared == nullptr) {
            return m_pixels;
        }
        if (shared->decode) {
            std::call_once(shared->isDecoded, [shared] { decodeInto(*shared); });
        }
        return shared->pixels;
    }
    std::vector<std::uint32_t>& ownPixels() {
        if (m_shared != nullptr) {
            const std::vector<std::uint32_t>& known = pixels();
            reserve(m_pixels, known.size());
            m_pixels = known;
            m_shared.reset();
        }
        return m_pixels;
    }
    /// Room for so many pixels. A large picture that grows, as outlines do by the text of a sheet,
    /// finds as much again: what it does not take of that is no memory yet.
    static void reserve(std::vector<std::uint32_t>& pixels, std::size_t count) {
        constexpr std::size_t large = 1U << 16U, largest = 1U << 22U;
        pixels.reserve(count >= large && count < largest ? 2 * count : count);
    }
    Raster(int width, int height, std::vector<std::uint32_t>&& pixels);
    static void decodeInto(const Shared& shared);
    Key workOutKey() const;
    std::size_t index(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) +
               static_cast<std::size_t>(x);
    }

    int m_width = 0;
    int m_height = 0;
    std::vector<std::uint32_t> m_pixels;  // empty if it shares
    std::shared_ptr<const Shared> m_shared;
};

}  // namespace fleetwright
