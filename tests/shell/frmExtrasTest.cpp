#include "frmExtras.h"

#include "Globals.h"
#include "fakeServices.h"

#include <gtest/gtest.h>

using namespace fleetwright;

namespace {

class Extras : public testing::Test {
protected:
    Extras() {
        globals.g_sDefaultDesigner = "Default";
        globals.g_bSounds = false;
        page.show();
    }

    ChoosingDesktop desktop;
    MemorySettings settings;
    std::string log;
    Globals globals;
    frmExtras page{{.desktop = desktop,
                    .globals = globals,
                    .settings = settings,
                    .nameShip = [this](const std::string& designer,
                                       const std::string& ship) { log += designer + '+' + ship; },
                    .clearRecentFiles = [this] { log += "clear "; }}};
};

TEST_F(Extras, OkNamesTheShipAndTakesOneSwitch) {
    EXPECT_EQ(page.txtDesigner.text(), "Default");
    EXPECT_TRUE(page.chkMinimized.isTicked() && !page.chkSounds.isTicked());
    page.txtDesigner.type("Me");
    page.txtShipName.type("Bee");
    page.chkSounds.press();
    page.chkMinimized.press();
    page.chkConfirmExit.press();
    page.cmdOK.press();
    EXPECT_EQ(log, "Me+Bee");
    EXPECT_FALSE(globals.g_bHide);
    EXPECT_TRUE(globals.g_bConfirmExit && !globals.g_bSounds) << "only Save Settings takes these";
    EXPECT_FALSE(page.isLoaded());
}

TEST_F(Extras, SaveSettingsStoresAndStaysOpenAndCancelKeepsWhatItDid) {
    page.txtDesigner.type("Me");
    page.chkConfirmExit.press();
    page.cmdSaveSettings.press();
    EXPECT_EQ(settings.values,
              (std::map<std::string, std::string>{{"Settings/Sounds", "False"},
                                                  {"Settings/Hide", "True"},
                                                  {"Settings/ConfirmExit", "False"},
                                                  {"Names/Designer", "Me"}}));
    EXPECT_FALSE(globals.g_bConfirmExit);
    EXPECT_EQ(globals.g_sDefaultDesigner, "Default") << "the new one is for the next start";
    page.cmdClearMRU.press();
    settings.isReadOnly = true;
    page.chkSounds.press();
    page.cmdSaveSettings.press();
    EXPECT_EQ(desktop.log, "settings: cannot be written/ critical; ");
    EXPECT_FALSE(globals.g_bSounds) << "as it is stored";
    EXPECT_TRUE(page.isLoaded());
    page.cmdCancel.press();
    EXPECT_FALSE(page.isLoaded());
    EXPECT_EQ(log, "clear ");
}

TEST_F(Extras, EnterGoesFromBoxToBoxAndTheFirstActivationToTheFirst) {
    std::string focus;
    std::vector<Connection> connections;
    for (Control* const control : page.controls()) {
        connections.push_back(
            control->FocusWanted.connect([&focus, control] { focus += control->name() + ' '; }));
    }
    page.activate();
    page.activate();
    EXPECT_TRUE(page.txtDesigner.pressKey(EnterKey));
    EXPECT_TRUE(page.txtShipName.pressKey(EnterKey));
    EXPECT_FALSE(page.txtShipName.pressKey('a'));
    EXPECT_EQ(focus, "txtDesigner txtShipName cmdOK ");
}

}  // namespace
