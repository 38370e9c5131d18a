#include "base64.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace fleetwright {

namespace {

constexpr std::string_view digits =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr unsigned bitsOfDigit = 6;
constexpr std::size_t digitsOfGroup = 4;
constexpr char padding = '=';

constexpr std::uint8_t noDigit = 0xFF;
constexpr std::array<std::uint8_t, 256> digitValues = [] {
    std::array<std::uint8_t, 256> values{};
    values.fill(noDigit);
    for (std::size_t value = 0; value < digits.size(); ++value) {
        values[static_cast<unsigned char>(digits[value])] = static_cast<std::uint8_t>(value);
    }
    return values;
}();

}  // namespace

std::string toBase64(std::string_view bytes) {
    constexpr std::size_t digitsOfLine = 76;
    std::string text;
    std::size_t inLine = 0;
    const auto append = [&](char digit) {
        if (inLine == digitsOfLine) {
            text += '\n';
            inLine = 0;
        }
        text += digit;
        ++inLine;
    };
    for (std::size_t at = 0; at < bytes.size(); at += digitsOfGroup - 1) {
        const std::string_view group = bytes.substr(at, digitsOfGroup - 1);
        std::uint32_t bits = 0;
        for (std::size_t i = 0; i < digitsOfGroup - 1; ++i) {
            bits = bits << 8U | (i < group.size() ? static_cast<unsigned char>(group[i]) : 0U);
        }
        for (std::size_t i = 0; i < digitsOfGroup; ++i) {
            const std::uint32_t digit = bits >> (digitsOfGroup - 1 - i) * bitsOfDigit & 0x3FU;
            append(i <= group.size() ? digits[digit] : padding);
        }
    }
    return text;
}

std::optional<std::string> fromBase64(std::string_view text) {
    std::string bytes;
    std::uint32_t bits = 0;
    std::size_t count = 0, padded = 0;  // characters without white space, and those that pad
    for (const char c : text) {
        if (c == ' ' || c == '\t' || c == '\r' || c == '\n') {
            continue;
        }
        const std::uint8_t value = digitValues[static_cast<unsigned char>(c)];
        padded += c == padding ? 1U : 0U;
        if (c != padding && (value == noDigit || padded > 0)) {
            return std::nullopt;
        }
        bits = bits << bitsOfDigit | (c == padding ? 0U : value);
        if (++count % digitsOfGroup == 0) {
            for (unsigned shift = 24; shift > 0; shift -= 8) {
                bytes += static_cast<char>(bits >> (shift - 8) & 0xFFU);
            }
        }
    }
    if (count % digitsOfGroup != 0 || padded > 2) {
        return std::nullopt;
    }
    bytes.resize(bytes.size() - padded);
    return bytes;
}

}  // namespace fleetwright
