#pragma once

#include "SSDMaps.h"
#include "formula_calculate.h"

#include <cstdint>
#include <string>
#include <vector>

namespace fleetwright {

class SettingsStore;

/// The application's title, which is also its name in the settings store.
inline constexpr const char* applicationTitle = "FleetWright";

/// The product that the application is.
inline constexpr const char* productName = "Iron Vector Ship Creator";

/// What lives as long as the program: the formula library, the settings and the maps that its start
/// has read. `app` owns the one there is.
struct Globals {
    void* g_hFormulaLib = nullptr;  ///< the loaded formula library
    /// The function of the formula library.
    FormulaFunction formula = nullptr;
    bool g_bSounds = true;       ///< the closing sound is played
    bool g_bHide = true;         ///< a minimized main window is hidden
    bool g_bConfirmExit = true;  ///< closing asks when the ship is not saved
    /// The designer of the first ship of a run.
    std::string g_sDefaultDesigner = "Nils's Iron Vector Ship Creator";
    SSDMaps g_colSSDMaps;                 ///< all maps that were read
    std::vector<DroppedMap> droppedMaps;  ///< those that were not
    std::int16_t g_iLargestSSD = 0;  ///< mass of the largest ship that a map serves; at most 100

    /// Reads the settings. A switch is on only where the text is "True" to the letter.
    void readSettings(const SettingsStore& store);
};

}  // namespace fleetwright
