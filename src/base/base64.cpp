#include "base64.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace fleetwright {

namespace {

constexpr std::string_view codeDigits =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr unsigned bitsOfDigit = 6;
constexpr std::size_t digitsOfGroup = 4;
constexpr char padding = '=';

constexpr std::uint8_t noDigit = 0xFF;
constexpr std::array<std::uint8_t, 256> digitValues = [] {
    std::array<std::uint8_t, 256> values{};
    values.fill(noDigit);
    for (std::size_t value = 0; value < codeDigits.size(); ++value) {
        values[static_cast<unsigned char>(codeDigits[value])] = static_cast<std::uint8_t>(value);
    }
    return values;
}();

}  // namespace

std::string toBase64(std::string_view bytes, Base64Lines lines) {
    constexpr std::size_t groupsOfLine = 19;
    constexpr std::size_t bytesOfGroup = digitsOfGroup - 1;
    const std::size_t groups = (bytes.size() + bytesOfGroup - 1) / bytesOfGroup;
    const bool hasLines = lines == Base64Lines::Many && groups > 0;
    std::string text(groups * digitsOfGroup + (hasLines ? (groups - 1) / groupsOfLine : 0), '\n');
    auto written = text.begin();
    const auto byteAt = [bytes](std::size_t at) -> std::uint32_t {
        return at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : 0U;
    };
    for (std::size_t group = 0; group < groups; ++group) {
        if (hasLines && group > 0 && group % groupsOfLine == 0) {
            ++written;
        }
        const std::size_t at = group * bytesOfGroup;
        const std::uint32_t bits = byteAt(at) << 16U | byteAt(at + 1) << 8U | byteAt(at + 2);
        for (unsigned digit = digitsOfGroup; digit-- > 0;) {
            *written++ = codeDigits[bits >> digit * bitsOfDigit & 0x3FU];
        }
    }
    const std::size_t missing = groups * bytesOfGroup - bytes.size();
    std::fill_n(text.rbegin(), missing, padding);
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
