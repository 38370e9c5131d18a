// Designs as codes. An input is a text that may hold one, or behind a NUL a ship file, and behind
// that what its code meets on its way.

#include "Choices.h"
#include "designCode.h"
#include "require.h"

#include <algorithm>
#include <cstdint>
#include <string>

using namespace fleetwright;

namespace {

/// What a text is read as; empty if it is refused.
std::string shipIn(const std::string& text) {
    try {
        return "a ship: " + shipInCode(text);
    } catch (const DesignCodeError& error) {
        requireSame(shownText(error.what(), 1000), error.what(),
                    "what is wrong is said in one line that only shows");
        return {};
    }
}

void checkText(const std::string& text) {
    const std::string ship = shipIn(text);
    require(ship.empty() || hasDesignCode(text), "a ship comes from a code");
    require(!isDesignCode(text) || hasDesignCode(text), "what is meant as a code has one");
}

void checkShip(const std::string& ship, Choices& choices) {
    std::string code = designCode(ship);
    const std::string whole = "a ship: " + ship;
    require(isDesignCode(code) && shipIn(code) == whole, "a code holds its ship file to the byte");
    require(shipIn(toSmallLetters(code)) == whole, "in small letters, too");
    constexpr std::size_t first = std::string_view("FW1:").size();
    const std::size_t letter =
        first + static_cast<std::size_t>(choices.below(static_cast<int>(code.size() - first)));
    static const std::string gaps[] = {" ", "\r\n", "\n\n", "\u00A0", "\u200B"};
    requireSame(
        shipIn("<" + code.substr(0, letter) + choices.pick(gaps) + code.substr(letter) + ">"),
        whole, "and with what mails put between the letters");
    require(shipIn(code + "; " + code) == whole, "twice is once");
    const std::string before = code;
    switch (choices.below(4)) {
    case 0:
        code[letter] = "0123456789ABCDEFGHJKMNPQRSTVWXYZ"[choices.below(32)];
        break;
    case 1:
        code.erase(letter, 1 + static_cast<std::size_t>(choices.below(4)));
        break;
    case 2:
        std::swap(code[letter], code.back());
        break;
    default:
        code.insert(letter, 1, code[letter]);
    }
    require(code == before || shipIn(code).empty() || shipIn(code) == whole,
            "what is damaged is never taken for another ship");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::uint8_t* const end = data + size;
    const std::uint8_t* const first = std::find(data, end, std::uint8_t{0});
    if (first == end) {
        checkText(std::string(data, end));
        checkText("FW1:" + std::string(data, end));
        return 0;
    }
    const std::uint8_t* const second = std::find(first + 1, end, std::uint8_t{0});
    Bytes choices({second, end});
    checkShip(std::string(first + 1, second), choices);
    return 0;
}
