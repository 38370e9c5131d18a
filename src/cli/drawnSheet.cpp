#include "drawnSheet.h"

#include "Desktop.h"
#include "Error.h"
#include "ShipOnScreen.h"
#include "frmMain.h"
#include "frmMapper.h"
#include "sheetShip.h"

namespace fleetwright {

namespace {

/// Keeps the last message.
class SilentDesktop : public NoDesktop {
public:
    Answer showMessage(const std::string& text, const std::string&, Buttons, Icon) override {
        message = text;
        return Answer::Ok;
    }

    std::string message;
};

}  // namespace

Raster drawnSheet(const ShipOnScreen& screen, const SheetTools& tools, const std::string& mapName) {
    const frmMain& main = screen.window();
    SilentDesktop desktop;
    const SheetImages images = catalogueImages(tools.appFolder, tools.pictures, *main.g_Ship);
    frmMapper mapper({.appFolder = tools.appFolder,
                      .desktop = desktop,
                      .pictures = tools.pictures,
                      .encoder = tools.encoder,
                      .images = images,
                      .g_colSSDMaps = tools.maps,
                      .lvCurrentWeapons = main.aboard.lvCurrentWeapons,
                      .ship = [&] { return sheetShip(main); }});
    mapper.show();
    if (!mapName.empty()) {
        mapper.cboMapSelection.type(mapName);
    } else if (!mapper.cboMapSelection.items().empty()) {
        mapper.cboMapSelection.choose(0);
    } else if (desktop.message.empty()) {
        throw Error("there is no map that the ship fits on");
    }
    mapper.cmdDrawIt.press();
    if (!desktop.message.empty()) {
        throw Error(desktop.message + " (" + mapper.lastFault() + ')');
    }
    return std::move(mapper.picSSD.canvas());
}

}  // namespace fleetwright
