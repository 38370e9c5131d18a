// The scan of a large outline, against a plain pass that reads each of its pixels once.

#include "Clock.h"
#include "Desktop.h"
#include "GoalTable.h"
#include "OutlineScan.h"
#include "PictureFiles.h"
#include "SSDMaps.h"
#include "frmSSDMapCreator.h"

#include <chrono>

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

/// A window without a screen, whose pictures need no decoding.
class Window : public Desktop, public PictureFiles, public Clock {
public:
    explicit Window(benchmark::State& state) : m_state(state) {
        form.load();
        form.cmdSelect.press();
    }

    bool isMeasured = false;
    frmSSDMapCreator form{{.appFolder = {},
                           .desktop = *this,
                           .pictures = *this,
                           .clock = *this,
                           .eventLoopTurn = [] {},
                           .g_colSSDMaps = m_maps}};

private:
    Raster load(const std::filesystem::path&) override {
        if (!isMeasured) {
            return m_picture;
        }
        m_state.PauseTiming();
        Raster picture = m_picture;
        m_state.ResumeTiming();
        return picture;
    }
    Raster builtIn(const std::string&) override { return {}; }
    Answer showMessage(const std::string&, const std::string&, Buttons, Icon) override {
        return Answer::Ok;
    }
    std::optional<std::string> chooseFileToOpen(const FileDialog&) override { return "a.gif"; }
    std::optional<std::string> chooseFileToSave(const FileDialog&) override { return {}; }
    void popUp(MenuEntry&) override {}
    void showModal(Form&, Form&) override {}
    void askWhatsThis() override {}
    bool openDocument(const std::filesystem::path&) override { return false; }
    void unloadAllForms() override {}
    ScreenSize screenSize() override { return {}; }
    std::int32_t tickCount() override {
        using namespace std::chrono;
        return static_cast<std::int32_t>(
            duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count());
    }
    void sleep(int) override {}

    benchmark::State& m_state;
    Raster m_picture = outline();
    SSDMaps m_maps;
};

/// What "Do It" takes, without the decoding and without the repaints.
void scanInWindow(benchmark::State& state) {
    Window window(state);
    window.isMeasured = true;
    for ([[maybe_unused]] auto _ : state) {
        window.form.cmdDoit.press();
        benchmark::DoNotOptimize(window.form.txtOutput.text());
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
                        benchmark::RegisterBenchmark("scan in the window", scanInWindow),
                        benchmark::RegisterBenchmark("plain pass over its pixels", plainPass)}) {
        bench->Repetitions(9)->MinTime(0.1);
    }
    RegisterGoal({"Scan of a 2000x2000 outline: times a plain pass over its pixels",
                  "scan of an outline", "plain pass over its pixels", 2, false});
    RegisterGoal({"The same in its window with progress", "scan in the window",
                  "plain pass over its pixels", 3, false});
    return true;
}();

}  // namespace

}  // namespace fleetwright
