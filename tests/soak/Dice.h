#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <random>

namespace fleetwright {

/// Chance; the same on every machine for the same seed.
class Dice {
public:
    explicit Dice(std::uint64_t seed) : m_numbers(seed) {}

    /// A number from 0 on and below `end`, which is above 0.
    int below(int end) { return static_cast<int>(m_numbers() % static_cast<std::uint64_t>(end)); }
    bool oneIn(int number) { return below(number) == 0; }

    /// One of several things, of which there is at least one.
    template <typename Things>
    auto& pick(Things& things) {
        return *std::next(std::begin(things), below(static_cast<int>(std::size(things))));
    }

private:
    std::mt19937_64 m_numbers;
};

}  // namespace fleetwright
