// The sheets of 200 ships, against the bare decoding and encoding of their pictures and, a process
// a sheet, against ImageMagick.

#include "BenchFolder.h"
#include "GoalTable.h"
#include "PictureCache.h"
#include "QtPictureFiles.h"
#include "RasterSheet.h"
#include "SSDMaps.h"
#include "SheetImages.h"
#include "ShipOnScreen.h"
#include "ToolPictures.h"
#include "bestMap.h"
#include "drawnSheet.h"
#include "frmMain.h"
#include "inOrder.h"
#include "paths.h"
#include "qtImage.h"
#include "sheetShip.h"

#include <QBuffer>
#include <QByteArray>
#include <QImageWriter>

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <set>
#include <string>
#include <vector>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t sheetCount = 200;

/// The application folder after its first start.
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

/// Writes down what it is asked for.
class NotedPictures : public PictureFiles {
public:
    Raster load(const fs::path& file) override {
        m_noted.insert(file);
        return m_files.load(file);
    }
    Raster builtIn(const std::string& name) override { return m_files.builtIn(name); }
    const std::set<fs::path>& noted() const { return m_noted; }

private:
    QtPictureFiles m_files;
    std::set<fs::path> m_noted;
};

/// Writes down which picture is pasted where, as ImageMagick wants to hear it.
class NotedPastes : public RasterSheet {
public:
    NotedPastes(Raster& raster, const ShipClass& ship) : RasterSheet(raster), m_ship(ship) {}

    /// Gives these pictures out, and takes down what the next paste will be of.
    SheetImages noting(const SheetImages& images) {
        return {.file =
                    [this, images](std::string_view name) {
                        m_picture = "images/" + std::string(name);
                        return images.file(name);
                    },
                .system = [this, images](std::string_view name) -> const Raster& {
                    std::int32_t index = m_ship.weapNameToIndex(name);
                    WeapRec record;
                    if (name == SheetImages::blank) {
                        m_picture = "-size 32x32 xc:white";
                    } else {
                        m_ship.listWeap(index, record);
                        m_picture = "images/" + std::string(record.icon);
                    }
                    return images.system(name);
                }};
    }
    void paint(const Raster& picture, int x, int y) override {
        RasterSheet::paint(picture, x, y);
        words += " " + m_picture + " -geometry +" + std::to_string(x) + "+" + std::to_string(y) +
                 " -composite";
    }

    std::string words;

private:
    const ShipClass& m_ship;
    std::string m_picture;
};

/// The delivered application folder, its sample ships that there is a map for, and what their
/// sheets are made of.
struct SheetWorld {
    SheetWorld() {
        QtPictureFiles encoder;
        std::vector<std::string> drawable;
        for (const fs::path& ship : listFolder(startedFolder() / "ships", ".shp")) {
            ShipOnScreen screen(startedFolder());
            screen.load(ship.string());
            try {
                sheets.push_back(
                    drawnSheet(screen, {startedFolder(), pictures, encoder, maps}, std::string()));
                drawable.push_back(ship.string());
            } catch (const Error&) {
                // Too large for any map.
            }
        }
        for (std::size_t i = 0; i < sheetCount; ++i) {
            ships.push_back(drawable.at(i % drawable.size()));
        }
        sheets.resize(drawable.size());
    }

    LoadedMaps maps = loadMaps(startedFolder());
    NotedPictures pictures;
    std::vector<std::string> ships;
    std::vector<Raster> sheets;  ///< of the first of these ships; the others repeat them
};

const SheetWorld& world() {
    static const SheetWorld world;
    return world;
}

void sheets(benchmark::State& state, unsigned threads) {
    const SheetWorld& sheetWorld = world();
    for ([[maybe_unused]] auto _ : state) {
        ToolPictures files(APP_FOLDER);
        PictureCache cache(files);
        std::size_t bytes = 0;
        inOrder(
            sheetCount, threads,
            [&](std::size_t index) {
                ShipOnScreen screen(startedFolder());
                screen.load(sheetWorld.ships[index]);
                const Raster sheet = drawnSheet(
                    screen, {startedFolder(), cache, files, sheetWorld.maps}, std::string());
                return Result{.output = files.encode(sheet, "bmp"), .complaints = {}};
            },
            [&](std::size_t, const Result& result) { bytes += result.output.size(); });
        benchmark::DoNotOptimize(bytes);
    }
}

