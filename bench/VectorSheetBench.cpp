// Sheets of 200 ships as lines and text: PDF files against a converter of SVG files, and SVG files
// against bitmaps.

#include "BenchFolder.h"
#include "GoalTable.h"
#include "SheetWorld.h"
#include "sheetDocument.h"
#include "svgFile.h"

#include <filesystem>
#include <string>
#include <vector>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

PageDocument documentOf(const ShipOnScreen& screen, const SheetRun& run) {
    return sheetDocument({recordedSheet(screen, run.tools, std::string())},
                         {.outlines = &run.outlines});
}

void vectorSheets(benchmark::State& state, unsigned threads, const std::string& format) {
    makeSheets(state, threads, SheetKind::Lines,
               [&format](const ShipOnScreen& screen, const SheetRun& run) {
                   const PageDocument document = documentOf(screen, run);
                   return format == "svg" ? svgFile(document, run.files, &run.parts)
                                          : run.files.pdf(document);
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
            [threads](benchmark::State& state) { vectorSheets(state, threads, "pdf"); });
    }
    add("SVGs of 200 ships, threads: 1", many,
        [](benchmark::State& state) { vectorSheets(state, 1, "svg"); });
    return true;
}();

const RegisterGoal converterGoal({"200 PDFs, a process each: times as fast as rsvg-convert",
                                  "PDFs of 200 ships, rsvg-convert each",
                                  "PDFs of 200 ships, a process each", 3, true});
const RegisterGoal threadGoal({"200 PDFs: times as fast on two cores as on one",
                               "PDFs of 200 ships, threads: 1", "PDFs of 200 ships, threads: 2",
                               1.7, true});
const RegisterGoal bitmapGoal({"200 SVGs: times as fast as bitmaps",
                               "sheets of 200 ships, threads: 1", "SVGs of 200 ships, threads: 1",
                               3, true});

}  // namespace

}  // namespace fleetwright
