// Sheets of 200 ships as lines and text: PDF files against a converter of SVG files, and SVG files
// against bitmaps and against what no program could leave out.

#include "BenchFolder.h"
#include "DrawingPack.h"
#include "DrawnPictureFiles.h"
#include "GoalTable.h"
#include "RecordingSheet.h"
#include "SheetImages.h"
#include "SheetWorld.h"
#include "ShipClass.h"
#include "bestMap.h"
#include "designCode.h"
#include "designQr.h"
#include "drawSSD.h"
#include "formula_calculate.h"
#include "pdfFile.h"
#include "readFile.h"
#include "saveFile.h"
#include "sheetDocument.h"
#include "svgFile.h"

#include <filesystem>
#include <string>
#include <vector>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

PageDocument documentOf(const ShipOnScreen& screen, const SheetRun& run, bool isPlain = false) {
    std::vector<VectorSheet> sheets;
    sheets.push_back(recordedSheet(screen, run.tools, std::string()));
    return sheetDocument(sheets, {.isPlain = isPlain, .kept = &run.kept});
}

/// A folder for the sheets of a run, in which there are none yet, as the tool makes it.
fs::path emptyFolder() {
    const fs::path folder = memoryFolder() / "sheets";
    fs::remove_all(folder);
    fs::create_directory(folder);
    return folder;
}

/// Saves sheets as the tool does, one for each ship.
auto savedIn(const fs::path& folder, const char* ending) {
    return [folder, ending](std::size_t index, const std::string& bytes) {
        saveFile(folder / (std::to_string(index) + ending), bytes);
    };
}

void bitmapFiles(benchmark::State& state) {
    makeSheets(
        state, 1, SheetKind::Pixels,
        [](const ShipOnScreen& screen, const SheetRun& run) {
            return run.files.encode(drawnSheet(screen, run.tools, std::string()), "bmp");
        },
        savedIn(emptyFolder(), ".bmp"));
}

/// Plain ones say what bitmaps say.
void svgFilesByTool(benchmark::State& state, bool arePlain) {
    makeSheets(
        state, 1, SheetKind::Lines,
        [arePlain](const ShipOnScreen& screen, const SheetRun& run) {
            return svgFile(documentOf(screen, run, arePlain), run.files, &run.parts);
        },
        savedIn(emptyFolder(), ".svg"));
}

void pdfs(benchmark::State& state, unsigned threads) {
    makeSheets(state, threads, SheetKind::Lines,
               [](const ShipOnScreen& screen, const SheetRun& run) {
                   return pdfFile(documentOf(screen, run));
               });
}

/// SVG files of all ships by the tool, made once; those that a converter turns into PDF files.
const std::vector<std::string>& svgFiles() {
    static const std::vector<std::string> files = [] {
        std::vector<std::string> made;
        for (const std::string& ship : sheetWorld().ships) {
            const fs::path file = memoryFolder() / fs::path(ship).stem().concat(".svg");
            if (!fs::exists(file)) {
                runCommand(toolCommand() + "sheet '" + ship + "' -o '" + file.string() + "'");
            }
            made.push_back(file.string());
        }
        return made;
    }();
    return files;
}

/// What a sheet takes of figures and places, of its QR code, and of the file that it ends in, as it
/// was made before: neither the window of the ship, nor a legend, nor a layout, nor a word.
void bareSvgFiles(benchmark::State& state) {
    std::vector<std::string> files;
    for (const std::string& file : svgFiles()) {
        files.push_back(readBytes(file));
    }
    const SheetWorld& world = sheetWorld();
    const auto catalogue = CatalogueFile::readOnce(startedFolder() / "weaps.dat");
    const DrawingPack drawings(drawingsFile(startedFolder()));
    ToolPictures pictures(APP_FOLDER);
    DrawnPictureFiles drawn(pictures, drawings);
    const PictureFinder finder = picturesReadOnce(startedFolder(), drawn);
    const OutlineFinder outlines = outlinesReadOnce(drawn);
    const auto save = savedIn(emptyFolder(), ".svg");
    for ([[maybe_unused]] auto _ : state) {
        for (std::size_t i = 0; i < sheetCount; ++i) {
            ShipClass ship({catalogue, formula_calculate, {}});
            ship.loadShip(world.ships[i]);
            SheetLists lists;
            for (const WeapRec& system : ship.systemsAboard()) {
                lists.lstShipWeap.insert(lists.lstShipWeap.end(),
                                         static_cast<std::size_t>(system.amount),
                                         std::string(system.name));
            }
            const SSDMaps::Map map = bestMap(world.maps.maps, ship, lists.lstShipWeap);
            lists.fillPoints(*map);
            RecordingSheet sheet(drawings);
            sheet.setPicture(outlines(*map));
            drawSSD(sheet, catalogueImages(finder, ship), *map, lists, sheetShipOf(ship));
            benchmark::DoNotOptimize(designQr(designCode(ship.shipFile())));
            save(i, files[i]);
        }
    }
}

