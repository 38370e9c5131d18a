#pragma once

#include "formula_calculate.h"

#include <string>

namespace fleetwright {

/// What lives as long as the program: the formula library and the settings. `app` owns the one
/// there is.
struct Globals {
    /// The function of the formula library.
    FormulaFunction formula = nullptr;
    bool g_bConfirmExit = true;  ///< closing asks when the ship is not saved
    std::string g_sDefaultDesigner = "Nils's Iron Vector Ship Creator";
};

/// The application's title, which is also its name in the settings store.
inline constexpr const char* applicationTitle = "FleetWright";

}  // namespace fleetwright
