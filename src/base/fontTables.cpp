#include "fontTables.h"

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <stdexcept>
#include <utility>

namespace fleetwright {

namespace {

constexpr unsigned byteBits = 8;

std::uint32_t byteAt(std::string_view bytes, std::size_t at) {
    return static_cast<unsigned char>(bytes[at]);
}

/// The sum of the numbers of four bytes that make up a table.
std::uint32_t sumOf(std::string_view table) {
    std::uint32_t sum = 0;
    for (std::size_t at = 0; at < table.size(); at += 4) {
        sum += byteAt(table, at) << 24U | byteAt(table, at + 1) << 16U |
               byteAt(table, at + 2) << 8U | byteAt(table, at + 3);
    }
    return sum;
}

}  // namespace

void addFontNumber(std::string& bytes, std::uint32_t number, int count) {
    char written[4];
    for (int byte = 3; byte >= 0; --byte) {
        written[byte] = static_cast<char>(number & 0xFFU);
        number >>= byteBits;
    }
    bytes.append(written + 4 - count, static_cast<std::size_t>(count));
}

std::uint32_t fontNumber(std::string_view bytes, std::size_t at, int count) {
    const auto size = static_cast<std::size_t>(count);
    if (at > bytes.size() || size > bytes.size() - at) {
        throw std::out_of_range("a table of the font is cut off");
    }
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < size; ++i) {
        number = number << byteBits | byteAt(bytes, at + i);
    }
    return number;
}

std::string fontNames(std::string_view family, std::string_view style) {
    std::string joined(family);
    joined.erase(std::remove(joined.begin(), joined.end(), ' '), joined.end());
    const std::pair<std::uint32_t, std::string> names[] = {
        {1, std::string(family)},
        {2, std::string(style)},
        {4, std::string(family) + ' ' + std::string(style)},
        {6, joined + '-' + std::string(style)}};
    std::string rows;
    std::string texts;
    for (const auto& [id, name] : names) {
        // For Windows, UTF-16, English.
        for (const std::uint32_t number :
             {3U, 1U, 0x409U, id, static_cast<std::uint32_t>(2 * name.size()),
              static_cast<std::uint32_t>(texts.size())}) {
            addFontNumber(rows, number, 2);
        }
        for (const char c : name) {
            texts += {'\0', c};
        }
    }
    constexpr std::uint32_t headSize = 6;
    std::string table;
    for (const std::uint32_t number : {0U, static_cast<std::uint32_t>(std::size(names)),
                                       headSize + static_cast<std::uint32_t>(rows.size())}) {
        addFontNumber(table, number, 2);
    }
    return table + rows + texts;
}

std::string fontFile(std::string_view kind, FontTables tables) {
    const auto count = static_cast<std::uint32_t>(tables.size());
    std::uint32_t power = 1;  // the greatest power of two among the tables, which readers search by
    std::uint32_t exponent = 0;
    for (; 2 * power <= count; power *= 2) {
        ++exponent;
    }
    constexpr std::uint32_t rowSize = 16;
    std::string file(kind);
    for (const std::uint32_t number :
         {count, rowSize * power, exponent, rowSize * (count - power)}) {
        addFontNumber(file, number, 2);
    }
    const std::size_t start = file.size() + std::size_t{rowSize} * count;
    std::size_t size = start;
    std::size_t sumPlace = start;  // that of the table "head", which each font has
    for (auto& [tag, table] : tables) {
        if (tag == "head") {
            table.replace(8, 4, 4, '\0');
            sumPlace = size + 8;
        }
        const auto length = static_cast<std::uint32_t>(table.size());
        table.append((4 - table.size() % 4) % 4, '\0');
        file += tag;
        addFontNumber(file, sumOf(table), 4);
        addFontNumber(file, static_cast<std::uint32_t>(size), 4);
        addFontNumber(file, length, 4);
        size += table.size();
    }
    file.reserve(size);
    for (const auto& [tag, table] : tables) {
        file += table;
    }
    std::string sum;
    constexpr std::uint32_t sumOfAll = 0xB1B0AFBA;
    addFontNumber(sum, sumOfAll - sumOf(file), 4);
    return file.replace(sumPlace, 4, sum);
}

}  // namespace fleetwright
