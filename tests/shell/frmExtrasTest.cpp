#include "frmExtras.h"

#include "Error.h"
#include "Globals.h"
#include "NoDesktop.h"
#include "SettingsStore.h"

#include <gtest/gtest.h>

using namespace fleetwright;

namespace {

class Log : public SettingsStore, public NoDesktop {
public:
    Answer showMessage(const std::string& message, const std::string&, Buttons, Icon) override {
        text += "box " + message;
        return Answer::Ok;
    }
    std::string read(const std::string&, const std::string&,
                     const std::string& otherwise) const override {
        return otherwise;
    }
    void write(const std::string& section, const std::string& key,
               const std::string& value) override {
        if (isReadOnly) {
            throw FileError("settings", "cannot be written");
        }
        text += section + '/' + key + '=' + value + ' ';
    }

    std::string text;
    bool isReadOnly = false;
};

class Extras : public testing::Test {
protected:
    Extras() {
        globals.g_sDefaultDesigner = "Default";
        globals.g_bSounds = false;
        page.show();
    }

    Log log;
    Globals globals;
    frmExtras page{
        {.desktop = log,
         .globals = globals,
         .settings = log,
         .nameShip = [this](const std::string& designer,
                            const std::string& ship) { log.text += designer + '+' + ship; },
         .clearRecentFiles = [this] { log.text += "clear "; }}};
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
    EXPECT_EQ(log.text, "Me+Bee");
    EXPECT_FALSE(globals.g_bHide);
    EXPECT_TRUE(globals.g_bConfirmExit && !globals.g_bSounds) << "only Save Settings takes these";
    EXPECT_FALSE(page.isLoaded());
}

TEST_F(Extras, SaveSettingsStoresAndStaysOpenAndCancelKeepsWhatItDid) {
    page.txtDesigner.type("Me");
    page.chkConfirmExit.press();
    page.cmdSaveSettings.press();
    EXPECT_EQ(log.text, "Settings/Sounds=False Settings/Hide=True Settings/ConfirmExit=False "
                        "Names/Designer=Me ");
    EXPECT_FALSE(globals.g_bConfirmExit);
    EXPECT_EQ(globals.g_sDefaultDesigner, "Default") << "the new one is for the next start";
    page.cmdClearMRU.press();
    EXPECT_TRUE(page.isLoaded());
    page.cmdCancel.press();
    EXPECT_FALSE(page.isLoaded());
    EXPECT_TRUE(log.text.ends_with("clear "));
}

TEST_F(Extras, SettingsThatCannotBeWrittenAreNamedAndStay) {
    log.isReadOnly = true;
    page.chkSounds.press();
    page.cmdSaveSettings.press();
    EXPECT_EQ(log.text, "box settings: cannot be written");
    EXPECT_FALSE(globals.g_bSounds);
    EXPECT_TRUE(page.isLoaded());
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
