#pragma once

// The parts of a PNG file, without a look at its pixels.

#include <string>
#include <string_view>

namespace fleetwright {

/// The bytes that each PNG file begins with.
inline constexpr std::string_view pngSignature = "\x89PNG\r\n\x1A\n";

/// A part of the file.
struct PngChunk {
    std::string_view type;  ///< as "IDAT"
    std::string_view data;
    std::string_view bytes;  ///< all of it

    /// Whether its checksum is right.
    bool isSound() const;
};

/// Steps through the chunks of a file.
class PngChunks {
public:
    /// A file with that signature; it outlives this.
    explicit PngChunks(std::string_view png);

    /// Puts the next one into `chunk`; false behind the last one, and where the file is cut short.
    bool next(PngChunk& chunk);
    /// Whether the chunk that ends a file was there.
    bool isWhole() const { return m_isWhole; }

private:
    std::string_view m_rest;
    bool m_isWhole = false;
};

/// The bytes of a chunk.
std::string pngChunk(std::string_view type, std::string_view data);

}  // namespace fleetwright
