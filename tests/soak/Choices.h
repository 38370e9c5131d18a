#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <random>
#include <span>

namespace fleetwright {

/// Where an actor's choices come from.
class Choices {
public:
    Choices() = default;
    Choices(const Choices&) = delete;
    Choices& operator=(const Choices&) = delete;
    virtual ~Choices() = default;

    /// A number from 0 on and below `end`, which is above 0.
    virtual int below(int end) = 0;
    bool oneIn(int number) { return below(number) == 0; }
    /// One of several things, of which there is at least one.
    template <typename Things>
    auto& pick(Things& things) {
        return *std::next(std::begin(things), below(static_cast<int>(std::size(things))));
    }
};

/// Chance; the same on every machine for the same seed.
class Dice : public Choices {
public:
    explicit Dice(std::uint64_t seed) : m_numbers(seed) {}

    int below(int end) override {
        return static_cast<int>(m_numbers() % static_cast<std::uint64_t>(end));
    }

private:
    std::mt19937_64 m_numbers;
};

/// The bytes that a fuzzer makes up; 0 for ever when they are used up.
class Bytes : public Choices {
public:
    explicit Bytes(std::span<const std::uint8_t> bytes) : m_rest(bytes) {}

    bool areOver() const { return m_rest.empty(); }
    int below(int end) override {
        constexpr int values = 0x100;
        const int number = next();
        return (end > values ? number * values + next() : number) % end;
    }

private:
    int next() {
        const int byte = m_rest.empty() ? 0 : m_rest.front();
        m_rest = m_rest.subspan(m_rest.empty() ? 0 : 1);
        return byte;
    }

    std::span<const std::uint8_t> m_rest;
};

}  // namespace fleetwright
