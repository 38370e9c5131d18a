// The scan of a large outline, against a plain pass that reads each of its pixels once.

#include "GoalTable.h"
#include "OutlineScan.h"

#include <algorithm>

namespace fleetwright {

namespace {

constexpr int side = 2000;

void mark(Raster& picture, int x, int y, std::uint32_t colour, std::uint32_t right) {
    picture.pixel(x, y) = colour;
    picture.pixel(x + 1, y) = right;
}

/// A drawing of slanting and level lines with 500 weapons, and a black part that a track mark
/// opens, so that the scan has all to do that there is.
Raster outline() {
    Raster picture(side, side);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const bool isInk = (x + y / 3) % 90 < 2 || y % 120 < 2;
            picture.pixel(x, y) = isInk ? Black : Raster::white;
        }
    }
    for (int i = 0; i < 500; ++i) {
        const ArcMark& arc = arcMarks[static_cast<std::size_t>(i) % arcMarks.size()];
        mark(picture, 40 + i % 25 * 72, 60 + i / 25 * 90, Yellow, arc.colour);
    }
    mark(picture, 0, side - 20, Magenta, Black);
    for (int x = 0; x < side; ++x) {
        picture.pixel(x, side - 19) = Black;
    }
    return picture;
}

void scan(benchmark::State& state) {
    const Raster picture = outline();
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(scanOutline(picture, "outline.gif"));
    }
}

/// As a window does it: paints what is done in a copy of the picture, and now and then would look
/// at the clock.
void scanWithProgress(benchmark::State& state) {
    const Raster picture = outline();
    Raster shown = picture;
    for ([[maybe_unused]] auto _ : state) {
        OutlineScan progress(picture, "outline.gif");
        int pixels = 0;
        progress.runInStretches([&](int x, int y, int count) {
            const auto row = shown.row(y).subspan(static_cast<std::size_t>(std::min(x, side)));
            std::fill_n(row.begin(),
                        std::min<std::size_t>(row.size(), static_cast<unsigned>(count)), Black);
            pixels += count;
            return pixels >= 0;
        });
        benchmark::DoNotOptimize(progress.text());
        benchmark::DoNotOptimize(shown);
    }
}

void plainPass(benchmark::State& state) {
    const Raster picture = outline();
    for ([[maybe_unused]] auto _ : state) {
        std::uint32_t sum = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                sum += picture.pixel(x, y);
            }
        }
        benchmark::DoNotOptimize(sum);
    }
}

const bool registered = [] {
    for (auto* bench : {benchmark::RegisterBenchmark("scan of an outline", scan),
                        benchmark::RegisterBenchmark("scan with progress", scanWithProgress),
                        benchmark::RegisterBenchmark("plain pass over its pixels", plainPass)}) {
        bench->Repetitions(9)->MinTime(0.1);
    }
    RegisterGoal({"Scan of a 2000x2000 outline: times a plain pass over its pixels",
                  "scan of an outline", "plain pass over its pixels", 3, false});
    RegisterGoal({"The same with its progress painted", "scan with progress",
                  "plain pass over its pixels", 5, false});
    return true;
}();

}  // namespace

}  // namespace fleetwright
