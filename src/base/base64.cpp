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

/// The digits of 12 bits, two each.
constexpr auto pairsOfDigits = [] {
    std::array<std::array<char, 2>, std::size_t{1} << 2 * bitsOfDigit> pairs{};
    for (std::size_t value = 0; value < pairs.size(); ++value) {
        pairs[value] = {codeDigits[value >> bitsOfDigit], codeDigits[value & 0x3FU]};
    }
    return pairs;
}();

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
    const auto write = [&written](unsigned char first, unsigned char second, unsigned char third) {
        const std::uint32_t bits =
            std::uint32_t{first} << 16U | std::uint32_t{second} << 8U | third;
        for (const std::uint32_t pair : {bits >> 2 * bitsOfDigit, bits & 0xFFFU}) {
            *written++ = pairsOfDigits[pair][0];
            *written++ = pairsOfDigits[pair][1];
        }
    };
    const auto* const data = reinterpret_cast<const unsigned char*>(bytes.data());
    const std::size_t missing = groups * bytesOfGroup - bytes.size();
    const std::size_t wholeGroups = missing == 0 ? groups : groups - 1;
    std::size_t left = hasLines ? groupsOfLine : groups;  // groups of this line
    for (std::size_t group = 0; group < groups; ++group, --left) {
        if (left == 0) {
            ++written;
            left = groupsOfLine;
        }
        const unsigned char* const at = data + group * bytesOfGroup;
        if (group < wholeGroups) {
            write(at[0], at[1], at[2]);
        } else {
            write(at[0], missing == 1 ? at[1] : 0, 0);
        }
    }
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
