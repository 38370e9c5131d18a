#include "frmExtras.h"

#include "Desktop.h"
#include "Error.h"
#include "Globals.h"
#include "SettingsStore.h"

namespace fleetwright {

frmExtras::frmExtras(Services services)
    : Form({.name = "frmExtras", .caption = "Extras", .width = 3570, .height = 5340}),
      m_services(std::move(services)) {
    txtDesigner.onKeyPress = [this](int key) { return txtDesigner_KeyPress(key); };
    txtShipName.onKeyPress = [this](int key) { return txtShipName_KeyPress(key); };
}

void frmExtras::Form_Load() {
    const Globals& globals = m_services.globals;
    chkSounds.setTicked(globals.g_bSounds);
    chkMinimized.setTicked(globals.g_bHide);
    chkConfirmExit.setTicked(globals.g_bConfirmExit);
    txtDesigner.setText(globals.g_sDefaultDesigner);
}

void frmExtras::Form_Activate() {
    if (!m_wasActive) {
        m_wasActive = true;
        txtDesigner.setFocus();
    }
}

bool frmExtras::txtDesigner_KeyPress(int KeyAscii) {
    if (KeyAscii != EnterKey) {
        return false;
    }
    txtShipName.setFocus();
    return true;
}

bool frmExtras::txtShipName_KeyPress(int KeyAscii) {
    if (KeyAscii != EnterKey) {
        return false;
    }
    cmdOK.setFocus();
    return true;
}

void frmExtras::cmdOK_Click() {
    m_services.nameShip(txtDesigner.text(), txtShipName.text());
    m_services.globals.g_bHide = chkMinimized.isTicked();
    unload();
}

void frmExtras::cmdClearMRU_Click() {
    store([this] { m_services.clearRecentFiles(); });
}

void frmExtras::cmdSaveSettings_Click() {
    const auto storeSwitch = [this](const char* key, const CheckBox& box, bool& flag) {
        m_services.settings.write("Settings", key, box.isTicked() ? "True" : "False");
        flag = box.isTicked();
    };
    store([&] {
        Globals& globals = m_services.globals;
        storeSwitch("Sounds", chkSounds, globals.g_bSounds);
        storeSwitch("Hide", chkMinimized, globals.g_bHide);
        storeSwitch("ConfirmExit", chkConfirmExit, globals.g_bConfirmExit);
        // The default of this run stays: the new one is for the next start.
        m_services.settings.write("Names", "Designer", txtDesigner.text());
    });
}

/// Stores settings; where that is not possible, the user would else learn of it at the next start.
void frmExtras::store(const std::function<void()>& settings) {
    try {
        settings();
    } catch (const FileError& error) {
        showFileError(m_services.desktop, error);
    }
}

}  // namespace fleetwright
