#pragma once

// The words for the codes of a design. Ship files and the printed report write them alike, as
// lines "Key: word".

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace fleetwright {

/// "Type: Warship" and so on; empty for an unknown code.
std::string hullLine(std::int32_t hullType);

/// "Streamlining: Partial" or "Streamlining: Full"; empty for none.
std::string streamlineLine(std::int32_t level);

/// "Armor: Level 1" or "Armor: Level 2"; empty for none.
std::string armorLine(std::int32_t level);

/// "FTL: None", "FTL: Normal" or "FTL: Tug"; empty for an unknown code.
std::string ftlLine(std::int32_t ftl);

/// The code of a hull type's word, in any case.
std::optional<std::int32_t> hullTypeOf(std::string_view word);

/// The code of a drive's word, exact in its case.
std::optional<std::int32_t> ftlOf(std::string_view word);

/// The level, 1 or 2, of a word for streamlining, exact in its case.
std::optional<std::int32_t> streamlineOf(std::string_view word);

/// The factor 0.0, 0.5 or 1.0 of an armor or streamlining level 0, 1 or 2.
std::optional<double> factorOf(std::int32_t level);

/// The level of a factor: 1 for exactly 0.5, 2 for exactly 1.0, else 0.
std::int32_t levelOf(double factor);

}  // namespace fleetwright
