#pragma once

// What the benchmarks of sheets are about: the sheets of 200 ships.

#include "KeptSheetParts.h"
#include "KeptSvgParts.h"
#include "QtPictureFiles.h"
#include "Raster.h"
#include "SSDMaps.h"
#include "ShipOnScreen.h"
#include "ToolPictures.h"
#include "drawnSheet.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <filesystem>
#include <functional>
#include <set>
#include <string>
#include <vector>

namespace fleetwright {

constexpr std::size_t sheetCount = 200;

/// The application folder after its first start.
const std::filesystem::path& startedFolder();

/// Writes down what it is asked for.
class NotedPictures : public PictureFiles {
public:
    Raster load(const std::filesystem::path& file) override {
        m_noted.insert(file);
        return m_files.load(file);
    }
    Raster builtIn(const std::string& name) override { return m_files.builtIn(name); }
    const std::set<std::filesystem::path>& noted() const { return m_noted; }

private:
    QtPictureFiles m_files;
    std::set<std::filesystem::path> m_noted;
};

/// The sample ships that get a bitmap, over and over, and what their sheets are made of.
struct SheetWorld {
    SheetWorld();

    LoadedMaps maps = loadMaps(startedFolder());
    NotedPictures pictures;
    std::vector<std::string> ships;
    std::vector<Raster> sheets;  ///< of the first of these ships; the others repeat them
};

const SheetWorld& sheetWorld();

/// What one run makes all its sheets with.
struct SheetRun {
    const SheetTools& tools;
    ToolPictures& files;
    KeptSheetParts& kept;
    KeptSvgParts& parts;
};
enum class SheetKind { Pixels, Lines };

/// Makes a file of the sheet of each ship, as the tool does with so many threads in one process.
/// `take` gets all of them, in the order of the ships.
void makeSheets(benchmark::State& state, unsigned threads, SheetKind kind,
                const std::function<std::string(const ShipOnScreen&, const SheetRun&)>& fileOf,
                const std::function<void(std::size_t, const std::string&)>& take = {});

/// Runs a command of the shell. Throws std::runtime_error if it fails.
void runCommand(const std::string& command);

/// The tool's command in the started folder, up to its words.
std::string toolCommand();

}  // namespace fleetwright
