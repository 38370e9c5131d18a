#include "Globals.h"

#include "SettingsStore.h"

namespace fleetwright {

void Globals::readSettings(const SettingsStore& store) {
    const auto isOn = [&store](const char* key) {
        return store.read("Settings", key, "True") == "True";
    };
    g_bSounds = isOn("Sounds");
    g_bHide = isOn("Hide");
    g_bConfirmExit = isOn("ConfirmExit");
    g_sDefaultDesigner = store.read("Names", "Designer", g_sDefaultDesigner);
}

}  // namespace fleetwright
