// The bitmaps of 200 sheets against the bare decoding and encoding of their pictures.

#include "GoalTable.h"
#include "SheetWorld.h"
#include "qtImage.h"

#include <QBuffer>
#include <QByteArray>
#include <QImageWriter>

#include <filesystem>
#include <string>

namespace fleetwright {

namespace {

void sheets(benchmark::State& state, unsigned threads) {
    makeSheets(state, threads, SheetKind::Pixels,
               [](const ShipOnScreen& screen, const SheetRun& run) {
                   return run.files.encode(drawnSheet(screen, run.tools, std::string()), "bmp");
               });
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
    const SheetWorld& world = sheetWorld();
    for ([[maybe_unused]] auto _ : state) {
        QtPictureFiles files;
        std::size_t size = 0;
        for (const std::filesystem::path& picture : world.pictures.noted()) {
            size += static_cast<std::size_t>(files.load(picture).width());
        }
        for (std::size_t i = 0; i < sheetCount; ++i) {
            size += bareBitmap(world.sheets[i % world.sheets.size()]);
        }
        benchmark::DoNotOptimize(size);
    }
}

const bool registered = [] {
    const auto add = [](const std::string& name, auto run) {
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
    return true;
}();

const RegisterGoal bareGoal({"200 sheets: times their bare decoding and encoding",
                             "sheets of 200 ships, threads: 1",
                             "decoding and encoding of 200 sheets", 1.4, false});
const RegisterGoal
    threadGoal({"200 sheets: times as fast on two cores as on one",
                "sheets of 200 ships, threads: 1", "sheets of 200 ships, threads: 2", 1.8, true,
                "Whole runs on one machine gave 1.90, 1.74 and 1.70, and the figures of 10000 "
                "ships 1.81, 1.81 and 1.50, all of the same code: its second core is not "
                "always there."});

}  // namespace

}  // namespace fleetwright
