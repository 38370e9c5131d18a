// A new ship, which reads its catalogue, against a plain read of the same file line by line.

#include "BenchFolder.h"
#include "GoalTable.h"
#include "ShipClass.h"

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace fleetwright {

namespace {

/// A catalogue of so many records, which are those of the delivered one over and over.
std::filesystem::path catalogueOf(int records) {
    std::filesystem::path file = benchFolder() / (std::to_string(records) + ".dat");
    std::ofstream out(file, std::ios::binary);
    std::vector<std::string> delivered;
    std::ifstream in(SOURCE_FOLDER "/data/weaps.dat", std::ios::binary);
    for (std::string line; std::getline(in, line);) {
        if (line.size() > 1 && line.front() != '#') {
            delivered.push_back(line);
        } else if (line.starts_with(rulesMark)) {
            delivered.back() += '\n' + line;
        }
    }
    for (std::size_t i = 0; i < static_cast<std::size_t>(records); ++i) {
        out << delivered[i % delivered.size()] << '\n';
    }
    return file;
}

void newShip(benchmark::State& state, int records) {
    const std::filesystem::path file = catalogueOf(records);
    for ([[maybe_unused]] auto _ : state) {
        const ShipClass ship(
            {.catalogueFile = file, .formula = formula_calculate, .eventLoopTurn = {}});
        benchmark::DoNotOptimize(ship.g_lWeapCount);
    }
}

void plainRead(benchmark::State& state, int records) {
    const std::filesystem::path file = catalogueOf(records);
    for ([[maybe_unused]] auto _ : state) {
        std::ifstream in(file, std::ios::binary);
        std::size_t bytes = 0;
        for (std::string line; std::getline(in, line);) {
            bytes += line.size();
        }
        benchmark::DoNotOptimize(bytes);
    }
}

const bool registered = [] {
    for (const int records : {100, 10'000}) {
        const std::string own = "new ship, " + std::to_string(records) + " records";
        const std::string peer = own + ", plain read";
        for (auto* bench : {benchmark::RegisterBenchmark(own.c_str(), newShip, records),
                            benchmark::RegisterBenchmark(peer.c_str(), plainRead, records)}) {
            bench->Repetitions(9)->MinTime(0.1);
        }
        RegisterGoal({"New ship, catalogue of " + std::to_string(records) + ": times a plain read",
                      own, peer, 2, false});
    }
    RegisterGoal({"New ship, catalogue of 10000: times one of 100", "new ship, 10000 records",
                  "new ship, 100 records", 110, false});
    return true;
}();

}  // namespace

}  // namespace fleetwright
