#pragma once

#include "HullRules.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace fleetwright {

/// The numbers of a ship. A further figure is added here and worked out in `ShipClass::workOut`;
/// whatever shows, keeps, compares or undoes has it then. Nothing but numbers, so that each
/// recalculation can keep them all and put them back at no cost.
struct ShipNumbers {
    HullDesign hull;          ///< the hull as it is designed
    HullFigures lastHull;     ///< what the last recalculation has made of the hull that it found
    std::int32_t g_iDCP = 0;  ///< damage control parties
    std::int32_t g_iFCS = 0;  ///< fire control systems
    std::int32_t g_iDamRows = 0;   ///< damage rows
    std::int32_t g_iDP = 0;        ///< damage points
    std::int32_t g_lCost = 0;      ///< cost of the whole ship
    std::int32_t g_iMassLeft = 0;  ///< mass left for systems; negative when overloaded
    bool g_bAutoMass = false;      ///< recalculations fit the hull mass to the systems
    bool g_bSaved = true;          ///< nothing has changed since the last save or load

    friend bool operator==(const ShipNumbers&, const ShipNumbers&) = default;
};
static_assert(std::is_trivially_copyable_v<ShipNumbers>);

/// The whole numbers among them, one behind the other: all but the two flags at their end.
inline constexpr std::size_t shipWordCount = offsetof(ShipNumbers, g_bAutoMass) / 4;
static_assert(sizeof(ShipNumbers) == 4 * shipWordCount + 4);
using ShipWords = std::array<std::uint32_t, shipWordCount>;

inline ShipWords wordsOf(const ShipNumbers& numbers) {
    ShipWords words;
    std::memcpy(words.data(), &numbers, sizeof words);
    return words;
}
inline void setWords(ShipNumbers& numbers, const ShipWords& words) {
    std::memcpy(static_cast<void*>(&numbers), words.data(), sizeof words);
}

/// What a ship is called.
struct ShipNames {
    std::string g_sShipName = "Generic";
    std::string g_sDesignerName = "Nils's Iron Vector Creator";
    std::string g_sSaveName;         ///< path of the ship file; empty without one
    std::string g_sTrimmedFileName;  ///< name of the ship file, without folder and extension
    std::string origin;              ///< path of the file last loaded or saved, even of a sheet

    friend bool operator==(const ShipNames&, const ShipNames&) = default;
};

/// All that a ship is at one moment, to go back to or to compare. It belongs to one catalogue.
struct ShipState : ShipNumbers, ShipNames {
    /// How many pieces of each system there are, by record; zeros are left out.
    std::vector<std::pair<std::size_t, std::int32_t>> amounts;

    friend bool operator==(const ShipState&, const ShipState&) = default;
};

}  // namespace fleetwright
