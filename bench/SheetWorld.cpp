#include "SheetWorld.h"

#include "BenchFolder.h"
#include "ShipOnScreen.h"
#include "drawnSheet.h"
#include "paths.h"

#include <cstdlib>
#include <stdexcept>

namespace fleetwright {

namespace fs = std::filesystem;

const fs::path& startedFolder() {
    static const fs::path folder = [] {
        fs::path made = benchFolder() / "started";
        fs::create_directory(made);
        for (const char* const entry : {"weaps.dat", "ships", "maps", "shipimages"}) {
            fs::create_symlink(fs::path(APP_FOLDER) / entry, made / entry);
        }
        fs::create_symlink(PICTURES_FOLDER "/images", made / "images");
        return made;
    }();
    return folder;
}

SheetWorld::SheetWorld() {
    QtPictureFiles encoder;
    std::vector<std::string> drawable;
    for (const fs::path& ship : listFolder(startedFolder() / "ships", ".shp")) {
        ShipOnScreen screen(startedFolder());
        screen.load(ship.string());
        try {
            sheets.push_back(drawnSheet(
                screen, {startedFolder(), pictures, pictures, encoder, maps}, std::string()));
            drawable.push_back(ship.string());
        } catch (const Error&) {
            // Too large for a bitmap.
        }
    }
    for (std::size_t i = 0; i < sheetCount; ++i) {
        ships.push_back(drawable.at(i % drawable.size()));
    }
}

const SheetWorld& sheetWorld() {
    static const SheetWorld world;
    return world;
}

void runCommand(const std::string& command) {
    if (std::system(command.c_str()) != 0) {
        throw std::runtime_error("this has failed: " + command);
    }
}

std::string toolCommand() {
    return APP_FOLDER "/fleetwright-cli --app '" + startedFolder().string() + "' ";
}

}  // namespace fleetwright