const std::string pdf = "'" + (memoryFolder() / "sheet.pdf").string() + "'";

void pdfProcesses(benchmark::State& state) {
    const std::string tool = toolCommand();
    for ([[maybe_unused]] auto _ : state) {
        for (const std::string& ship : sheetWorld().ships) {
            runCommand(tool + "sheet '" + ship + "' -o " + pdf);
        }
    }
}

void converterProcesses(benchmark::State& state) {
    const std::vector<std::string>& files = svgFiles();
    for ([[maybe_unused]] auto _ : state) {
        for (const std::string& file : files) {
            runCommand("rsvg-convert -f pdf -o " + pdf + " '" + file + "'");
        }
    }
}

const bool registered = [] {
    const auto add = [](const std::string& name, int repetitions, auto run) {
        benchmark::RegisterBenchmark(name.c_str(), run)
            ->Repetitions(repetitions)
            ->Iterations(1)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime();
    };
    constexpr int few = 3, many = 7;
    add("PDFs of 200 ships, a process each", few, pdfProcesses);
    add("PDFs of 200 ships, rsvg-convert each", few, converterProcesses);
    for (const unsigned threads : {1U, 2U}) {
        add("PDFs of 200 ships, threads: " + std::to_string(threads), many,
            [threads](benchmark::State& state) { pdfs(state, threads); });
    }
    for (const bool arePlain : {false, true}) {
        add(arePlain ? "plain SVG files of 200 ships" : "SVG files of 200 ships", many,
            [arePlain](benchmark::State& state) { svgFilesByTool(state, arePlain); });
    }
    add("bitmap files of 200 ships", many, bitmapFiles);
    add("SVG files of 200 ships, bare", many, bareSvgFiles);
    return true;
}();

const RegisterGoal converterGoal({"200 PDFs, a process each: times as fast as rsvg-convert",
                                  "PDFs of 200 ships, rsvg-convert each",
                                  "PDFs of 200 ships, a process each", 3, true});
const RegisterGoal threadGoal({"200 PDFs: times as fast on two cores as on one",
                               "PDFs of 200 ships, threads: 1", "PDFs of 200 ships, threads: 2",
                               1.7, true});
const RegisterGoal bitmapGoal(
    {"200 SVG files: times as fast as bitmaps", "bitmap files of 200 ships",
     "SVG files of 200 ships", 3, true,
     "By instructions, an SVG file takes 1.66 million and a bitmap 4.87, which is 2.9 times as "
     "many, but in loops that copy and fill, of which each takes less time; and a quarter of an "
     "SVG file's time goes into calls of the system, most of them to save it. Of the 1.66 million, "
     "0.21 load the ship, with the window following each line, and 0.27 place its systems and "
     "gather what the sheet says; no sheet can do without either. 0.09 are the silhouettes of "
     "the outlines, once for each outline of a run; 0.28 the head, the legend and the layout "
     "around the drawing, of which 0.08 are trials of places for columns; 0.07 the rose and the "
     "search for free places; 0.25 the code and its QR symbol, three quarters of them in the "
     "libraries that pack and encode; 0.20 the text of the pages; 0.11 the fonts; 0.06 the "
     "definitions of pictures; and the rest is put together and saved. A third of the time "
     "would have to go. There is some room in the silhouettes, if the build made them, and in the "
     "fonts, of which nearly each ship has its own. Bitmaps have neither legend nor rose nor code: "
     "the next row compares them with sheets that have none, either. Without window, layout and "
     "words is the limit."});
const RegisterGoal plainGoal({"200 SVG files that say what bitmaps say: times as fast as those",
                              "bitmap files of 200 ships", "plain SVG files of 200 ships", 3,
                              true});
const RegisterGoal bareGoal({.what = "200 SVG files: times what none could leave out",
                             .above = "SVG files of 200 ships",
                             .below = "SVG files of 200 ships, bare"});
const RegisterGoal bareBitmapGoal({.what = "What none could leave out: times as fast as bitmaps",
                                   .above = "bitmap files of 200 ships",
                                   .below = "SVG files of 200 ships, bare"});

}  // namespace

}  // namespace fleetwright
