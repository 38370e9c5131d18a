#pragma once

#include "formula_calculate.h"

#include <string>

namespace fleetwright {

class SettingsStore;

/// The application's title, which is also its name in the settings store.
inline constexpr const char* applicationTitle = "FleetWright";

/// What lives as long as the program: the formula library and the settings read at its start.
/// `app` owns the one there is.
struct Globals {
    void* g_hFormulaLib = nullptr;  ///< the loaded formula library
    /// The function of the formula library.
    FormulaFunction formula = nullptr;
    bool g_bSounds = true;       ///< the closing sound is played
    bool g_bHide = true;         ///< a minimized main window is hidden
    bool g_bConfirmExit = true;  ///< closing asks when the ship is not saved
    /// The designer of the first ship of a run.
    std::string g_sDefaultDesigner = "Nils's Iron Vector Ship Creator";

    /// Reads the settings. A switch is on only where the text is "True" to the letter.
    void readSettings(const SettingsStore& store);
};

}  // namespace fleetwright
