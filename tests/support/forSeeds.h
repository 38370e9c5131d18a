#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>
#include <string>

namespace fleetwright {

/// Tries a property with two seeds, others in each run, and says which one has failed; with one
/// under the sanitizers, which take their time. With FLEETWRIGHT_SEED in the environment it tries
/// that one.
template <typename Property>
void forSeeds(const Property& property) {
#ifdef FLEETWRIGHT_SANITIZED
    constexpr int rounds = 1;
#else
    constexpr int rounds = 2;
#endif
    const char* const again = std::getenv("FLEETWRIGHT_SEED");
    for (int round = 0; round < rounds; ++round) {
        const unsigned seed = again != nullptr
                                  ? static_cast<unsigned>(std::strtoul(again, nullptr, 10))
                                  : std::random_device{}();
        SCOPED_TRACE("FLEETWRIGHT_SEED=" + std::to_string(seed));
        std::mt19937 random(seed);
        property(random);
    }
}

/// A number from `least` to `most`.
inline int anyOf(std::mt19937& random, int least, int most) {
    return std::uniform_int_distribution<int>(least, most)(random);
}

}  // namespace fleetwright
