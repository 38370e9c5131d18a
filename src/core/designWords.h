#pragma once

// The words for a design. Those for its codes stand in ship files and the printed report alike, as
// lines "Key: word"; those for its size are shown.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace fleetwright {

/// "Type: Warship" and so on; empty for an unknown code.
std::string hullLine(std::int32_t hullType);

/// "Warship" and so on; empty for an unknown code.
std::string_view hullWord(std::int32_t hullType);

/// "Streamlining: Partial" or "Streamlining: Full"; empty for none.
std::string streamlineLine(std::int32_t level);

/// "Armor: Level 1" or "Armor: Level 2"; empty for none.
std::string armorLine(std::int32_t level);

/// "FTL: None", "FTL: Normal" or "FTL: Tug"; empty for an unknown code.
std::string ftlLine(std::int32_t ftl);

/// The word of such a line, or another text if the line is empty.
std::string wordOf(const std::string& line, std::string_view otherwise = {});

/// The code of a hull type's word, in any case.
std::optional<std::int32_t> hullTypeOf(std::string_view word);

/// The code of a drive's word, exact in its case.
std::optional<std::int32_t> ftlOf(std::string_view word);

/// The level, 1 or 2, of a word for streamlining, exact in its case.
std::optional<std::int32_t> streamlineOf(std::string_view word);

/// Why a base neither moves nor is streamlined.
inline constexpr const char* noThrust = "a base has no thrust";
inline constexpr const char* noStreamlining = "a base has no streamlining";
inline constexpr const char* noFtlDrive = "a base has no FTL drive";

/// The broad class of a ship of this mass: "Escort" to "Supership".
std::string_view classOf(std::int32_t mass);

/// The designation of a ship of this mass: "Courier" to "SuperShip".
std::string_view designationOf(std::int32_t mass);

/// The words for all kinds of ships: hull types, classes and designations. The class and the
/// designation of the heaviest ships differ in their case alone, so there is only the class.
std::vector<std::string_view> shipKinds();

// What is drawn on a sheet like a system, and is none of the catalogue.
inline constexpr const char* fireControlName = "Fire Control";
inline constexpr std::string_view thrustDriveWords = "Thrust Drive ";
/// "Thrust Drive 4".
std::string thrustDriveName(std::int32_t thrust);
/// "FTL Drive" or "FTL Tug Drive"; empty for none.
std::string_view ftlDriveName(std::int32_t ftl);

}  // namespace fleetwright
