#include "fingerprint.h"

#include <cstdint>

namespace fleetwright {

std::string fingerprint(std::string_view bytes) {
    std::uint64_t hash = 0xcbf29ce484222325;
    for (const char byte : bytes) {
        hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001b3;
    }
    return std::to_string(bytes.size()) + '-' + std::to_string(hash);
}

}  // namespace fleetwright
