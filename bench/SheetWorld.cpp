#include "SheetWorld.h"

#include "BenchFolder.h"
#include "DrawingPack.h"
#include "DrawnPictureFiles.h"
#include "Error.h"
#include "ShipScreens.h"
#include "inOrder.h"
#include "keepFreedMemory.h"
#include "paths.h"

#include <cstdlib>
#include <stdexcept>

namespace fleetwright {

namespace fs = std::filesystem;

const fs::path& startedFolder() {
    static const fs::path folder = [] {
        fs::path made = benchFolder() / "started";
        fs::create_directory(made);
        for (const char* const entry :
             {"weaps.dat", "ships", "maps", "shipimages", "drawings.dat"}) {
            fs::create_symlink(fs::path(APP_FOLDER) / entry, made / entry);
        }
        fs::create_symlink(PICTURES_FOLDER "/images", made / "images");
        return made;
    }();
    return folder;
}

SheetWorld::SheetWorld() {
    QtPictureFiles encoder;
    const DrawingPack drawings(drawingsFile(startedFolder()));
    const SheetTools tools{startedFolder(),
                           picturesReadOnce(startedFolder(), pictures),
                           outlinesReadOnce(pictures),
                           encoder,
                           drawings,
                           maps};
    std::vector<std::string> drawable;
    for (const fs::path& ship : listFolder(startedFolder() / "ships", ".shp")) {
        ShipOnScreen screen(startedFolder());
        screen.load(ship.string());
        try {
            sheets.push_back(drawnSheet(screen, tools, std::string()));
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

void makeSheets(benchmark::State& state, unsigned threads, SheetKind kind,
                const std::function<std::string(const ShipOnScreen&, const SheetRun&)>& fileOf,
                const std::function<void(std::size_t, const std::string&)>& take) {
    const SheetWorld& world = sheetWorld();
    keepFreedMemory();
    for ([[maybe_unused]] auto _ : state) {
        ToolPictures files(APP_FOLDER);
        const DrawingPack drawings(drawingsFile(startedFolder()));
        DrawnPictureFiles drawn(files, drawings);
        PictureFiles& pictures =
            kind == SheetKind::Pixels ? static_cast<PictureFiles&>(files) : drawn;
        KeptSheetParts kept;
        KeptSvgParts parts;
        const auto catalogue = CatalogueFile::readOnce(startedFolder() / "weaps.dat");
        const SheetTools tools{startedFolder(),
                               picturesReadOnce(startedFolder(), pictures),
                               outlinesReadOnce(pictures),
                               files,
                               drawings,
                               world.maps};
        ShipScreens screens(startedFolder(), catalogue);
        const SheetRun run{tools, files, kept, parts};
        std::size_t bytes = 0;
        inOrder(
            sheetCount, threads,
            [&](std::size_t index) {
                return screens.lend([&](ShipOnScreen& screen) {
                    screen.load(world.ships[index]);
                    return Result{.output = fileOf(screen, run), .complaints = {}};
                });
            },
            [&](std::size_t index, const Result& result) {
                bytes += result.output.size();
                if (take) {
                    take(index, result.output);
                }
            });
        benchmark::DoNotOptimize(bytes);
    }
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
