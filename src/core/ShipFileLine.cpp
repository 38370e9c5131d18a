#include "ShipFileLine.h"

#include "strfcns.h"
#include "text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

namespace fleetwright {

namespace {

/// The words of the keys, in the order of the keys.
constexpr std::array<std::string_view, 9> keyWords = {"Ship Name", "Designer Name", "Mass",
                                                      "Thrust",    "Type",          "Streamlining",
                                                      "Armor",     "FTL",           "System"};
static_assert(keyWords.size() == static_cast<std::size_t>(ShipKey::Unknown));

ShipKey shipKeyOf(std::string_view text) {
    return static_cast<ShipKey>(std::ranges::find(keyWords, text) - keyWords.begin());
}

std::string nextPiece(std::string_view delims) {
    std::string goOn;
    return std::string(trimmed(strTok(goOn, delims, true)));
}

}  // namespace

std::string refusalText(Refusal why, std::string_view system) {
    return why == Refusal::CloakRule ? "a merchant hull cannot have a cloak and other systems"
                                     : "unknown system " + quote(system);
}

ShipFileLine cutShipFileLine(std::string& line) {
    ShipFileLine cut;
    cut.keyText = strTok(line, ":", true);
    cut.key = shipKeyOf(cut.keyText);
    switch (cut.key) {
    case ShipKey::Unknown:
        break;
    case ShipKey::Armor:
        cut.value = lastCharacter(line);
        break;
    case ShipKey::System: {
        std::string value = nextPiece(":");
        cut.value = trimmed(strTok(value, ",", true));
        cut.amount = nextPiece(",");
        break;
    }
    default:
        cut.value = nextPiece(":");
    }
    return cut;
}

std::string shipLine(ShipKey key, std::string_view value) {
    return std::string(keyWords.at(static_cast<std::size_t>(key))).append(": ").append(value);
}

std::optional<std::string> valueIn(std::string_view shipFile, ShipKey key) {
    std::optional<std::string> value;
    LineReader lines(shipFile);
    for (std::string_view line; lines.next(line);) {
        std::string cuttable(line);
        if (ShipFileLine cut = cutShipFileLine(cuttable); cut.key == key) {
            value = std::move(cut.value);
        }
    }
    return value;
}

}  // namespace fleetwright
