#include "PngChunks.h"

#include <zlib.h>

#include <cstdint>

namespace fleetwright {

namespace {

constexpr std::size_t numberSize = 4, typeSize = 4;

/// The checksum of a chunk, which covers its type and its data.
std::uint32_t crcOf(std::string_view bytes) {
    return static_cast<std::uint32_t>(
        crc32_z(0, reinterpret_cast<const Bytef*>(bytes.data()), bytes.size()));
}

std::uint32_t numberAt(std::string_view bytes) {
    std::uint32_t number = 0;
    for (const char byte : bytes.substr(0, numberSize)) {
        number = number << 8U | static_cast<unsigned char>(byte);
    }
    return number;
}

std::string bytesOf(std::uint32_t number) {
    return {static_cast<char>(number >> 24U), static_cast<char>(number >> 16U & 0xFFU),
            static_cast<char>(number >> 8U & 0xFFU), static_cast<char>(number & 0xFFU)};
}

}  // namespace

bool PngChunk::isSound() const {
    const std::string_view checked = bytes.substr(numberSize, typeSize + data.size());
    return crcOf(checked) == numberAt(bytes.substr(bytes.size() - numberSize));
}

PngChunks::PngChunks(std::string_view png) : m_rest(png.substr(pngSignature.size())) {}

bool PngChunks::next(PngChunk& chunk) {
    constexpr std::size_t around = numberSize + typeSize + numberSize;
    if (m_isWhole || m_rest.size() < around || numberAt(m_rest) > m_rest.size() - around) {
        return false;
    }
    const std::size_t size = numberAt(m_rest);
    chunk = {.type = m_rest.substr(numberSize, typeSize),
             .data = m_rest.substr(numberSize + typeSize, size),
             .bytes = m_rest.substr(0, around + size)};
    m_isWhole = chunk.type == "IEND";
    m_rest.remove_prefix(chunk.bytes.size());
    return true;
}

std::string pngChunk(std::string_view type, std::string_view data) {
    const std::string checked = std::string(type) + std::string(data);
    return bytesOf(static_cast<std::uint32_t>(data.size())) + checked + bytesOf(crcOf(checked));
}

}  // namespace fleetwright