/// The size of a bitmap as Qt encodes it.
std::size_t bareBitmap(const Raster& sheet) {
    QByteArray bytes;
    bytes.reserve(qsizetype{3} * sheet.width() * sheet.height());
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter(&buffer, "bmp").write(toImage(sheet));
    return static_cast<std::size_t>(bytes.size());
}

/// Qt is the yardstick here: the tool has decoding and encoding of its own for plain files.
void bareSheets(benchmark::State& state) {
    const SheetWorld& sheetWorld = world();
    for ([[maybe_unused]] auto _ : state) {
        QtPictureFiles files;
        std::size_t size = 0;
        for (const fs::path& picture : sheetWorld.pictures.noted()) {
            size += static_cast<std::size_t>(files.load(picture).width());
        }
        for (std::size_t i = 0; i < sheetCount; ++i) {
            size += bareBitmap(sheetWorld.sheets[i % sheetWorld.sheets.size()]);
        }
        benchmark::DoNotOptimize(size);
    }
}

/// The ship of which the sheet is made by processes.
const std::string processShip = (startedFolder() / "ships/Provost.shp").string();

/// The command with which ImageMagick pastes its pictures at the same points.
std::string pasteCommand(const std::string& out) {
    ShipOnScreen screen(startedFolder());
    screen.load(processShip);
    SheetLists lists;
    lists.fillShipWeap(screen.window().aboard.lvCurrentWeapons.rows());
    const SSDMaps::Map map = bestMap(world().maps.maps, screen.ship(), lists.lstShipWeap);
    lists.fillPoints(*map);
    QtPictureFiles files;
    Raster raster = files.load(map->outlineFile());
    NotedPastes pastes(raster, screen.ship());
    const SheetImages images =
        pastes.noting(catalogueImages(startedFolder(), files, screen.ship()));
    drawSSD(pastes, images, *map, lists, sheetShip(screen.window()));
    return "cd '" + startedFolder().string() + "' && convert '" + map->outlineFile().string() +
           "'" + pastes.words + " BMP3:'" + out + "'";
}

void runProcess(benchmark::State& state, const std::string& command) {
    for ([[maybe_unused]] auto _ : state) {
        if (std::system(command.c_str()) != 0) {
            state.SkipWithError("the process has failed");
        }
    }
}

const bool registered = [] {
    const auto add = [](const std::string& name,
                        const std::function<void(benchmark::State&)>& run) {
        benchmark::RegisterBenchmark(name.c_str(), run)
            ->Repetitions(5)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime();
    };
    for (const unsigned threads : {1U, 2U}) {
        add("sheets of 200 ships, threads: " + std::to_string(threads),
            [threads](benchmark::State& state) { sheets(state, threads); });
    }
    add("decoding and encoding of 200 sheets", bareSheets);
    const std::string out = (memoryFolder() / "sheet.bmp").string();
    add("sheet by a process", [out](benchmark::State& state) {
        runProcess(state, APP_FOLDER "/fleetwright-cli --app '" + startedFolder().string() +
                              "' sheet '" + processShip + "' -o '" + out + "'");
    });
    add("sheet by ImageMagick",
        [out](benchmark::State& state) { runProcess(state, pasteCommand(out)); });
    return true;
}();

const RegisterGoal bareGoal({"200 sheets: times their bare decoding and encoding",
                             "sheets of 200 ships, threads: 1",
                             "decoding and encoding of 200 sheets", 1.5, false});
const RegisterGoal threadGoal({"200 sheets: times as fast on two cores as on one",
                               "sheets of 200 ships, threads: 1", "sheets of 200 ships, threads: 2",
                               1.7, true});
const RegisterGoal processGoal({"A sheet, a process each: times as fast as ImageMagick",
                                "sheet by ImageMagick", "sheet by a process", 10, true});

}  // namespace

}  // namespace fleetwright
