#pragma once

#include "formula_calculate.h"

#include <cstdint>
#include <string>

namespace fleetwright {

/// What lives as long as the program: the settings read at the start, the formula library, and
/// the largest hull that can be drawn. `app` owns the one there is.
struct Globals {
    /// The function of the formula library.
    FormulaFunction formula = nullptr;
    bool g_bSounds = true;
    bool g_bHide = true;         ///< a minimized window leaves the task bar
    bool g_bConfirmExit = true;  ///< closing asks when the ship is not saved
    std::string g_sDefaultDesigner = "Nils's Iron Vector Ship Creator";
    /// Largest hull mass for which there is a map, 100 at the most; 0 without any.
    std::int16_t g_iLargestSSD = 0;
};

/// The application's title, which is also its name in the settings store.
inline constexpr const char* applicationTitle = "FleetWright";

}  // namespace fleetwright
