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

std::string toBase64(std::string_view bytes, Base64Lines lines) {
    constexpr std::size_t digitsOfLine = 76;
    constexpr std::size_t bytesOfGroup = digitsOfGroup - 1;
    std::string text;
    text.reserve(bytes.size() / 2 * 3);
    for (std::size_t at = 0; at < bytes.size(); at += bytesOfGroup) {
        if (lines == Base64Lines::Many && at > 0 &&
            at % (digitsOfLine / digitsOfGroup * bytesOfGroup) == 0) {
            text += '\n';
        }
        const std::string_view group = bytes.substr(at, bytesOfGroup);
        std::uint32_t bits = 0;
        for (std::size_t i = 0; i < bytesOfGroup; ++i) {
            bits = bits << 8U | (i < group.size() ? static_cast<unsigned char>(group[i]) : 0U);
        }
        char written[digitsOfGroup];
        for (std::size_t i = 0; i < digitsOfGroup; ++i) {
            const std::uint32_t digit = bits >> (digitsOfGroup - 1 - i) * bitsOfDigit & 0x3FU;
            written[i] = i <= group.size() ? digits[digit] : padding;
        }
        text.append(written, digitsOfGroup);
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
