// One sheet as a bitmap by a process: by the tool, by a bare program that pastes the same pictures,
// and by ImageMagick.

#include "BenchFolder.h"
#include "Error.h"
#include "GoalTable.h"
#include "RasterSheet.h"
#include "SheetImages.h"
#include "SheetPictures.h"
#include "SheetWorld.h"
#include "ShipOnScreen.h"
#include "bestMap.h"
#include "frmMain.h"
#include "sheetShip.h"

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

/// The ship whose sheet it is.
const std::string processShip = (startedFolder() / "ships/Provost.shp").string();

/// A picture and where it goes; without a file, a white one of this size.
struct NotedPaste {
    std::string file;
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

/// Writes down which picture is pasted where.
class NotedPastes : public RasterSheet {
public:
    NotedPastes(Raster& raster, const ShipClass& ship) : RasterSheet(raster), m_ship(ship) {}

    /// Gives these pictures out, and takes down what the next paste will be of.
    SheetImages noting(const SheetImages& images) {
        const std::string folder = (startedFolder() / "images").string() + '/';
        return {.file =
                    [this, images, folder](std::string_view name) {
                        m_picture = folder + std::string(name);
                        return images.file(name);
                    },
                .system = [this, images, folder](std::string_view name) -> const Raster& {
                    std::int32_t index = m_ship.weapNameToIndex(name);
                    WeapRec record;
                    m_picture.clear();
                    if (name != blankPictureKey) {
                        m_ship.listWeap(index, record);
                        m_picture = folder + std::string(record.icon);
                    }
                    return images.system(name);
                }};
    }
    void paint(const Raster& picture, int x, int y) override {
        RasterSheet::paint(picture, x, y);
        pastes.push_back({m_picture, x, y, picture.width(), picture.height()});
    }

    std::vector<NotedPaste> pastes;

private:
    const ShipClass& m_ship;
    std::string m_picture;
};

/// What the sheet is made of.
struct SheetParts {
    std::string outline;
    int width = 0;
    int height = 0;
    std::vector<NotedPaste> pastes;
};

SheetParts sheetParts() {
    ShipOnScreen screen(startedFolder());
    screen.load(processShip);
    SheetLists lists;
    lists.fillShipWeap(screen.window().aboard.lvCurrentWeapons.rows());
    const SSDMaps::Map map = bestMap(sheetWorld().maps.maps, screen.ship(), lists.lstShipWeap);
    lists.fillPoints(*map);
    QtPictureFiles files;
    Raster raster = files.load(map->outlineFile());
    NotedPastes pastes(raster, screen.ship());
    const SheetImages images =
        pastes.noting(catalogueImages(picturesReadOnce(startedFolder(), files), screen.ship()));
    drawSSD(pastes, images, *map, lists, sheetShip(screen.window()));
    return {map->outlineFile().string(), raster.width(), raster.height(), pastes.pastes};
}

/// The command with which ImageMagick pastes its pictures at the same points.
std::string pasteCommand(const SheetParts& parts, const std::string& out) {
    std::string command = "convert '" + parts.outline + "'";
    for (const NotedPaste& paste : parts.pastes) {
        command += (paste.file.empty() ? " -size 32x32 xc:white" : " '" + paste.file + "'") +
                   " -geometry +" + std::to_string(paste.x) + "+" + std::to_string(paste.y) +
                   " -composite";
    }
    return command + " BMP3:'" + out + "'";
}

/// The command with which a bare program does, up to its output.
std::string bareCommand(const SheetParts& parts) {
    const fs::path file = benchFolder() / "bare-sheet.txt";
    std::ofstream lines(file);
    lines << "size " << parts.width << ' ' << parts.height << "\npaste 0 0 " << parts.outline
          << '\n';
    for (const NotedPaste& paste : parts.pastes) {
        lines << (paste.file.empty() ? "white " : "paste ") << paste.x << ' ' << paste.y << ' ';
        if (paste.file.empty()) {
            lines << paste.width << ' ' << paste.height << '\n';
        } else {
            lines << paste.file << '\n';
        }
    }
    return BARE_SHEET " '" + file.string() + "' ";
}

void runProcess(benchmark::State& state, const std::string& command) {
    for ([[maybe_unused]] auto _ : state) {
        runCommand(command);
    }
}

void add(const std::string& name, std::string (*command)(const std::string& out)) {
    benchmark::RegisterBenchmark(name.c_str(),
                                 [command](benchmark::State& state) {
                                     runProcess(state,
                                                command((memoryFolder() / "sheet.bmp").string()));
                                 })
        ->Repetitions(9)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
}

const bool registered = [] {
    add("sheet by a process", [](const std::string& out) {
        return toolCommand() + "sheet '" + processShip + "' -o '" + out + "'";
    });
    add("sheet by a bare program",
        [](const std::string& out) { return bareCommand(sheetParts()) + "'" + out + "'"; });
    add("sheet by ImageMagick",
        [](const std::string& out) { return pasteCommand(sheetParts(), out); });
    return true;
}();

const RegisterGoal bareGoal({"A sheet, a process each: times a bare program's",
                             "sheet by a process", "sheet by a bare program", 1.4, false});
const RegisterGoal comparison({.what = "A sheet, a process each: times as fast as ImageMagick",
                               .above = "sheet by ImageMagick",
                               .below = "sheet by a process"});

}  // namespace

}  // namespace fleetwright
