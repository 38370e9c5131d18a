#pragma once

#include <string>
#include <string_view>

namespace fleetwright {

/// The arcs that a drawing has places in, a letter each: fore, port, starboard, aft and belly.
inline constexpr std::string_view sheetArcs = "FPSAB";

/// Whether a system with these arc letters has a place on a drawing: not if they begin with 6 or O.
constexpr bool hasSheetPlace(std::string_view arcLetters) {
    return !arcLetters.starts_with('6') && !arcLetters.starts_with('O');
}

/// The fields of fire of a system, as letters: F fore, P port, S starboard, A aft. A name says them
/// in brackets at its end, as "(FP)" or "(All)"; of another system the arc letters do, unless the
/// centre line is among them: then they say where on the drawing there is room for it, and no
/// direction. Nothing for a system with no place on the drawing.
std::string_view fieldsOfFire(std::string_view name, std::string_view arcLetters);

/// The same in words, as "fore, port" or "all round".
std::string arcWords(std::string_view name, std::string_view arcLetters);

}  // namespace fleetwright
