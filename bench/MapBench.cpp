// The scan of 2,000 map files at the start, against a plain read of the same files line by line.

#include "BenchFolder.h"
#include "GoalTable.h"
#include "SSDMaps.h"
#include "arcWords.h"

#include <filesystem>
#include <fstream>
#include <string>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

constexpr int mapCount = 2'000;
constexpr int lineCount = 60;

/// An application folder with maps as the map creator writes them.
const fs::path& folderOfMaps() {
    static const fs::path folder = [] {
        const fs::path maps = benchFolder() / "mapped" / "maps";
        fs::create_directories(maps);
        for (int i = 0; i < mapCount; ++i) {
            std::ofstream out(maps / ("Hull " + std::to_string(i) + ".map"), std::ios::binary);
            out << "IMAGE: hull" << i << ".gif\r\nSIZE: 36\r\nDAMROW: (10,400)\r\n"
                << "FTL: (200,40)\r\nTHRUST: (200,90)\r\n";
            for (int line = 5; line < lineCount; ++line) {
                const std::string place = std::to_string(line * 7) + ',' + std::to_string(line * 5);
                const std::string_view arc =
                    sheetArcs.substr(static_cast<std::size_t>(line) % 5, 1);
                out << (line % 10 == 0   ? "DCP: (" + place + ")\r\n"
                        : line % 10 == 1 ? "FIRECON: (" + place + ")\r\n"
                                         : "WEAP: (" + place + ',' + std::string(arc) + ")\r\n");
            }
        }
        return maps.parent_path();
    }();
    return folder;
}

void scan(benchmark::State& state) {
    const fs::path& folder = folderOfMaps();
    for ([[maybe_unused]] auto _ : state) {
        SSDMaps maps;
        std::int16_t largest = 0;
        scanMaps(folder, maps, largest, [](const std::string&) {});
        if (maps.all().size() != mapCount) {
            state.SkipWithError("not all maps were read");
        }
    }
}

void plainRead(benchmark::State& state) {
    const fs::path& folder = folderOfMaps();
    for ([[maybe_unused]] auto _ : state) {
        std::size_t bytes = 0;
        for (const fs::directory_entry& file : fs::directory_iterator(folder / "maps")) {
            std::ifstream in(file.path(), std::ios::binary);
            for (std::string line; std::getline(in, line);) {
                bytes += line.size();
            }
        }
        benchmark::DoNotOptimize(bytes);
    }
}

const bool registered = [] {
    for (auto* bench : {benchmark::RegisterBenchmark("scan of 2000 maps", scan),
                        benchmark::RegisterBenchmark("plain read of 2000 maps", plainRead)}) {
        bench->Repetitions(5)->MinTime(0.2)->Unit(benchmark::kMillisecond);
    }
    RegisterGoal({"2000 maps of 60 lines: times a plain read", "scan of 2000 maps",
                  "plain read of 2000 maps", 2.5, false});
    return true;
}();

}  // namespace

}  // namespace fleetwright
