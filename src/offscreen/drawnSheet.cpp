#include "drawnSheet.h"

#include "Desktop.h"
#include "Error.h"
#include "SSDMaps.h"
#include "ShipOnScreen.h"
#include "bestMap.h"
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

/// Throws Error for the name of a map that is there and was dropped.
void checkIsUsable(const LoadedMaps& maps, const std::string& mapName) {
    if (const DroppedMap* const map = maps.whyDropped(mapName)) {
        throw Error("the map cannot be used: " + complaint(map->file.string(), map->fault));
    }
}

/// The map of this name, or the one that fits best if the name is empty. Throws Error.
SSDMaps::Map mapFor(const frmMain& main, const LoadedMaps& maps, const std::string& mapName) {
    checkIsUsable(maps, mapName);
    return mapName.empty()
               ? bestMapOrWhyNone(maps.maps, *main.g_Ship, main.aboard.lvCurrentWeapons.rows())
               : maps.maps.at(mapName);
}

/// Throws Error for a ship that is too heavy for the window in which bitmaps are made.
void checkGetsBitmap(const ShipClass& ship, const LoadedMaps& maps) {
    if (!getsSheet(ship.mass(), maps.g_iLargestSSD)) {
        throw Error("a ship of mass " + std::to_string(ship.mass()) +
                    " is too heavy for a bitmap; a .pdf or .svg can be made");
    }
}

}  // namespace

Raster drawnSheet(const ShipOnScreen& screen, const SheetTools& tools, const std::string& mapName) {
    const frmMain& main = screen.window();
    checkIsUsable(tools.maps, mapName);
    SilentDesktop desktop;
    const SheetImages images = catalogueImages(tools.pictures, *main.g_Ship);
    frmMapper mapper({.appFolder = tools.appFolder,
                      .desktop = desktop,
                      .outlines = tools.outlines,
                      .encoder = tools.encoder,
                      .images = images,
                      .g_colSSDMaps = tools.maps.maps,
                      .lvCurrentWeapons = main.aboard.lvCurrentWeapons,
                      .ship = [&] { return sheetShip(main); }});
    mapper.show();
    if (!mapName.empty()) {
        mapper.cboMapSelection.type(mapName);
    } else if (desktop.message.empty()) {
        const SSDMaps::Map best = mapFor(main, tools.maps, mapName);
        checkGetsBitmap(*main.g_Ship, tools.maps);
        mapper.cboMapSelection.type(best->sDisplayName);
    }
    mapper.cmdDrawIt.press();
    if (!desktop.message.empty()) {
        throw Error(desktop.message + " (" + mapper.lastFault() + ')');
    }
    return std::move(mapper.picSSD.canvas());
}

VectorSheet recordedSheet(const ShipOnScreen& screen, const SheetTools& tools,
                          const std::string& mapName) {
    const frmMain& main = screen.window();
    const SSDMaps::Map map = mapFor(main, tools.maps, mapName);
    const SheetImages images = catalogueImages(tools.pictures, *main.g_Ship);
    return vectorSheet(sheetShip(main), main.aboard.lvCurrentWeapons.rows(), *map,
                       {tools.outlines, images, tools.drawings});
}

}  // namespace fleetwright
