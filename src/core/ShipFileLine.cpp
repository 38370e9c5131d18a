#include "ShipFileLine.h"

#include "strfcns.h"
#include "text.h"

#include <array>
#include <utility>

namespace fleetwright {

namespace {

ShipKey shipKeyOf(std::string_view text) {
    static constexpr std::array<std::pair<std::string_view, ShipKey>, 9> keys = {{
        {"Ship Name", ShipKey::ShipName},
        {"Designer Name", ShipKey::DesignerName},
        {"Mass", ShipKey::Mass},
        {"Thrust", ShipKey::Thrust},
        {"Type", ShipKey::Type},
        {"Streamlining", ShipKey::Streamlining},
        {"Armor", ShipKey::Armor},
        {"FTL", ShipKey::Ftl},
        {"System", ShipKey::System},
    }};
    for (const auto& [word, key] : keys) {
        if (word == text) {
            return key;
        }
    }
    return ShipKey::Unknown;
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
